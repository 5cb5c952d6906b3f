#pragma once
// A control of a screen model: the state a person sees and the handlers the
// screen attaches. It keeps the semantics of the classic form toolkit the
// behaviour relies on: setting a value from code fires the same handler a
// person's action does, and only when the value changes.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SortNoCase.h"

namespace fisc {

class Form;

enum class ControlKind { Label, TextBox, ComboBox, ListBox, CheckBox, OptionButton, Button, Frame };

// Where a control stands, in pixels, relative to its frame or its form.
struct Rect {
  int x = 0, y = 0, w = 0, h = 0;
};

// Character codes that key handlers receive.
inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;

class Control {
 public:
  Control(Form& form, ControlKind kind, std::string name, int index);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Owner() const { return form_; }
  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }  // -1 outside a control array
  std::string FullName() const;         // "AdrP(3)"

  // Text of a text box or a combo box. On a list-only combo box the text
  // must be one of the items: it chooses that item (else failure 383).
  const std::string& Text() const;
  void SetText(std::string_view text);
  // Caption of a label, frame, button, check box or option button.
  const std::string& Caption() const { return caption_; }
  Control& SetCaption(std::string_view caption);
  const std::string& ToolTip() const { return toolTip_; }
  Control& SetToolTip(std::string_view tip);

  // Check box and option button: 0 or 1. An option set to 1 clears the
  // other options of its frame or form.
  int Value() const { return value_; }
  void SetValue(int value);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // Visible with every frame around it and its form.
  bool Shown() const;
  // What a click or the Tab key may give the focus to.
  bool CanTakeFocus() const;
  bool IsFocusable() const;  // by kind: labels and frames never take it

  int MaxLength() const { return maxLength_; }
  Control& SetMaxLength(int length);
  // Text boxes whose whole text is selected when they get the focus.
  bool SelectOnEntry() const { return selectOnEntry_; }
  Control& SetSelectOnEntry(bool on);

  // Lists (list box, combo box). A sorted list keeps its items in ascending
  // order without regard to case; equal items keep the order they came in.
  Control& SetSorted(bool sorted);
  bool Sorted() const { return sorted_; }
  // A combo box whose text can only be one of its items.
  Control& SetListOnly(bool listOnly);
  bool ListOnly() const { return listOnly_; }
  void AddItem(std::string_view item);
  void RemoveItem(int index);
  void Clear();
  int ListCount() const { return static_cast<int>(items_.size()); }
  const std::string& Item(int index) const;  // failure 381 when out of range
  const std::vector<std::string>& Items() const;
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int index);  // fires Click when it changes
  // The first item equal to `text` without regard to case, or -1.
  int FindItem(std::string_view text) const;

  void SetFocus();  // failure 5 when the control can't take the focus

  Control* Container() const { return container_; }
  Control& In(Control& frame);
  const Rect& Place() const { return place_; }
  Control& At(int x, int y, int w, int h);
  // Figures stand right-aligned in their box, as in a column of amounts.
  Control& SetAlignRight(bool on);
  bool AlignRight() const { return alignRight_; }
  // A heading's font: a point size (0 the window's own) and weight.
  Control& SetFont(int size, bool bold);
  int FontSize() const { return fontSize_; }
  bool Bold() const { return bold_; }
  int TabIndex() const { return tabIndex_; }
  bool TabStop() const { return tabStop_; }
  Control& SetTabStop(bool on);

  // Handlers, attached by the screen.
  std::function<void()> Click;
  std::function<void()> Change;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  std::function<void(int& key)> KeyPress;

 private:
  friend class Form;
  void SortIfNeeded() const;
  void Fire(const std::function<void()>& handler);

  Form& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  std::string text_, caption_, toolTip_;
  int value_ = 0;
  bool enabled_ = true, visible_ = true;
  int maxLength_ = 0;
  bool selectOnEntry_ = false;
  bool sorted_ = false, listOnly_ = false;
  mutable bool unsorted_ = false;
  mutable std::vector<std::string> items_;
  int listIndex_ = -1;
  Control* container_ = nullptr;
  Rect place_;
  bool alignRight_ = false;
  int fontSize_ = 0;
  bool bold_ = false;
  int tabIndex_ = 0;
  bool tabStop_ = true;
};

}  // namespace fisc
