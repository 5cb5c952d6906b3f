#include "transfer/StructuriDbf.h"

#include <cstdio>

#include "records/Structura.h"

namespace fisc {

namespace {

using Campuri = std::vector<CampDbf>;

// Widths of the layout: an amount holds 12 characters with its sign, a
// coefficient one decimal in 4.
constexpr int kSuma = 12;
constexpr int kCoef = 4;

void Text(Campuri& c, std::string nume, int latime, std::string_view gol = {}) {
  c.push_back({std::move(nume), 'C', latime, 0, FormaText::Text, gol});
}
void Cod(Campuri& c, std::string nume, int latime) {
  c.push_back({std::move(nume), 'C', latime, 0, FormaText::Bare, {}});
}
void Suma(Campuri& c, std::string nume, int latime = kSuma) {
  c.push_back({std::move(nume), 'N', latime, 0, FormaText::Bare, {}});
}
void Coef(Campuri& c, std::string nume) {
  c.push_back({std::move(nume), 'N', kCoef, 1, FormaText::Bare, {}});
}
void Data(Campuri& c, std::string nume) {
  c.push_back({std::move(nume), 'D', 8, 0, FormaText::Bare, {}});
}

// "VENITN" and month 3 give "VENITN03".
std::string Luna(std::string_view baza, int luna) {
  char numar[8];
  std::snprintf(numar, sizeof numar, "%02d", luna);
  return std::string(baza) + numar;
}

// The address of the employer and of an employee, in the same fields.
void Adresa(Campuri& c) {
  Text(c, "LOCALIT", 50);
  Text(c, "JUDET", 15, " ");
  Text(c, "STRADA", 50);
  Text(c, "NUMAR", 10);
  Cod(c, "CODPOSTAL", 6);
  Text(c, "BLOC", 10);
  Text(c, "SCARA", 10);
  Text(c, "ETAJ", 10);
  Text(c, "APART", 10);
  Cod(c, "SECTOR", 1);
}

// Fields 1 to 13 of FF1 and FF2: code, names, address.
void Antet(Campuri& c) {
  Cod(c, "CODS", 13);
  Text(c, "NUMES", 40);
  Text(c, "PRENS", 40);
  Adresa(c);
}

Campuri CampuriRep() {
  Campuri c;
  Cod(c, "CODP", 13);
  Suma(c, "TIPANG", 1);
  Text(c, "DENP", 160);
  Text(c, "NUMEP", 40);
  Text(c, "PRENP", 40);
  Adresa(c);
  Text(c, "TELEFON", 10);
  Text(c, "EMAIL", 50);
  return c;
}

Campuri CampuriFF1() {
  Campuri c;
  Antet(c);
  for (const char* marca : {"RECTIF", "REGULAR", "FARADOM", "ALTESURSE", "INVGR1", "INVGR2"})
    Text(c, marca, 1);
  Text(c, "", 0);  // field 20: always empty, not stored
  Data(c, "DATAANG");
  Data(c, "DATAINC");
  for (int i = 1; i <= 12; ++i) Coef(c, Luna("COEFCALC", i));
  for (int i = 1; i <= 12; ++i) Coef(c, Luna("COEFPROP", i));
  for (int i = 1; i <= 12; ++i) {
    Suma(c, Luna("VENITN", i));
    Suma(c, Luna("IMPC", i));
  }
  for (const char* rand : {"PV", "TOT"}) {
    Suma(c, std::string("VENITN") + rand);
    Suma(c, std::string("IMPC") + rand);
  }
  Suma(c, "LUNICHELT", 2);
  for (const char* nume :
       {"CHELTACORD", "CHELTCUV", "VENITRECAL", "DEDUCCUV", "VENITBAZA", "IMPANUAL", "DIFPLATA",
        "DIFRESTIT", "VENITFINAL", "IMPFINAL", "VENITSCUT"})
    Suma(c, nume);
  return c;
}

Campuri CampuriFF2() {
  Campuri c;
  Antet(c);
  Text(c, "RECTIF", 1);
  for (int i = 1; i <= 8; ++i) Text(c, "AS" + std::to_string(i), 1);
  for (int i = 1; i <= 12; ++i) {
    Suma(c, Luna("VENITCS", i));
    Suma(c, Luna("IMPS", i));
  }
  Suma(c, "VENITCSTOT");
  Suma(c, "IMPSTOT");
  return c;
}

Campuri CampuriDed() {
  Campuri c;
  Cod(c, "CODS", 13);
  Cod(c, "CODI", 13);
  Text(c, "NUMEI", 40);
  Text(c, "PRENI", 40);
  for (const char* marca : {"SOTIE", "COPIL", "ALTA", "INVGR1", "INVGR2", "ALTESIT"})
    Text(c, marca, 1);
  for (int i = 1; i <= 12; ++i) Coef(c, Luna("COEFI", i));
  return c;
}

}  // namespace

const std::array<FisierDbf, 4>& FisiereDbf() {
  static const std::array<FisierDbf, 4> fisiere = {
      FisierDbf{"Rep", "Repfisc.txt", SablonAngajator, CampuriRep()},
      FisierDbf{"FF1", "Ff1.txt", SablonFF1, CampuriFF1()},
      FisierDbf{"FF2", "Ff2.txt", SablonFF2, CampuriFF2()},
      FisierDbf{"Ded", "Deduceri.txt", SablonDeducere, CampuriDed()},
  };
  return fisiere;
}

std::string NumeDbf(const FisierDbf& fisier, std::string_view an) {
  std::string nume(fisier.prefix);
  if (!an.empty()) {
    nume += '_';
    nume += an;
  }
  return nume + ".dbf";
}

std::string DescriereTip(char tip, int latime, int zecimale) {
  std::string d(1, tip);
  d += '(' + std::to_string(latime);
  if (tip == 'N') d += ',' + std::to_string(zecimale);
  return d + ')';
}

}  // namespace fisc
