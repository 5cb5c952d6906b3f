#pragma once
// The desktop of the program: its screens, the one focus, the actions of a
// person, and the dispatcher that runs every action and ends the program on a
// run-time failure that no routine caught. The replay driver and the Qt front
// end both act through it, so a path that works in one works in the other.
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Failure.h"
#include "platform/Form.h"

namespace fisc {

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  void Register(Form& form);
  Form* FindForm(std::string_view name) const;
  const std::vector<Form*>& Forms() const { return forms_; }

  Control* Focused() const { return focused_; }
  // Moves the focus; the control that had it gets its lost-focus handler,
  // and a handler that moves the focus elsewhere meanwhile wins.
  void MoveFocus(Control* target);
  // A form was hidden: its control keeps no focus (no handler runs).
  void FormHidden(Form& form);
  bool FocusSetSince(unsigned long mark) const { return focusMoves_ != mark; }
  unsigned long FocusMark() const { return focusMoves_; }

  // What a person does. Each runs through Dispatch.
  void UserFocus(Control& control);
  void UserClick(Control& control);
  // Replaces the text of the focused control by typing; the keyboard stops
  // at the maximum length. False when the focused control takes no text.
  bool UserType(std::string_view text);
  void UserEnter();
  // Any key with a character code (a letter, the space bar, Escape): the
  // focused control's KeyPress gets it first, then the space bar presses a
  // button or a check box that still has the focus.
  void UserKey(int key);
  // An arrow key: up (-1) or down (+1) moves the choice of a focused list;
  // nothing else takes it.
  void UserArrow(int step);
  void UserTab();
  // Shift+Tab: the previous control in tab order.
  void UserBackTab();
  // Chooses a list entry; the list's click handler runs even when that
  // entry was chosen already.
  void UserSelect(Control& list, int index);
  void UserClose(Form& form);

  // Runs an action as the platform runs an event: a run-time failure that
  // comes out of it ends the program at once.
  void Dispatch(const std::function<void()>& action);

  // The program has ended: by closing the main window or by a failure.
  bool Ended() const { return ended_; }
  void EndProgram() { ended_ = true; }
  const std::optional<RuntimeFailure>& Fatal() const { return fatal_; }
  // Shown to a person when a failure ends the program (the run-time report).
  std::function<void(const RuntimeFailure&)> OnFatal;

 private:
  // True when a shown form that must be answered first refuses an action
  // aimed at `target`; its Deactivate handler has run then.
  bool Refused(const Form& target);
  void StepTab(int step);

  std::vector<Form*> forms_;
  Control* focused_ = nullptr;
  bool moving_ = false;
  Control* redirect_ = nullptr;
  unsigned long focusMoves_ = 0;
  bool ended_ = false;
  std::optional<RuntimeFailure> fatal_;
};

}  // namespace fisc
