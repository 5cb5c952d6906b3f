#pragma once
// The FF2 record, one line an employee in Ff2.txt: 48 fields, the head of
// FF1 up to field 14, the eight income type marks and thirteen pairs.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "sheets/RecordFF1.h"

namespace fisc {

struct FisaFF2 {
  AntetFisa Antet;
  std::string FlagRectif;
  std::array<std::string, 8> TAS;  // "AS1" to "AS8"
  // 0..11 the months, 12 the totals.
  std::array<std::string, 13> VenitCS, ImpS;
};

// The line of the record, without a line end. Unlike FF1 the amounts go out
// as they stand: "0" stays "0".
std::string RecordFF2(const FisaFF2& fisa);

// Every field; marks trimmed and in upper case, amounts as they stand.
FisaFF2 CitesteFF2(std::string_view record);

// The head as a load puts it on the employee screen: fields 1 to 14.
// Returns the position after field 14.
std::size_t CitesteAntetFF2(std::string_view record, FisaFF2& fisa);

// The body as a load puts it on the FF2 screen, from the position after
// field 14: the eight marks, then the pairs.
void CitesteCorpFF2(std::string_view record, std::size_t pozitie, FisaFF2& fisa);

}  // namespace fisc
