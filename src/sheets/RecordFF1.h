#pragma once
// The FF1 record, one line an employee in Ff1.txt: 86 fields. The sheet is
// held as the texts of its screen fields; the writer applies the zero rule and
// the readers give back what the screens and the listings need.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "records/CititorCampuri.h"

namespace fisc {

// Fields 1 to 13, the same in FF1 and FF2: code, names and address.
// AdrS: 0 Localitate, 1 Strada, 2 Numar, 3 Cod postal, 4 Bloc, 5 Scara,
// 6 Etaj, 7 Apartament, 8 Sector. JudS is field 5, the county as stored.
struct AntetFisa {
  std::string CodS;
  std::string NumeS;
  std::string PrenS;
  std::array<std::string, 9> AdrS;
  std::string JudS;
};

struct FisaFF1 {
  AntetFisa Antet;
  // Marks: "X" or empty; a writer takes " x " as set too.
  std::string FlagRectif, FlagReg, FlagDedu, FlagAlteS, FlagInv1, FlagInv2;
  std::string DataAngajarii, DataIncetarii;
  std::array<std::string, 12> CoefCalc, CoefProp;
  // 0..11 the months, 12 "Prima de vacanta", 13 the totals.
  std::array<std::string, 14> VenitN, ImpC;
  std::string Luni, ChAc;
  // Only 2..6 and 8..12 are stored; 0, 1 and 7 repeat other fields.
  std::array<std::string, 13> Reg;
};

// True when a mark field reads as set: "X" once trimmed and in upper case.
bool MarcaSetata(std::string_view marca);
// What a writer puts in a mark field: exactly "X" or nothing.
std::string_view MarcaScrisa(std::string_view marca);

// Appends fields 1 to 13 with their delimiters, up to the ",#" that opens
// field 14.
void ScrieAntet(std::string& record, const AntetFisa& antet);
// Reads fields 1 to 13; the reader then stands at the text of field 14.
void CitesteAntet(CititorCampuri& cititor, AntetFisa& antet);

// The line of the record, without a line end.
std::string RecordFF1(const FisaFF1& fisa);

// Every field, for a program that reads a record whole (the listings).
// Marks come back trimmed and in upper case, the rest as it stands.
FisaFF1 CitesteFF1(std::string_view record);

// The head as a load puts it on the employee screen: fields 1 to 19, 21 and
// 22 into `fisa`, the dates with "." and "-" turned to "/". Returns the
// position after field 22.
std::size_t CitesteAntetFF1(std::string_view record, FisaFF1& fisa);

// The body as a load puts it on the FF1 screen, from the position after
// field 22: the coefficients through TextZecimal (an empty one shows "0"),
// the pairs, Luni, ChAc and Reg(10..12) as they stand. The fields 77 to 83
// are stepped over and left as they were in `fisa`: the screen computes them.
void CitesteCorpFF1(std::string_view record, std::size_t pozitie, FisaFF1& fisa);

}  // namespace fisc
