#include "platform/Form.h"

#include "platform/Desktop.h"

namespace fisc {

Form::Form(Desktop& desktop, std::string name, std::string caption)
    : desktop_(desktop), name_(std::move(name)), caption_(std::move(caption)) {
  desktop.Register(*this);
}

void Form::SetSize(int width, int height) {
  width_ = width;
  height_ = height;
}

void Form::Show() {
  unsigned long mark = desktop_.FocusMark();
  bool wasVisible = visible_;
  visible_ = true;
  if (Activate) Activate();
  if (wasVisible || desktop_.FocusSetSince(mark)) return;
  for (Control* c : TabOrder()) {
    desktop_.MoveFocus(c);
    return;
  }
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  desktop_.FormHidden(*this);
}

Control& Form::Add(ControlKind kind, std::string name, int index) {
  Control& c = controls_.emplace_back(*this, kind, std::move(name), index);
  c.tabIndex_ = static_cast<int>(controls_.size()) - 1;
  return c;
}

Control* Form::Find(std::string_view name, int index) const {
  for (const Control& c : controls_)
    if (c.Name() == name && c.Index() == index) return const_cast<Control*>(&c);
  return nullptr;
}

std::vector<Control*> Form::TabOrder() {
  std::vector<Control*> order;
  for (Control& c : controls_) {
    if (!c.TabStop() || !c.CanTakeFocus()) continue;
    // Tab reaches an option group through its chosen option only.
    if (c.Kind() == ControlKind::OptionButton && c.Value() == 0) {
      bool chosenElsewhere = false;
      for (const Control& o : controls_)
        if (&o != &c && o.Kind() == ControlKind::OptionButton && o.Container() == c.Container() &&
            o.Value() == 1)
          chosenElsewhere = true;
      if (chosenElsewhere) continue;
    }
    order.push_back(&c);
  }
  return order;
}

}  // namespace fisc
