#pragma once
// The rules of the FF1 sheet that dates, codes and coefficients decide: the
// months of activity, the conditions of the regularisation, a dependant's
// birth and age from his CNP, the coefficients a field accepts.
#include <string_view>

#include "params/Cuantum.h"
#include "records/CoduriFiscale.h"
#include "sheets/LuniActivitate.h"
#include "tax/Lanturi.h"

namespace fisc {

// What the regularisation looks at besides the figures.
struct SituatieAngajat {
  std::string_view DataAngajarii, DataIncetarii;
  std::string_view NumeS;  // a surname holding "**" waives the coefficient test
  std::string_view FlagAlteS, FlagDedu;
  std::string_view CodCurent;
};

// True when the sheet can't be regularised: part of the year, a month with a
// total coefficient of 0, other income, no domicile, or a foreign person.
bool ConditiiNeindeplinite(const SituatieAngajat& s, const CoeficientiLuni& coefCalc,
                           const ParametriAn& p);

// Birth of a dependant by his CNP: a first digit 1 or 2 is born in the 1900s,
// any other in the 2000s; the month is digits 4 and 5.
struct Nastere {
  int An = 0;
  int Luna = 0;
};
Nastere NastereDinCod(std::string_view codI);
// Whole calendar years: the fiscal year less the year of birth.
int Varsta(std::string_view codI, std::string_view anFiscal);

// The employee's own coefficient: 1, or 1 plus an invalidity's coefficient;
// grade II wins when both marks are set.
double CoefPropriu(bool inv1, bool inv2, const ParametriAn& p);
// CoefProp accepts 0, 1 and 1 plus either invalidity's coefficient.
bool CoefPropPermis(double coef, const ParametriAn& p);
// CoefI accepts 0, 0.5, 1 and 1.5, whatever the table says.
bool CoefIPermis(double coef);

// The quality and invalidity marks of a dependant.
struct CalitatePersoana {
  bool Sotie = false, Copil = false, Alta = false, Inv1 = false, Inv2 = false;
};

// The coefficient "Preiau conditii" gives month j (0 to 11): the table's value
// of the first quality marked (spouse, child, other) plus the invalidity's
// coefficient; 0 when the employee's own coefficient is 0 and for the months
// before the birth month of one born in the fiscal year.
double CoefPreluat(int j, const CalitatePersoana& c, Nastere nastere, int anFiscal, double coefProp,
                   const ParametriAn& p);

}  // namespace fisc
