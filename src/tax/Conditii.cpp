#include "tax/Conditii.h"

#include "records/Numere.h"

namespace fisc {

namespace {

// The number in characters `from` (1-based) to `from + length - 1`.
double NumarDin(std::string_view text, std::size_t from, std::size_t length) {
  if (from > text.size()) return 0;
  return Valoare(text.substr(from - 1, length));
}

double CoefTabel(const std::array<std::string, 12>& tabel, int j) {
  return ValZecimal(tabel[static_cast<std::size_t>(j)]);
}

}  // namespace

bool ConditiiNeindeplinite(const SituatieAngajat& s, const CoeficientiLuni& coefCalc,
                           const ParametriAn& p) {
  bool neindeplinit = !AnIntreg(s.DataAngajarii, s.DataIncetarii, p.PrimaZi, p.UltimaZi);
  if (s.NumeS.find("**") == std::string_view::npos)
    for (const std::string& c : coefCalc)
      if (ValZecimal(c) == 0) neindeplinit = true;
  if (!s.FlagAlteS.empty() || !s.FlagDedu.empty() || PersoanaStraina(s.CodCurent))
    neindeplinit = true;
  return neindeplinit;
}

Nastere NastereDinCod(std::string_view codI) {
  Nastere n;
  bool secolTrecut = !codI.empty() && (codI.front() == '1' || codI.front() == '2');
  n.An = (secolTrecut ? 1900 : 2000) + static_cast<int>(NumarDin(codI, 2, 2));
  n.Luna = static_cast<int>(NumarDin(codI, 4, 2));
  return n;
}

int Varsta(std::string_view codI, std::string_view anFiscal) {
  return static_cast<int>(Valoare(anFiscal)) - NastereDinCod(codI).An;
}

double CoefPropriu(bool inv1, bool inv2, const ParametriAn& p) {
  double coef = 1;
  if (inv1) coef = ValZecimal(p.CoefInv1) + 1;
  if (inv2) coef = ValZecimal(p.CoefInv2) + 1;
  return coef;
}

bool CoefPropPermis(double coef, const ParametriAn& p) {
  return coef == 0 || coef == 1 || coef == 1 + ValZecimal(p.CoefInv1) ||
         coef == 1 + ValZecimal(p.CoefInv2);
}

bool CoefIPermis(double coef) { return coef == 0 || coef == 1 || coef == 0.5 || coef == 1.5; }

double CoefPreluat(int j, const CalitatePersoana& c, Nastere nastere, int anFiscal, double coefProp,
                   const ParametriAn& p) {
  if (coefProp == 0) return 0;
  // No month before the birth month counts for one born in the year.
  if (nastere.An == anFiscal && j < nastere.Luna - 1) return 0;
  double baza = c.Sotie ? CoefTabel(p.CoefSotie, j) : 0;
  if (baza == 0 && c.Copil) baza = CoefTabel(p.CoefCopil, j);
  if (baza == 0 && c.Alta) baza = CoefTabel(p.CoefAlta, j);
  double adaos = 0;
  if (c.Inv1) adaos = ValZecimal(p.CoefInv1);
  if (c.Inv2) adaos = ValZecimal(p.CoefInv2);
  return baza + adaos;
}

}  // namespace fisc
