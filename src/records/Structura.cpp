#include "records/Structura.h"

#include <string>

namespace fisc {

bool StructuraRecord(std::string_view record, std::string_view sablon) {
  // The "?" stands for the end mark added behind the record: the scan stops at
  // the first one, whether it is that mark or a character of a field.
  std::string structura;
  for (char c : record) {
    if (c == '?') break;
    if (c != '#' && c != ',') continue;
    // After ",#" a comma belongs to the text field that was just opened.
    std::size_t n = structura.size();
    if (c == ',' && n >= 2 && structura[n - 2] == ',' && structura[n - 1] == '#') continue;
    structura += c;
  }
  return structura == sablon;
}

}  // namespace fisc
