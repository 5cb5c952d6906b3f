#pragma once
// A screen model: named controls, the window's caption and visibility, and
// the handlers of the window itself. One instance of each screen lives for the
// whole run; hiding keeps its state.
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace fisc {

class Desktop;

class Form {
 public:
  Form(Desktop& desktop, std::string name, std::string caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Desktop& Owner() const { return desktop_; }
  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { caption_ = caption; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void SetSize(int width, int height);

  bool Visible() const { return visible_; }
  // Shows the window; the focus goes to its first control in tab order
  // unless a handler of the showing puts it elsewhere.
  void Show();
  void Hide();

  // Controls in the order they were added, which is also their tab order.
  Control& Add(ControlKind kind, std::string name, int index = -1);
  Control* Find(std::string_view name, int index = -1) const;
  const std::deque<Control>& Controls() const { return controls_; }
  std::deque<Control>& Controls() { return controls_; }
  // Controls that may get the focus, in tab order.
  std::vector<Control*> TabOrder();

  // Window handlers. Closing: set `cancel` to keep the window open.
  std::function<void()> Activate;
  // A form that a person must answer before any other: while it is shown, an
  // action aimed at another window runs this instead (it takes the focus
  // back) and nothing else happens.
  std::function<void()> Deactivate;
  std::function<void(bool& cancel)> Closing;

 private:
  Desktop& desktop_;
  std::string name_, caption_;
  int width_ = 640, height_ = 480;
  bool visible_ = false;
  std::deque<Control> controls_;
};

}  // namespace fisc
