#pragma once
// The program's strings are bytes of code page Windows-1250, as its files
// are; the widgets show Unicode. These convert between the two at the edge of
// the window, so the screens never see anything but bytes.
#include <QString>
#include <string>
#include <string_view>

namespace fisc {

QString FromCp1250(std::string_view bytes);
// Characters the code page lacks become '?', one for each character, except
// the Romanian letters with a comma below, written with the cedilla the code
// page has, so that a modern keyboard layout still types them.
std::string ToCp1250(const QString& text);

}  // namespace fisc
