#pragma once
// The sheet in hand: which employee, which of his sheets exist and where, his
// situation as the employee screen hands it over, and his dependants.
#include <string>

#include "sheets/RecordDed.h"
#include "sheets/Stocare.h"

namespace fisc {

struct FisaInLucru {
  std::string CodCurent;
  std::string Gasit;  // "", "F1", "F2" or "F1F2"
  // Non-zero entries: the code has a line in that file ([1] FF1, [0] FF2,
  // [2] the last row of its block in the dependants' file).
  fisc::Pozitii Pozitii{};
  int Decizie = 0;        // the choice of the existing-code screen, 1 to 6
  int FisaIncarcata = 0;  // 1 or 2: the sheet last chosen in the list
  std::string FisierCurent;
  std::string JudetAngajat;  // the county as the record holds it

  // Months of activity, indices 0 to 11, and the dates they come from.
  int LunaPrima = 0, LunaUltima = 11;
  std::string DataAngajarii, DataIncetarii;
  // Marks of the sheet: "X" or empty.
  std::string FlagRectif, FlagReg, FlagDedu, FlagAlteS, FlagInv1, FlagInv2;
  // The invalidity marks as the file held them when the sheet was loaded.
  std::string Inv1Fisier, Inv2Fisier;

  TabelDed Ded;
  short NrPersoane = 0;
  short PersoanaCurenta = 1;
};

}  // namespace fisc
