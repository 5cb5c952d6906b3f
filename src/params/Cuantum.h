#pragma once
// The year's parameters of Cuantum.txt: the fiscal year, the first and last
// working day, the base deductions and the deduction coefficients.
#include <array>
#include <string>

namespace fisc {

class Files;

struct ParametriAn {
  std::string AnFiscal;  // empty until a file gives it
  std::string PrimaZi;   // two digits, a day of January
  std::string UltimaZi;  // a day of December
  // Base personal deduction of each month, whole lei; [12] the annual value
  // of the regularisation, whose 0 means "not set yet".
  std::array<double, 13> DedLuna{};
  // Decimal texts with "."; every reader takes them with ValZecimal.
  std::array<std::string, 12> CoefCopil, CoefSotie, CoefAlta;
  std::string CoefMaxim, CoefInv1, CoefInv2, CoefInv3, CoefCheltProf, CotaImpFinal;
};

// The texts of the fields of the deduction amounts editor, one to one with
// what a line of Cuantum.txt holds.
struct CampuriCuantum {
  std::string AnF, prima_zi, ultima_zi;
  std::array<std::string, 13> Cuanta;
  std::array<std::string, 12> Copil, Sotie, Alta;
  std::string Maxi, hand1, hand2, hand3, Proc_ch, CotaIF;
};

// Reads Cuantum.txt into `p`. A row is placed by the month it carries; a
// month with no row keeps what it had, and the last line of the file is read
// but never parsed. Failures, with what was read before left in `p`: 53 for a
// missing file, 62 for a file of one line, 5 for a row with too few commas,
// 9 for a month outside 1 to 13.
void IncarcaCuantum(Files& files, ParametriAn& p);

// The editor's fields as the loader fills them from the parameters.
CampuriCuantum CampuriDin(const ParametriAn& p);

// Rewrites Cuantum.txt with the texts of the fields as they stand, and makes
// them the parameters of the run. 53, before anything changes, when the file
// is gone.
void SalveazaCuantum(Files& files, const CampuriCuantum& campuri, ParametriAn& p);

}  // namespace fisc
