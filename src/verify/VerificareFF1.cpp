// Section 3: the dates of every FF1 sheet decide which sheets stay; each that
// stays is held against what a sheet must be, its regularisation recomputed.
#include <optional>
#include <tuple>

#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordFF1.h"
#include "tax/Conditii.h"
#include "tax/Impozit.h"
#include "tax/Lanturi.h"
#include "verify/Parcurgere.h"
#include "verify/TamponFF1.h"
#include "verify/Verificari.h"

namespace fisc {

namespace {

// A calendar date read day first: day and month of one or two digits, a year
// of up to four; a year of two digits or less counts as this century's or
// the last, as the platform's date reader takes it.
std::optional<std::tuple<int, int, int>> CitesteZiLunaAn(std::string_view text) {
  int parti[3] = {0, 0, 0};
  std::size_t lungimi[3] = {0, 0, 0};
  int k = 0;
  for (char c : text) {
    if (c == '/') {
      if (++k > 2) return std::nullopt;
    } else if (c >= '0' && c <= '9') {
      if (++lungimi[k] > (k == 2 ? 4u : 2u)) return std::nullopt;
      parti[k] = parti[k] * 10 + (c - '0');
    } else {
      return std::nullopt;
    }
  }
  if (k != 2 || lungimi[0] == 0 || lungimi[1] == 0 || lungimi[2] == 0) return std::nullopt;
  int zi = parti[0], luna = parti[1], an = parti[2];
  if (lungimi[2] <= 2) an += an < 30 ? 2000 : 1900;
  if (luna < 1 || luna > 12 || zi < 1) return std::nullopt;
  static constexpr int kZile[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  bool bisect = (an % 4 == 0 && an % 100 != 0) || an % 400 == 0;
  int zile = kZile[luna - 1] + (luna == 2 && bisect ? 1 : 0);
  if (zi > zile) return std::nullopt;
  return std::tuple{an, luna, zi};
}

bool EsteData(std::string_view text) { return CitesteZiLunaAn(text).has_value(); }

std::string Suma(double valoare) { return TextDin(valoare); }

class VerificareFisa {
 public:
  VerificareFisa(ListaErori& lista, const ParametriAn& p, const TabelImpozit& tabel)
      : lista_(lista), p_(p), tabel_(tabel) {}

  // ver_inreg_ff1: every line that the record deserves; the record stays as it is.
  void ver_inreg_ff1(std::string_view record) {
    const FisaFF1 f = CitesteFF1(record);
    cod_ = f.Antet.CodS;
    const int prima = f.DataAngajarii.empty() ? 0 : static_cast<int>(IndexLuna(f.DataAngajarii));
    const int ultima = f.DataIncetarii.empty() ? 11 : static_cast<int>(IndexLuna(f.DataIncetarii));

    bool areCoef2 = false, areCoef15 = false, coefGresit = false;
    for (const std::string& text : f.CoefProp) {
      double c = ValZecimal(text);
      if (c == 2) areCoef2 = true;
      if (c == 1.5) areCoef15 = true;
      if (c != 0 && c != 1 && c != 1.5 && c != 2) coefGresit = true;
    }
    const int nrLuni = LuniCuDeducere(f.CoefCalc);
    double sumaVenit = 0, sumaImpozit = 0;
    for (std::size_t i = 0; i <= 12; ++i) {
      sumaVenit += Valoare(f.VenitN[i]);
      sumaImpozit += Valoare(f.ImpC[i]);
    }

    if (!VerificaCNP(cod_)) lista_.Eroare("CNP " + cod_ + " eronat.");
    const bool inv1 = f.FlagInv1 == "X", inv2 = f.FlagInv2 == "X";
    if (inv1 != areCoef2 || inv2 != areCoef15)
      Eroare(" coef.de deducere pentru situatie proprienecorelati cu marcajul pentru handicap.");
    if (coefGresit) Eroare(" coef.de deducere pentru situatie propriediferiti de 0, 1, 1.5, 2.");

    bool inAfara = false;
    for (int i = 0; i < 12; ++i) {
      auto k = static_cast<std::size_t>(i);
      if ((i < prima || i > ultima) && (Valoare(f.VenitN[k]) != 0 || Valoare(f.ImpC[k]) != 0))
        inAfara = true;
    }
    if (inAfara)
      Eroare(" Venituri si/sau impozite in afara intervalului de activitate (" +
             std::to_string(prima + 1) + "," + std::to_string(ultima + 1) + ").");

    const double venitTotal = Valoare(f.VenitN[13]), impozitTotal = Valoare(f.ImpC[13]);
    if (venitTotal != sumaVenit)
      Eroare(" Total venit net gresit (V.14.1)= " + Suma(venitTotal) + " # " + Suma(sumaVenit) +
             "(cel corect)");
    if (impozitTotal != sumaImpozit)
      Eroare(" Total impozit calculat si retinut gresit (V.14.2)= " + Suma(impozitTotal) + " # " +
             Suma(sumaImpozit) + "(cel corect)");

    double luni = Valoare(f.Luni);
    const bool cuDoiStele = f.Antet.NumeS.find("**") != std::string::npos;
    if (f.FlagDedu.empty() && !PersoanaStraina(cod_)) {
      if (luni < 0) {
        Eroare(" Nr.de luni pentru acord.chelt.prof.negativ.");
        luni = 0;
      }
      if (!cuDoiStele && luni > nrLuni) {
        Eroare(" Nr.luni pentru acord.chelt.prof.=" + Suma(luni) +
               ", mai mare decat nr.de luni cu drept de deducere=" + std::to_string(nrLuni));
        luni = nrLuni;
      }
    }

    if (p_.DedLuna[12] != 0) Regularizarea(f, luni, sumaVenit, impozitTotal);

    const double reg11 = Valoare(f.Reg[11]), final = ImpozitFinal(Valoare(f.Reg[10]), p_);
    if (reg11 != final)
      Eroare(" Impozit final (VII.) gresit = " + Suma(reg11) + " # " + Suma(final) +
             " (cel corect).");
  }

 private:
  // The marks of the regularisation against its data, and the items of a
  // sheet that claims one recomputed by the chain of the FF1 screen.
  void Regularizarea(const FisaFF1& f, double luni, double sumaVenit, double impCTotal) {
    SituatieAngajat s{f.DataAngajarii, f.DataIncetarii, f.Antet.NumeS,
                      f.FlagAlteS,     f.FlagDedu,      cod_};
    const bool conditii = !ConditiiNeindeplinite(s, f.CoefCalc, p_);
    double reg[13];
    for (std::size_t k = 2; k <= 12; ++k) reg[k] = Valoare(f.Reg[k]);
    const bool areDate = reg[4] != 0 || reg[5] != 0 || reg[6] != 0 || reg[8] != 0 || reg[9] != 0;
    const bool faraFinal = reg[10] == 0 && reg[12] == 0;
    const bool marcaj = f.FlagReg == "X";

    if (faraFinal && marcaj && conditii && !areDate)
      Eroare(
          " are conditiile de regularizare indeplinite, are marcajul 'X' si nu are date de "
          "regularizare.");
    if (marcaj && !conditii)
      Eroare(" nu are conditiile de regularizare indeplinite dar are marcajul 'X'.");
    if (!marcaj && conditii && areDate)
      Eroare(
          " are conditiile de regularizare indeplinite, are date de regularizare dar nu are "
          "marcajul 'X'.");
    if (!marcaj && !conditii && areDate)
      Eroare(
          " nu are conditiile de regularizare indeplinite,nu are marcajul 'X' dar are date de "
          "regularizare .");
    if (faraFinal && !marcaj && conditii && !areDate)
      Eroare(
          " are conditiile de regularizare indeplinite, nu are marcajul 'X' si nu are date de "
          "regularizare.");
    if (!(conditii && marcaj && areDate)) return;

    const double cuvenite = CheltuieliCuvenite(luni, p_);
    if (cuvenite != reg[2])
      Eroare(" Chelt.prof.cuvenite (VI.3.) gresite = " + Suma(reg[2]) + " # " + Suma(cuvenite) +
             " (cele corecte). ");
    double net = sumaVenit + Valoare(f.ChAc) - cuvenite;
    if (net < 0) net = 0;
    if (net != reg[3] && reg[3] >= 0)
      Eroare(" Venit net recalculat (VI.4.) gresit = " + Suma(reg[3]) + " # " + Suma(net) +
             " (cel corect). ");
    const double deduceri = DeduceriCuvenite(f.CoefCalc, p_);
    // A sheet whose deductions exceed its income may declare the income itself.
    const bool plafonate =
        deduceri > reg[3] && (reg[4] == Valoare(f.VenitN[13]) || reg[4] == reg[3]);
    if (deduceri != reg[4] && !plafonate)
      Eroare(" Deduceri personale cuvenite (VI.5.) gresite = " + Suma(reg[4]) + " # " +
             Suma(deduceri) + " (cele corecte). ");
    double baza = net - deduceri;
    if (baza < 0) baza = 0;
    if (baza != reg[5] && reg[5] >= 0)
      Eroare(" Venit anual baza de calcul (VI.6.) gresit = " + Suma(reg[5]) + " # " + Suma(baza) +
             " (cel corect). ");
    double impozit = 0;
    if (baza > 0) {
      short anual = 13;
      impozit = ImpozitLuna(anual, baza, tabel_);
    }
    if (impozit != reg[6])
      Eroare(" Impozit anual (VI.7.) gresit = " + Suma(reg[6]) + " # " + Suma(impozit) +
             " (cel corect).");
    double plata = 0, restituit = 0;
    if (impCTotal >= reg[6])
      restituit = impCTotal - reg[6];
    else
      plata = reg[6] - impCTotal;
    if (plata != reg[8])
      Eroare(" Diferenta impozit de plata (VI.9.) gresita = " + Suma(reg[8]) + " # " + Suma(plata) +
             " (cea corecta).");
    if (restituit != reg[9])
      Eroare(" Diferenta impozit de restituit (VI.10.) gresita = " + Suma(reg[9]) + " # " +
             Suma(restituit) + " (cea corecta).");
  }

  // A line of this sheet: its code, then the text, which starts with a blank.
  void Eroare(const std::string& dupaCod) { lista_.Eroare(cod_ + dupaCod); }

  ListaErori& lista_;
  const ParametriAn& p_;
  const TabelImpozit& tabel_;
  std::string cod_;
};

}  // namespace

bool ver_ff1(Files& files, ListaErori& lista, const ParametriAn& p, const TabelImpozit& tabel) {
  if (FisierGol(files, fisier::Ff1) || FisierGol(files, fisier::Ff1Sort)) return false;
  const std::string& an = p.AnFiscal;
  const double anFiscal = Valoare(an);
  VerificareFisa verificare(lista, p, tabel);

  LineWriter out = files.Write(fisier::Temporar);
  LineReader in = files.Read(fisier::Ff1Sort);
  std::string cheiePrec, codAngajat, buffer;
  std::string sfarsitPrec = "31/12/" + TextDin(anFiscal - 1);
  bool eroareData = false;
  std::string linie;
  while (in.Next(linie)) {
    Parcurgere taietura(linie);
    std::string cod(taietura.Pana(","));
    std::string start(Trim(taietura.Pana(",")));
    std::string sfarsit(Trim(taietura.Pana(",")));
    std::string_view record = taietura.Rest();
    eroareData = false;
    auto eroare = [&](const std::string& text) {
      lista.Eroare(text);
      eroareData = true;
    };
    for (std::string* data : {&start, &sfarsit})
      if (*data == "/  /" || *data == "//") data->clear();

    if (!start.empty()) {
      if (!EsteData(start)) eroare(cod + " data angajarii " + start + " eronata.");
      if (Valoare(Dreapta(start, 4)) != anFiscal)
        eroare(cod + " an fiscal eronat in data angajarii " + start + " (an fiscal corect=" + an +
               ").");
    }
    if (!sfarsit.empty()) {
      if (!EsteData(sfarsit)) eroare(cod + " data lichidarii " + sfarsit + " eronata.");
      if (Valoare(Dreapta(sfarsit, 4)) != anFiscal)
        eroare(cod + " an fiscal eronat in data lichidarii " + sfarsit +
               " (an fiscal corect=" + an + ").");
    }
    if (start.empty()) start = "01/01/" + an;
    if (sfarsit.empty()) sfarsit = "31/12/" + an;
    auto zi1 = CitesteZiLunaAn(start), zi2 = CitesteZiLunaAn(sfarsit);
    if (zi1 && zi2 && *zi1 > *zi2)
      eroare(cod + " data lichidarii (" + sfarsit + ") anterioara datei angajarii (" + start +
             ").");
    if (eroareData) continue;

    if (cheiePrec.empty()) codAngajat = cod;
    std::string cheie = cod + start;
    const std::string suprapuse =
        cod + " are mai multe fise cu intervale suprapuse (se pastraza o singura inregistrare)";
    if (cheie == cheiePrec) {
      lista.Eroare(suprapuse);
      continue;
    }
    if (cod == codAngajat) {
      // The program compares whether each text is a date, not the two dates:
      // a sheet of the same employee goes on unless the end before it isn't one.
      if (!EsteData(sfarsitPrec)) {
        lista.Eroare(suprapuse);
        continue;
      }
      verificare.ver_inreg_ff1(record);
      if (cheiePrec.empty())
        buffer = umple_buff_ff1(record, start, sfarsit);
      else
        aduna_buff_ff1(record, buffer, start, sfarsit, sfarsitPrec);
    } else {
      verificare.ver_inreg_ff1(record);
      out.Line(buffer);
      buffer = umple_buff_ff1(record, start, sfarsit);
      codAngajat = cod;
    }
    cheiePrec = std::move(cheie);
    sfarsitPrec = sfarsit;
  }
  out.Line(buffer);
  out.Close();
  files.Replace(fisier::Temporar, fisier::Ff1);
  return eroareData;
}

}  // namespace fisc
