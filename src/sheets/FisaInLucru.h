#pragma once
// The sheet in hand: which employee, which of his sheets exist and where.
#include <array>
#include <string>

namespace fisc {

struct FisaInLucru {
  std::string CodCurent;
  std::string Gasit;  // "", "F1", "F2" or "F1F2"
  // Non-zero entries: the code has a line in that file ([1] FF1, [0] FF2,
  // [2] the last row of its block in the dependants' file).
  std::array<short, 3> Pozitii{};
};

}  // namespace fisc
