#include "listings/ListaFF1.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include <array>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/RecordFF1.h"

namespace fisc {

namespace {

using listare::U80;

std::string DaNu(std::string_view marca) { return marca == "X" ? "DA" : "NU"; }

// A sheet's numbers are mostly plain digits or short decimals; those are
// judged here without the general conversion, which gives the same answers.
bool NumaiCifre(std::string_view t) {
  return !t.empty() && t.find_first_not_of("0123456789") == std::string_view::npos;
}

bool EsteZero(std::string_view t) {
  if (NumaiCifre(t)) return t.find_first_not_of('0') == std::string_view::npos;
  return Valoare(t) == 0;
}

// A decimal already in the shortest form the conversion writes ("3", "1.5",
// "0.25"), short enough to come back unchanged from it.
bool FormaScurta(std::string_view t) {
  std::size_t punct = t.find('.');
  std::string_view intreg = t.substr(0, punct);
  if (t.size() > 15 || !NumaiCifre(intreg) || (intreg.size() > 1 && intreg[0] == '0')) return false;
  if (punct == std::string_view::npos) return true;
  std::string_view zecimale = t.substr(punct + 1);
  return NumaiCifre(zecimale) && zecimale.back() != '0';
}

// TextNumar and TextZecimal of a coefficient, which differ on a comma only.
std::string NumarCoeficient(std::string_view t) {
  return FormaScurta(t) ? std::string(t) : TextNumar(t);
}
std::string ZecimalCoeficient(std::string_view t) {
  return FormaScurta(t) ? std::string(t) : TextZecimal(t);
}

// An amount field as the sheet prints it: empty when it reads as 0.
void RegulaZero(std::string& suma) {
  if (EsteZero(suma)) suma.clear();
}

// Twelve cells of 5: a text of 5 characters or more leaves one blank alone,
// which shifts the rest of the row; stored coefficients never reach 5.
std::string Celule(const std::array<std::string, 12>& texte) {
  std::string rand;
  for (const std::string& t : texte) {
    if (t.size() < 5)
      rand += std::string(5 - t.size(), ' ') + PunctZecimal(t);
    else
      rand += ' ';
  }
  return rand;
}

std::array<std::string, 12> Coeficienti(const std::array<std::string, 12>& campuri) {
  std::array<std::string, 12> texte;
  for (std::size_t i = 0; i < 12; ++i) {
    texte[i] = NumarCoeficient(campuri[i]);
    if (EsteZero(texte[i])) texte[i].clear();
  }
  return texte;
}

// The amount measured by one call of FormatSuma and written by a second: a
// negative amount loses its sign between the two and stands one place left.
std::string DublaFormatare(std::string& suma) {
  std::string masura = FormatSuma(suma);
  if (masura.size() > 20) Fail(err::InvalidCall);
  return std::string(20 - masura.size(), ' ') + FormatSuma(suma);
}

constexpr std::array<std::string_view, 14> kLuniV = {
    "Ianuarie          1.", "Februarie         2.", "Martie            3.", "Aprilie           4.",
    "Mai               5.", "Iunie             6.", "Iulie             7.", "August            8.",
    "Septembrie        9.", "Octombrie        10.", "Noiembrie        11.", "Decembrie        12.",
    "Prima de vacanta 13.", "Total            14."};

constexpr std::array<std::string_view, 11> kEticheteVI = {
    "   1.Venit net :                                            ",
    "   2.Cheltuieli profesionale acordate :                     ",
    "   3.Cheltuieli profesionale cuvenite :                     ",
    "   4.Venit net recalculat (1+2-3) :                         ",
    "   5.Deduceri personale cuvenite :                          ",
    "   6.Venit anual baza de calcul (4-5) :                     ",
    "   7.Impozit anual :                                        ",
    "   8.Total impozit lunar calculat si retinut:               ",
    "   9.Diferenta de impozit ramas de achitat                  ",
    "     de catre angajat (7-8) :                               ",
    "  10.Diferenta de impozit de restituit angajatului (8-7) :  "};

constexpr std::array<std::string_view, 11> kEticheteScurteVI = {
    "   1.Venit net :  ",
    "   2.Cheltuieli profesionale acordate :",
    "   3.Cheltuieli profesionale cuvenite :",
    "   4.Venit net recalculat (1+2-3) :",
    "   5.Deduceri personale cuvenite :",
    "   6.Venit anual baza de calcul (4-5) :",
    "   7.Impozit anual : ",
    "   8.Total impozit lunar calculat si retinut:",
    "   9.Diferenta de impozit ramas de achitat",
    "     de catre angajat (7-8) : ",
    "  10.Diferenta de impozit de restituit angajatului (8-7) : "};

constexpr std::string_view kLuniAntet =
    "Ian  Feb  Mar  Apr  Mai  Iun  Iul  Aug  Sept Oct  Nov  Dec";

}  // namespace

ListaFF1::ListaFF1(const Files& files, LineWriter& out, const ParametriAn& parametri,
                   FisaInLucru& fisa, StareListare& listare, std::string_view semnatarNume,
                   std::string_view semnatarFunctie)
    : files_(files),
      out_(out),
      parametri_(parametri),
      fisa_(fisa),
      listare_(listare),
      nume_(Majuscule(semnatarNume)),
      functie_(Majuscule(semnatarFunctie)),
      deduceri_(files) {}

void ListaFF1::Scrie(std::string_view text) {
  text_ += text;
  text_ += "\r\n";
}

void ListaFF1::Linie(std::string_view text) {
  Scrie(text);
  if (paginat_) ipagina();
}

void ListaFF1::Rand(std::string_view eticheta, std::string_view a, int la, std::string_view b,
                    int lb) {
  // Both cells are measured before anything is written: a failing line
  // leaves no piece of itself in the file.
  if (a.size() > static_cast<std::size_t>(la) || b.size() > static_cast<std::size_t>(lb))
    Fail(err::InvalidCall);
  text_ += eticheta;
  text_.append(static_cast<std::size_t>(la) - a.size(), ' ');
  text_ += a;
  text_.append(static_cast<std::size_t>(lb) - b.size(), ' ');
  text_ += b;
  text_ += "\r\n";
  if (paginat_) ipagina();
}

void ListaFF1::Goleste() {
  out_.Write(text_);
  text_.clear();
}

void ListaFF1::ipagina() {
  short& linie = listare_.LiniePagina;
  NumaraLinie(linie);
  for (int pagina = 1; pagina <= 7; ++pagina) {
    if (linie != LiniiPagina * pagina) continue;
    Scrie("                                                   (Cod angajat : " + fisa_.CodCurent +
          ")");
    NumaraLinie(linie);
    Scrie("");
    NumaraLinie(linie);
    return;
  }
}

void ListaFF1::ListF1(std::string_view linie) {
  listare_.LiniePagina = 0;
  LiniiPagina = 65;
  paginat_ = true;
  FisaFF1 f = CitesteFF1(linie);
  try {
    Linie(LiniaExemplar(listare_.Exemplar));
    ScrieFisa(f, nullptr, 0);
  } catch (...) {
    Goleste();  // the lines written before a failure stay in the file
    throw;
  }
  // Padding to the next page of the grid; past 7 pages there is none.
  const int c = listare_.LiniePagina, L = LiniiPagina;
  if (c >= 1 && c < 7 * L && c % L != 0)
    for (int k = (c / L + 1) * L - c; k > 0; --k) Scrie("");
  Goleste();
}

void ListaFF1::Imagine(FisaFF1& fisa, const TabelDed& ded, short nrPersoane) {
  paginat_ = false;
  Scrie("(copie pentru angajat)" + listare_.Exemplar + ")");
  try {
    ScrieFisa(fisa, &ded, nrPersoane);
  } catch (...) {
    Goleste();
    throw;
  }
  Goleste();
}

void ListaFF1::ScrieFisa(FisaFF1& f, const TabelDed* ded, short nrPersoane) {
  Linie("");
  Linie(U80);
  Linie("                      FISA FISCALA 1 pentru anul " + parametri_.AnFiscal);
  Linie("                         (pentru functia de baza) ");
  Linie(U80);
  Linie("                                                 Fisa fiscala rectificativa : " +
        DaNu(f.FlagRectif));
  Linie("                                                 Fisa fiscala regularizata  : " +
        DaNu(f.FlagReg));
  Linie(U80);
  Linie(" I. DATE DE IDENTIFICARE ANGAJATOR");
  Linie(U80);
  if (!angajator_) angajator_ = CitesteBlocAngajator(files_);
  for (const std::string& l : angajator_->Linii) {
    Scrie(l);
    if (angajator_->Numarate) NumaraLinie(listare_.LiniePagina);
  }

  Linie(U80);
  Linie(" II. DATE DE IDENTIFICARE ANGAJAT");
  Linie(U80);
  for (const std::string& l : BlocAngajat(f.Antet)) Linie(l);
  Linie("");
  Linie("Persoana fizica romana fara domiciliu in Romania : " + DaNu(f.FlagDedu));
  Linie(U80);

  Linie("III. DATE PRIVIND INDEPLINIREA CONDITIILOR PENTRU CALCULUL IMPOZITULUI ANUAL ");
  Linie("     SI REGULARIZAREA ACESTUIA ");
  Linie(U80);
  Linie("  Alte surse supuse impozitului pe venitul anual global : " + DaNu(f.FlagAlteS));
  Linie("  Data angajarii : " + f.DataAngajarii +
        "  Data incetarii activitatii : " + f.DataIncetarii);
  Linie(U80);

  Linie(" IV. DEDUCERI PERSONALE");
  Linie(U80);
  Linie("A. Total coeficient  " + std::string(kLuniAntet));
  Linie("  deducere calculat" + Celule(Coeficienti(f.CoefCalc)));
  Linie(U80);
  Linie("B. Situatia proprie pentru deducere ");
  std::string invaliditate = "     ";
  if (f.FlagInv1 == "X") invaliditate += "Invalid.gr.I ";
  if (f.FlagInv2 == "X") {
    if (f.FlagInv1 == "X") invaliditate += "/ ";
    invaliditate += "Invalid.gr.II ";
  }
  Linie(invaliditate);
  Linie("                     " + std::string(kLuniAntet));
  Linie(std::string(19, ' ') + Celule(Coeficienti(f.CoefProp)));
  Linie(U80);
  Linie("C. Date referitoare la persoanele aflate in intretinere");
  if (ded) {
    Dependenti(*ded, nrPersoane);
  } else {
    // Into the shared Ded, as the sheet load fills it.
    deduceri_.Incarca(fisa_.CodCurent, fisa_.Ded, fisa_.NrPersoane);
    Dependenti(fisa_.Ded, fisa_.NrPersoane);
  }

  SectiuneaV(f);
  SectiuneaVI(f);

  Linie("VII. CALCULUL IMPOZITULUI PE VENITURILE DIN SALARII CU IMPUNERE FINALA");
  for (std::size_t i : {10, 11, 12}) RegulaZero(f.Reg[i]);
  Rand("  Venit net :                                               ", f.Reg[10], 20);
  Rand("  Impozit calculat si retinut :                             ", f.Reg[11], 20);
  Linie(U80);
  Rand("VIII. VENIT NET DIN SALARII SCUTIT DE IMPOZITUL PE VENIT :  ", f.Reg[12], 20);
  Linie(U80);
  for (const std::string& l : BlocSemnatura(nume_, functie_)) Linie(l);
}

void ListaFF1::Dependenti(const TabelDed& ded, short nrPersoane) {
  auto marca = [&](int rand, int coloana) { return Majuscule(ded(rand, coloana)) == "X"; };
  for (int i = 1; i <= nrPersoane; ++i) {
    Linie("   " + std::to_string(i) + ". Cod " + ded(i, ded::CodI));
    Linie("   Nume : " + ded(i, ded::NumeI) + "   Prenume : " + ded(i, ded::PrenI));
    const bool sotie = marca(i, ded::Sotie), copil = marca(i, ded::Copil);
    const bool inv1 = marca(i, ded::Inv1), inv2 = marca(i, ded::Inv2);
    std::string calitate;
    if (sotie) calitate = "sot(sotie)";
    if (copil) calitate += sotie ? "/copil" : "copil";
    if (marca(i, ded::Alta)) calitate += sotie || copil ? "/alta" : "alta";
    std::string situatie = "     ";
    if (inv1) situatie += "Invalid.gr.I ";
    if (inv2) situatie += inv1 ? "/ Invalid.gr.II " : "Invalid.gr.II ";
    if (marca(i, ded::Inv3)) situatie += inv1 || inv2 ? "/ Alte situatii " : "Alte situatii ";
    Linie("   Calitatea : " + calitate + "    " + situatie);
    Linie("   Coeficienti       " + std::string(kLuniAntet));
    std::array<std::string, 12> coef;
    for (int luna = 0; luna < 12; ++luna) {
      std::string& t = coef[static_cast<std::size_t>(luna)];
      t = ZecimalCoeficient(ded(i, ded::CoefI + luna));
      if (EsteZero(t)) t.clear();
    }
    Linie("   de deducere     " + Celule(coef));
    Linie("");
  }
}

void ListaFF1::SectiuneaV(FisaFF1& f) {
  Linie(U80);
  Linie("  V. CALCULUL IMPOZITULUI PE VENITURILE DIN SALARII");
  Linie(U80);
  Linie("A.  Luna                       Venit net          Impozit calculat");
  Linie("                                                     si retinut");
  Linie(U80);
  for (std::size_t i = 0; i < 14; ++i) {
    if (i == 13) Linie(U80);
    RegulaZero(f.VenitN[i]);
    RegulaZero(f.ImpC[i]);
    std::string venit = FormatSuma(f.VenitN[i]);
    std::string impozit = FormatSuma(f.ImpC[i]);
    Rand(kLuniV[i], venit, 20, impozit, 25);
  }
  Linie(U80);
  Linie("");
  RegulaZero(f.ChAc);
  RegulaZero(f.Luni);
  Rand("B. Cheltuieli profesionale acordate :                       ", f.ChAc, 20);
  Rand("C. Numar de luni pentru care s-au acordat cheltuieli profesionale : ", f.Luni, 12);
  Linie(U80);
}

void ListaFF1::SectiuneaVI(FisaFF1& f) {
  Linie(" VI. DATE REFERITOARE LA REGULARIZAREA IMPOZITULUI");
  if (parametri_.DedLuna[12] == 0) {
    // Not counted: each next sheet of such a listing starts 11 lines lower
    // on the printed page, as it always has.
    for (std::string_view eticheta : kEticheteScurteVI) Scrie(eticheta);
    return;
  }
  if (DaNu(f.FlagReg) != "DA") {
    for (std::string_view eticheta : kEticheteVI) Linie(eticheta);
    Linie(U80);
    return;
  }
  for (std::size_t i : {2, 4, 6, 8, 9}) RegulaZero(f.Reg[i]);
  auto rand = [&](std::size_t eticheta, std::string& suma) {
    Linie(std::string(kEticheteVI[eticheta]) + DublaFormatare(suma));
  };
  rand(0, f.VenitN[13]);
  rand(1, f.ChAc);
  rand(2, f.Reg[2]);
  // Computed on the amounts as the calls above left them, without sign.
  double recalculat = Valoare(f.VenitN[13]) + Valoare(f.ChAc) - Valoare(f.Reg[2]);
  std::string linia4 = recalculat > 0 ? TextDin(recalculat) : "";
  rand(3, linia4);
  rand(4, f.Reg[4]);
  double baza = recalculat - Valoare(f.Reg[4]);
  std::string linia6 = baza > 0 ? TextDin(baza) : "";
  rand(5, linia6);
  rand(6, f.Reg[6]);
  rand(7, f.ImpC[13]);
  Linie(kEticheteVI[8]);
  rand(9, f.Reg[8]);
  rand(10, f.Reg[9]);
  Linie(U80);
}

}  // namespace fisc
