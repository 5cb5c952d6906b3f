#pragma once
// Draws every screen model of a desktop as a window of widgets and forwards
// what a person does there to the desktop. The widgets keep nothing of their
// own: after each action they are redrawn from the models, and the focus goes
// where the models put it.
#include <QHash>
#include <QObject>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

class QKeyEvent;

namespace fisc {

class Control;
class Desktop;
class Form;

class ScreenWindows : public QObject {
 public:
  explicit ScreenWindows(Desktop& desktop);
  ~ScreenWindows() override;
  ScreenWindows(const ScreenWindows&) = delete;
  ScreenWindows& operator=(const ScreenWindows&) = delete;

  // Brings the windows up to the models: builds what is new, sets every
  // property that differs, shows and hides windows and puts the focus on
  // the focused control.
  void Redraw();

  QWidget* WindowOf(const Form& form) const;
  QWidget* WidgetOf(const Control& control) const;

  // Runs after the action that ended the program.
  std::function<void()> OnEnded;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Bound;
  struct Window;

  void BuildNew(Window& window);
  void Build(Window& window, Control& control);
  void Watch(QObject* part, Bound& bound);
  void SetUpEditor(Bound& bound);
  void Draw(Window& window, Bound& bound);
  void DrawCaption(Bound& bound);
  void DrawItems(Bound& bound);
  void PlaceFocus();
  bool MousePress(Bound& bound, QObject* watched, QEvent* event);
  // A key with a character goes to the model's KeyPress; true when the
  // widget must not see it too.
  bool KeyPress(Bound& bound, QKeyEvent& key);
  // Runs one action of a person through the desktop, then redraws.
  void Forward(const std::function<void()>& action);

  Desktop& desktop_;
  // Declared before the windows: their widgets report events while they die.
  QHash<QObject*, Bound*> byPart_;
  QHash<const Control*, Bound*> byControl_;
  std::vector<std::unique_ptr<Window>> windows_;
  bool busy_ = false;
  bool dying_ = false;
  Control* lastFocus_ = nullptr;
};

}  // namespace fisc
