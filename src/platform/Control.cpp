#include "platform/Control.h"

#include <algorithm>

#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Form.h"
#include "platform/SortNoCase.h"

namespace fisc {

namespace {
bool EqualNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && !LessNoCase(a, b) && !LessNoCase(b, a);
}
const std::string kEmpty;
}  // namespace

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Fire(const std::function<void()>& handler) {
  if (handler) handler();
}

const std::string& Control::Text() const {
  if (kind_ == ControlKind::ListBox) return listIndex_ >= 0 ? Item(listIndex_) : kEmpty;
  return text_;
}

void Control::SetText(std::string_view text) {
  if (kind_ == ControlKind::ComboBox && listOnly_) {
    int found = FindItem(text);
    if (found < 0) Fail(err::TextReadOnly);
    SetListIndex(found);
    return;
  }
  if (kind_ == ControlKind::ListBox) {
    SetListIndex(FindItem(text));
    return;
  }
  if (text_ == text) return;
  text_ = text;
  if (kind_ == ControlKind::ComboBox) {
    SortIfNeeded();
    auto it = std::find(items_.begin(), items_.end(), text_);
    listIndex_ = it == items_.end() ? -1 : static_cast<int>(it - items_.begin());
  }
  Fire(Change);
}

Control& Control::SetCaption(std::string_view caption) {
  caption_ = caption;
  return *this;
}

Control& Control::SetToolTip(std::string_view tip) {
  toolTip_ = tip;
  return *this;
}

void Control::SetValue(int value) {
  value = value ? 1 : 0;
  if (value_ == value) return;
  value_ = value;
  if (kind_ == ControlKind::OptionButton) {
    if (value == 0) return;  // only the chosen option reports the choice
    for (Control& other : form_.Controls())
      if (&other != this && other.kind_ == ControlKind::OptionButton &&
          other.container_ == container_)
        other.value_ = 0;
  }
  Fire(Click);
}

void Control::SetEnabled(bool enabled) { enabled_ = enabled; }

void Control::SetVisible(bool visible) { visible_ = visible; }

bool Control::Shown() const {
  for (const Control* c = this; c; c = c->container_)
    if (!c->visible_) return false;
  return form_.Visible();
}

bool Control::IsFocusable() const {
  return kind_ != ControlKind::Label && kind_ != ControlKind::Frame;
}

bool Control::CanTakeFocus() const {
  if (!IsFocusable() || !Shown()) return false;
  for (const Control* c = this; c; c = c->container_)
    if (!c->enabled_) return false;
  return true;
}

Control& Control::SetMaxLength(int length) {
  maxLength_ = length;
  return *this;
}

Control& Control::SetSelectOnEntry(bool on) {
  selectOnEntry_ = on;
  return *this;
}

Control& Control::SetSorted(bool sorted) {
  sorted_ = sorted;
  unsorted_ = sorted && items_.size() > 1;
  return *this;
}

Control& Control::SetListOnly(bool listOnly) {
  listOnly_ = listOnly;
  return *this;
}

void Control::SortIfNeeded() const {
  if (!unsorted_) return;
  // Items come in by the thousand when a list is filled from a file; they are
  // sorted once when the list is next read, not at every insert.
  SortNoCase(items_);
  unsorted_ = false;
}

void Control::AddItem(std::string_view item) {
  items_.emplace_back(item);
  if (sorted_ && items_.size() > 1) unsorted_ = true;
}

void Control::RemoveItem(int index) {
  SortIfNeeded();
  if (index < 0 || index >= ListCount()) Fail(err::InvalidCall);
  items_.erase(items_.begin() + index);
  if (listIndex_ == index) {
    listIndex_ = -1;
    if (kind_ == ControlKind::ComboBox) text_.clear();
  } else if (listIndex_ > index) {
    --listIndex_;
  }
}

void Control::Clear() {
  items_.clear();
  unsorted_ = false;
  listIndex_ = -1;
  if (kind_ == ControlKind::ComboBox) text_.clear();
}

const std::string& Control::Item(int index) const {
  SortIfNeeded();
  if (index < -1) Fail(err::InvalidArrayIndex);
  return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : kEmpty;
}

const std::vector<std::string>& Control::Items() const {
  SortIfNeeded();
  return items_;
}

void Control::SetListIndex(int index) {
  SortIfNeeded();
  if (index < -1 || index >= ListCount()) Fail(err::InvalidPropertyValue);
  if (listIndex_ == index) return;
  listIndex_ = index;
  if (kind_ == ControlKind::ComboBox)
    text_ = index >= 0 ? items_[static_cast<std::size_t>(index)] : "";
  Fire(Click);
}

int Control::FindItem(std::string_view text) const {
  SortIfNeeded();
  for (std::size_t i = 0; i < items_.size(); ++i)
    if (EqualNoCase(items_[i], text)) return static_cast<int>(i);
  return -1;
}

void Control::SetFocus() {
  if (!CanTakeFocus()) Fail(err::InvalidCall);
  form_.Owner().MoveFocus(this);
}

Control& Control::In(Control& frame) {
  container_ = &frame;
  return *this;
}

Control& Control::At(int x, int y, int w, int h) {
  place_ = {x, y, w, h};
  return *this;
}

Control& Control::SetAlignRight(bool on) {
  alignRight_ = on;
  return *this;
}

Control& Control::SetFont(int size, bool bold) {
  fontSize_ = size;
  bold_ = bold;
  return *this;
}

Control& Control::SetTabStop(bool on) {
  tabStop_ = on;
  return *this;
}

}  // namespace fisc
