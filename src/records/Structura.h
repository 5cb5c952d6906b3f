#pragma once
// The structure check of a record: the row of its "#" and "," characters,
// commas inside text fields left out, compared with the template of its kind.
#include <string_view>

namespace fisc {

// True when the structure string of `record` equals `sablon`. A "?" ends the
// scan, so a record holding one fails; a comma inside a bare field fails too.
bool StructuraRecord(std::string_view record, std::string_view sablon);

// The employer record of the current structure.
inline constexpr std::string_view SablonAngajator = ",,##,##,##,##,##,##,##,,##,##,##,##,,##,##";
// The employer record whose employer type is still a text field; converted at
// start-up and in the verification.
inline constexpr std::string_view SablonAngajatorTipText =
    ",##,##,##,##,##,##,##,##,,##,##,##,##,,##,##";
// The employer record of the program of the year before.
inline constexpr std::string_view SablonAngajatorAnAnterior =
    ",##,##,##,##,##,##,##,##,##,,##,##,##,##,";
// FF1: the head up to field 20, then the 66 commas of fields 21 to 86.
inline constexpr std::string_view SablonFF1 =
    ",##,##,##,##,##,##,,##,##,##,##,,##,##,##,##,##,##,##"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,";
// FF2: the head with the eight income type marks, then the 26 commas of the amounts.
inline constexpr std::string_view SablonFF2 =
    ",##,##,##,##,##,##,,##,##,##,##,,##,##,##,##,##,##,##,##,##"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,";
// A dependant line of Deduceri.txt.
inline constexpr std::string_view SablonDeducere = ",,##,##,##,##,##,##,##,##,,,,,,,,,,,,";

namespace detail {
constexpr std::size_t CommasAfterLastText(std::string_view sablon) {
  return sablon.size() - 1 - sablon.rfind('#');
}
}  // namespace detail
static_assert(detail::CommasAfterLastText(SablonFF1) == 66);
static_assert(detail::CommasAfterLastText(SablonFF2) == 26);

}  // namespace fisc
