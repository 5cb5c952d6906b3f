#pragma once
// Shorthands for building screen models: a caption label beside a field, and
// control arrays.
#include <string>
#include <string_view>

#include "platform/Form.h"

namespace fisc {

inline Control& Label(Form& form, std::string name, std::string_view caption, int x, int y, int w,
                      int h = 22) {
  return form.Add(ControlKind::Label, std::move(name)).SetCaption(caption).At(x, y, w, h);
}

inline Control& Button(Form& form, std::string name, std::string_view caption, int x, int y, int w,
                       int h = 30) {
  return form.Add(ControlKind::Button, std::move(name)).SetCaption(caption).At(x, y, w, h);
}

inline Control& TextBox(Form& form, std::string name, int maxLength, int x, int y, int w,
                        int index = -1) {
  return form.Add(ControlKind::TextBox, std::move(name), index)
      .SetMaxLength(maxLength)
      .At(x, y, w, 22);
}

}  // namespace fisc
