#pragma once
// One field's value between its dBase form and its text in the record.
#include <optional>
#include <string>
#include <string_view>

#include "transfer/StructuriDbf.h"

namespace fisc {

// The record text of a stored value, given as the dBase reader returns it,
// without blanks at either end: a number in its shortest form ("1.0" gives
// "1"), a date as stored (aaaallzz), a text as stored; an empty field gives
// the field's empty text. nullopt when a number field holds no number.
std::optional<std::string> TextDinDbf(const CampDbf& camp, std::string_view stocat);

// What the dBase field stores for a record text: a text as it stands, a
// number right-aligned in the field's width, a date as aaaallzz (a date
// zz/ll/aaaa is turned round; a year of two digits falls in the century of
// `an`). `eroare` says why a text can't be stored, and is empty otherwise.
struct ValoareDbf {
  std::string valoare;
  std::string eroare;
};
ValoareDbf DbfDinText(const CampDbf& camp, std::string_view text, int an);

}  // namespace fisc
