#pragma once
// The dependants of the sheet in hand, the table Ded, and their records in
// Deduceri.txt: one line a dependant, the employee's code first.
#include <array>
#include <string>
#include <string_view>

namespace fisc {

// Columns of Ded; the record's field n is column n - 1.
namespace ded {
inline constexpr int CodI = 1;
inline constexpr int NumeI = 2;
inline constexpr int PrenI = 3;
inline constexpr int Sotie = 4;
inline constexpr int Copil = 5;
inline constexpr int Alta = 6;
inline constexpr int Inv1 = 7;
inline constexpr int Inv2 = 8;
inline constexpr int Inv3 = 9;
inline constexpr int CoefI = 10;  // CoefI(i) of month i is column 10 + i
inline constexpr int Randuri = 20;
inline constexpr int Coloane = 21;
}  // namespace ded

// Ded(rand, coloana), rows 0 to 20 and columns 0 to 21 of text; row 0 and
// column 0 are not used. An index outside fails with 9, as the array does:
// that is how a 21st dependant stops a load.
class TabelDed {
 public:
  std::string& operator()(int rand, int coloana);
  const std::string& operator()(int rand, int coloana) const;
  // Empties every cell.
  void Goleste();

 private:
  // Empty strings by their own constructor; a braced initializer here makes
  // clang 14 crash.
  std::array<std::array<std::string, ded::Coloane + 1>, ded::Randuri + 1> celule_;
};

// The record of row `rand`, without a line end: marks "X" or nothing, column 9
// always empty, a coefficient that reads as 0 written as nothing.
std::string RecordDed(std::string_view codAngajat, const TabelDed& tabel, int rand);

// Takes a record apart into row `rand`: marks, column 9 included, trimmed and
// in upper case, the other fields as they stand. Returns the employee's code.
std::string_view CitesteRandDed(std::string_view record, TabelDed& tabel, int rand);

}  // namespace fisc
