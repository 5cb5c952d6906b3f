#include "platform/Desktop.h"

#include <algorithm>

namespace fisc {

void Desktop::Register(Form& form) { forms_.push_back(&form); }

Form* Desktop::FindForm(std::string_view name) const {
  for (Form* f : forms_)
    if (f->Name() == name) return f;
  return nullptr;
}

void Desktop::MoveFocus(Control* target) {
  ++focusMoves_;
  if (moving_) {
    redirect_ = target;
    return;
  }
  if (focused_ == target) return;
  Control* old = focused_;
  redirect_ = target;
  if (old && old->LostFocus) {
    moving_ = true;
    try {
      old->LostFocus();
    } catch (...) {
      moving_ = false;
      throw;
    }
    moving_ = false;
  }
  Control* dest = redirect_;
  if (dest && !dest->CanTakeFocus()) dest = old && old->CanTakeFocus() ? old : nullptr;
  focused_ = dest;
  if (dest && dest != old && dest->GotFocus) dest->GotFocus();
}

void Desktop::FormHidden(Form& form) {
  if (focused_ && &focused_->Owner() == &form) focused_ = nullptr;
}

bool Desktop::Refused(const Form& target) {
  for (Form* f : forms_) {
    if (f == &target || !f->Visible() || !f->Deactivate) continue;
    f->Deactivate();
    return true;
  }
  return false;
}

void Desktop::UserFocus(Control& control) {
  Dispatch([&] {
    if (Refused(control.Owner())) return;
    if (control.CanTakeFocus()) MoveFocus(&control);
  });
}

void Desktop::UserClick(Control& control) {
  Dispatch([&] {
    if (Refused(control.Owner())) return;
    if (!control.Shown() || !control.Enabled()) return;
    if (control.CanTakeFocus()) MoveFocus(&control);
    if (ended_) return;
    switch (control.Kind()) {
      case ControlKind::CheckBox: control.SetValue(control.Value() ? 0 : 1); break;
      case ControlKind::OptionButton: control.SetValue(1); break;
      default:
        if (control.Click) control.Click();
    }
  });
}

bool Desktop::UserType(std::string_view text) {
  Control* c = focused_;
  // A field disabled under the focus takes no keys.
  if (!c || !c->CanTakeFocus() ||
      (c->Kind() != ControlKind::TextBox &&
       !(c->Kind() == ControlKind::ComboBox && !c->ListOnly())))
    return false;
  if (c->MaxLength() > 0 && text.size() > static_cast<std::size_t>(c->MaxLength()))
    text = text.substr(0, static_cast<std::size_t>(c->MaxLength()));
  Dispatch([&] { c->SetText(text); });
  return true;
}

void Desktop::UserEnter() {
  Dispatch([&] {
    Control* c = focused_;
    if (!c || !c->CanTakeFocus()) return;
    if (c->Kind() == ControlKind::Button) {
      if (c->Click) c->Click();
      return;
    }
    int key = kKeyEnter;
    if (c->KeyPress) c->KeyPress(key);
  });
}

void Desktop::UserKey(int key) {
  if (key == kKeyEnter) return UserEnter();
  Dispatch([&] {
    Control* c = focused_;
    if (!c) return;
    if (c->KeyPress) c->KeyPress(key);
    // A handler that took the focus elsewhere keeps the key from the control.
    if (ended_ || key != kKeySpace || focused_ != c) return;
    switch (c->Kind()) {
      case ControlKind::CheckBox: c->SetValue(c->Value() ? 0 : 1); break;
      case ControlKind::OptionButton: c->SetValue(1); break;
      case ControlKind::Button:
        if (c->Click) c->Click();
        break;
      default: break;
    }
  });
}

void Desktop::UserArrow(int step) {
  Dispatch([&] {
    Control* c = focused_;
    if (!c || (c->Kind() != ControlKind::ListBox && c->Kind() != ControlKind::ComboBox)) return;
    int index = std::clamp(c->ListIndex() + step, 0, c->ListCount() - 1);
    if (index >= 0 && index != c->ListIndex()) c->SetListIndex(index);
  });
}

void Desktop::StepTab(int step) {
  Dispatch([&] {
    Control* c = focused_;
    if (!c) return;
    auto order = c->Owner().TabOrder();
    if (order.empty()) return;
    auto n = static_cast<std::ptrdiff_t>(order.size());
    auto at = std::find(order.begin(), order.end(), c) - order.begin();
    // A control outside the order (a chosen option's partner) starts from the front.
    if (at == n) at = step > 0 ? -1 : 0;
    MoveFocus(order[static_cast<std::size_t>(((at + step) % n + n) % n)]);
  });
}

void Desktop::UserTab() { StepTab(1); }

void Desktop::UserBackTab() { StepTab(-1); }

void Desktop::UserSelect(Control& list, int index) {
  Dispatch([&] {
    if (Refused(list.Owner())) return;
    if (list.CanTakeFocus()) MoveFocus(&list);
    if (ended_) return;
    if (list.ListIndex() == index) {
      if (list.Click) list.Click();
    } else {
      list.SetListIndex(index);
    }
  });
}

void Desktop::UserClose(Form& form) {
  Dispatch([&] {
    if (Refused(form)) return;
    bool cancel = false;
    if (form.Closing) form.Closing(cancel);
    if (!cancel) form.Hide();
  });
}

void Desktop::Dispatch(const std::function<void()>& action) {
  if (ended_) return;
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    fatal_ = failure;
    ended_ = true;
    if (OnFatal) OnFatal(failure);
  }
}

}  // namespace fisc
