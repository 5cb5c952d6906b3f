#include "tax/Lanturi.h"

#include "records/Numere.h"
#include "tax/Impozit.h"

namespace fisc {

namespace {

double Ded(const ParametriAn& p, int i) { return p.DedLuna[static_cast<std::size_t>(i)]; }

// The coefficient that counts for the tax; the sheet keeps the one typed.
double CoefPlafonat(std::string_view coefCalc, const ParametriAn& p) {
  double c = ValZecimal(coefCalc);
  double maxim = ValZecimal(p.CoefMaxim);
  return c > maxim ? maxim : c;
}

double ImpozitPeBaza(int i, double baza, const TabelImpozit& tabel) {
  if (baza < 0) baza = 0;
  short luna = static_cast<short>(i + 1);
  return ImpozitLuna(luna, baza, tabel);
}

}  // namespace

double DeducereLuna(int i, std::string_view coefCalc, const ParametriAn& p) {
  return CoefPlafonat(coefCalc, p) * Ded(p, i);
}

double ImpozitPropusLuna(int i, double venitN, std::string_view coefCalc, const ParametriAn& p,
                         const TabelImpozit& tabel) {
  return ImpozitPeBaza(i, venitN - Rotunjeste(DeducereLuna(i, coefCalc, p)), tabel);
}

double ImpozitPropusLunaNerotunjit(int i, double venitN, std::string_view coefCalc,
                                   const ParametriAn& p, const TabelImpozit& tabel) {
  return ImpozitPeBaza(i, venitN - DeducereLuna(i, coefCalc, p), tabel);
}

double ImpozitPrima(short luPrima, double venitPrima, const TabelImpozit& tabel) {
  if (luPrima == 0) return 0;
  return ImpozitLuna(luPrima, venitPrima, tabel);
}

double CheltuieliLuna(int i, const ParametriAn& p) {
  return Rotunjeste(Ded(p, i) * ValZecimal(p.CoefCheltProf));
}

int LuniCuDeducere(const CoeficientiLuni& coefCalc) {
  int n = 0;
  for (const std::string& c : coefCalc)
    if (ValZecimal(c) != 0) ++n;
  return n;
}

CheltuieliPropuse PropuneCheltuieli(const CoeficientiLuni& coefCalc, const ParametriAn& p) {
  CheltuieliPropuse r;
  for (int i = 0; i < 12; ++i) {
    if (ValZecimal(coefCalc[static_cast<std::size_t>(i)]) == 0) continue;
    ++r.Luni;
    r.ChAc += CheltuieliLuna(i, p);
  }
  return r;
}

double CheltuieliCuvenite(double luni, const ParametriAn& p) {
  return luni * Rotunjeste(p.DedLuna[12] * ValZecimal(p.CoefCheltProf));
}

double DeduceriCuvenite(const CoeficientiLuni& coefCalc, const ParametriAn& p) {
  double deduceri = 0;
  for (const std::string& c : coefCalc) deduceri += Rotunjeste(CoefPlafonat(c, p) * p.DedLuna[12]);
  return deduceri;
}

double ImpozitFinal(double venitImpunereFinala, const ParametriAn& p) {
  return Rotunjeste(ValZecimal(p.CotaImpFinal) * venitImpunereFinala);
}

Regularizare CalculeazaRegularizare(const DateRegularizare& date, const ParametriAn& p,
                                    const TabelImpozit& tabel) {
  Regularizare r;
  auto& reg = r.Reg;

  reg[0] = date.VenitNet;
  reg[1] = date.ChAc;
  r.Luni = date.Luni;
  double luniDeducere = LuniCuDeducere(date.CoefCalc);
  if (luniDeducere < r.Luni) r.Luni = luniDeducere;
  reg[2] = CheltuieliCuvenite(r.Luni, p);
  reg[3] = reg[0] + reg[1] - reg[2] > 0 ? reg[0] + reg[1] - reg[2] : 0;

  reg[4] = reg[0] == 0 ? 0 : DeduceriCuvenite(date.CoefCalc, p);
  reg[5] = reg[3] - reg[4] > 0 ? reg[3] - reg[4] : 0;

  short anual = 13;
  double baza = reg[5];
  reg[6] = ImpozitLuna(anual, baza, tabel);
  reg[7] = date.ImpCTotal;
  if (reg[6] - reg[7] > 0) {
    reg[8] = reg[6] - reg[7];
  } else {
    reg[9] = reg[7] - reg[6];
  }

  reg[10] = date.VenitImpunereFinala;
  reg[11] = ImpozitFinal(date.VenitImpunereFinala, p);
  reg[12] = date.VenitScutit;
  return r;
}

}  // namespace fisc
