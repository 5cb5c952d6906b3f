#pragma once
// The chains from the figures of a sheet to a tax: the monthly chain of FF1,
// the holiday bonus, the professional expenses and the annual regularisation.
// Pure arithmetic over the year's parameters and the tax table; the screens
// read their fields (amounts with Valoare) and write the results back.
#include <array>
#include <string>
#include <string_view>

#include "params/Cuantum.h"
#include "params/Impozitar.h"

namespace fisc {

// The twelve total coefficients CoefCalc(0..11) as they stand on the sheet.
using CoeficientiLuni = std::array<std::string, 12>;

// Inputs: month index i (0 to 11), the month's CoefCalc(i) text.
// C * DedLuna[i], the coefficient capped at CoefMaxim; not rounded.
double DeducereLuna(int i, std::string_view coefCalc, const ParametriAn& p);

// Inputs: month index i (0 to 11), VenitN(i), CoefCalc(i) text.
// ImpP(i) on leaving VenitN(i): the base is the income less the rounded deduction.
double ImpozitPropusLuna(int i, double venitN, std::string_view coefCalc, const ParametriAn& p,
                         const TabelImpozit& tabel);

// Inputs: month index i (0 to 11), VenitN(i), CoefCalc(i) text.
// ImpP(i) of Command3: the base is the income less the deduction not rounded.
double ImpozitPropusLunaNerotunjit(int i, double venitN, std::string_view coefCalc,
                                   const ParametriAn& p, const TabelImpozit& tabel);

// Inputs: LuPrima, VenitN(12). ImpP(12): the bonus taxed alone by the table of
// its month, with no deduction; 0 when no month is given.
double ImpozitPrima(short luPrima, double venitPrima, const TabelImpozit& tabel);

// Inputs: month index i (0 to 11). The month's share of professional expenses.
double CheltuieliLuna(int i, const ParametriAn& p);

// Inputs: CoefCalc(0..11) texts. The number of months with a coefficient not 0.
int LuniCuDeducere(const CoeficientiLuni& coefCalc);

struct CheltuieliPropuse {
  double ChAc = 0;  // the shares of the months with a coefficient
  int Luni = 0;     // the count of those months
};

// Inputs: CoefCalc(0..11) texts. The ChAc and Luni that Command3 proposes.
CheltuieliPropuse PropuneCheltuieli(const CoeficientiLuni& coefCalc, const ParametriAn& p);

// Inputs: Luni. Item VI.3, the expenses due: the months times the share of
// the annual deduction, the share rounded once.
double CheltuieliCuvenite(double luni, const ParametriAn& p);

// Inputs: CoefCalc(0..11) texts. The deductions due of the year: every month
// takes the annual deduction times its capped coefficient, rounded month by
// month before the sum.
double DeduceriCuvenite(const CoeficientiLuni& coefCalc, const ParametriAn& p);

// Inputs: Reg(10), the income with final taxation. Reg(11), its tax.
double ImpozitFinal(double venitImpunereFinala, const ParametriAn& p);

// The figures of a sheet that the regularisation starts from.
struct DateRegularizare {
  double VenitNet = 0;   // VenitN(13), the year's net income
  double ChAc = 0;       // expenses granted
  double Luni = 0;       // months for which expenses were granted
  double ImpCTotal = 0;  // ImpC(13), the tax withheld in the year
  CoeficientiLuni CoefCalc;
  double VenitImpunereFinala = 0;  // Reg(10), item VII
  double VenitScutit = 0;          // Reg(12), item VIII
};

struct Regularizare {
  std::array<double, 13> Reg{};  // items VI.1 to VI.10, VII and VIII
  double Luni = 0;               // Luni, no more than the months with a coefficient
};

// Inputs: the sheet's figures above. Items VI.1 to VI.10 of the regularisation,
// the proposed tax of item VII and item VIII as given.
Regularizare CalculeazaRegularizare(const DateRegularizare& date, const ParametriAn& p,
                                    const TabelImpozit& tabel);

}  // namespace fisc
