#include "records/Structura.h"

namespace fisc {

bool StructuraRecord(std::string_view record, std::string_view sablon) {
  // The structure string is compared with the template as it is made, so
  // that a record of a few hundred characters costs no copy: while they agree
  // its last two characters are those of the template.
  std::size_t n = 0;  // characters of the structure string so far
  for (std::size_t i = 0; i < record.size(); ++i) {
    // Most characters are none of the three: pass them in a tight loop.
    while (i < record.size() && record[i] != '#' && record[i] != ',' && record[i] != '?') ++i;
    if (i == record.size()) break;
    char c = record[i];
    // The "?" stands for the end mark added behind the record: the scan stops
    // at the first one, whether it is that mark or a character of a field.
    if (c == '?') break;
    // After ",#" a comma belongs to the text field that was just opened.
    if (c == ',' && n >= 2 && sablon[n - 2] == ',' && sablon[n - 1] == '#') continue;
    if (n >= sablon.size() || sablon[n] != c) return false;
    ++n;
  }
  return n == sablon.size();
}

}  // namespace fisc
