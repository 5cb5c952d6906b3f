#include "records/Structura.h"

#include <array>

namespace fisc {

namespace {
// The characters the scan looks at; every other one is stepped over.
constexpr std::array<bool, 256> kSemne = [] {
  std::array<bool, 256> t{};
  t['#'] = t[','] = t['?'] = true;
  return t;
}();
}  // namespace

bool StructuraRecord(std::string_view record, std::string_view sablon) {
  // The "?" stands for the end mark added behind the record: the scan stops at
  // the first one, whether it is that mark or a character of a field.
  // The structure string is compared with the template as it grows, so it is
  // never built: what was kept so far is the template's prefix of that length.
  std::size_t n = 0;
  const char* p = record.data();
  const char* end = p + record.size();
  for (; p != end; ++p) {
    char c = *p;
    if (!kSemne[static_cast<unsigned char>(c)]) continue;
    if (c == '?') break;
    // After ",#" a comma belongs to the text field that was just opened.
    if (c == ',' && n >= 2 && sablon[n - 2] == ',' && sablon[n - 1] == '#') continue;
    if (n == sablon.size() || sablon[n] != c) return false;
    ++n;
  }
  return n == sablon.size();
}

}  // namespace fisc
