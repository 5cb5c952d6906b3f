// Section 6: the rule that ties a sheet to its dependants, month by month:
// the own coefficient plus the dependants' makes the total. Both files are in
// ascending code order, so one walk over the two does it.
#include <array>

#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "verify/Parcurgere.h"
#include "verify/Verificari.h"

namespace fisc {

namespace {

using Luni12 = std::array<double, 12>;

struct AngajatFF1 {
  std::string CodFF1, NumeFF1, PrenumeFF1;
  Luni12 CoefCalc{}, CoefProp{};
};

// inreg_ff1: code, names and the two rows of coefficients of a sheet.
AngajatFF1 inreg_ff1(std::string_view record) {
  AngajatFF1 a;
  Parcurgere p(record);
  a.CodFF1 = p.Pana(",#");
  a.NumeFF1 = p.Pana("#,#");
  a.PrenumeFF1 = p.Pana("#,#");
  p.Sari("#,", 15);
  p.Sari(",", 2);
  for (double& c : a.CoefCalc) c = ValZecimal(p.Pana(","));
  for (double& c : a.CoefProp) c = ValZecimal(p.Pana(","));
  return a;
}

// inreg_ded: adds a dependant's coefficients to the employee's.
void inreg_ded(std::string_view record, Luni12& coefSuplim) {
  Parcurgere p(record);
  p.Pana(",");
  p.Sari("#,", 8);
  for (std::size_t i = 0; i < 11; ++i) coefSuplim[i] += ValZecimal(p.Pana(","));
  coefSuplim[11] += ValZecimal(p.Rest());
}

std::string Coef(double valoare) { return PunctZecimal(TextDin(valoare)); }

// sf_ver_corel: one line for the employee, cut in pieces of 78 characters.
void sf_ver_corel(ListaErori& lista, const AngajatFF1& a, Luni12& coefSuplim) {
  constexpr std::size_t kLatime = 78;
  std::string linie = a.CodFF1 + " " + a.NumeFF1 + " " + a.PrenumeFF1 + " : ";
  bool gasit = false;
  for (std::size_t i = 0; i < 12; ++i) {
    if (a.CoefProp[i] + coefSuplim[i] == a.CoefCalc[i]) continue;
    linie += "Luna " + std::to_string(i + 1) + ": " + Coef(a.CoefProp[i]) + "+" +
             Coef(coefSuplim[i]) + "<>" + Coef(a.CoefCalc[i]) + " | ";
    gasit = true;
  }
  if (gasit) {
    // A length that is a whole multiple of the width ends in an empty piece.
    for (std::size_t j = 0; j <= linie.size() / kLatime; ++j)
      lista.Eroare(std::string_view(linie).substr(j * kLatime, kLatime));
    lista.Eroare(std::string(kLatime, '_'));
  }
  coefSuplim.fill(0);
}

}  // namespace

void ver_corel_ff1_ded(Files& files, ListaErori& lista) {
  if (FisierGol(files, fisier::Ff1)) return;
  LineReader ff1 = files.Read(fisier::Ff1);
  std::string linie;
  if (FisierGol(files, fisier::Deduceri)) {
    while (ff1.Next(linie)) {
      AngajatFF1 a = inreg_ff1(linie);
      if (a.CoefCalc != a.CoefProp)
        lista.Eroare(a.CodFF1 + " coeficienti totali incorecti (angajatul nu are ded.suplim.).");
    }
    return;
  }
  LineReader ded = files.Read(fisier::Deduceri);
  Luni12 coefSuplim{};
  AngajatFF1 a = inreg_ff1(ff1.Line());
  std::string linieDed = ded.Line();
  std::string codDed(Inainte(linieDed, ","));
  // The end of Deduceri.txt stands above every code, whatever the code.
  bool dedTerminat = false;
  auto urmatorulDed = [&] {
    if (ded.Next(linieDed))
      codDed = Inainte(linieDed, ",");
    else
      dedTerminat = true;
  };
  for (;;) {
    if (dedTerminat || a.CodFF1 < codDed) {
      sf_ver_corel(lista, a, coefSuplim);
      if (!ff1.Next(linie)) return;
      a = inreg_ff1(linie);
    } else if (a.CodFF1 == codDed) {
      inreg_ded(linieDed, coefSuplim);
      urmatorulDed();
    } else {
      // A dependant without a sheet: an employee with an FF2 only has them.
      urmatorulDed();
    }
  }
}

}  // namespace fisc
