#include "listings/Tabel5.h"

#include <array>

#include "listings/Cadru.h"
#include "listings/Randuri.h"
#include "platform/Files.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordFF1.h"
#include "sheets/Sortare.h"

namespace fisc {

namespace {

constexpr std::string_view kFisier = "tab5.txt";
const std::string kLinie(131, '_');

// The wide lines of the table stand whole, as they print.
// clang-format off
constexpr std::string_view kCap1 =
    " Nr.   Cod angajat       Nume ,prenume                          Venit baza de      Impozit      Impozit       Impozit    Impozit de";
constexpr std::string_view kCap2 =
    "crt.                                                            calcul anual        anual       calculat      ramas de    restituit";
constexpr std::string_view kCap3 =
    "                                                                                               si retinut     plata";
constexpr std::string_view kColoane =
    "  1          2                   3                                    4               5             6           7=5-6       8=6-5  ";
constexpr std::string_view kDeclaratie =
    "   Sub sanctiunile aplicate faptei de fals in acte publice, declar ca datele din aceste fise fiscale sunt";
// clang-format on

void ScrieCap(Files& files, LineWriter& out, StareListare& s, const std::string& an) {
  out.Line(std::string(40, ' ') + "S I T U A T I E   C E N T R A L I Z A T O A R E");
  out.Line("");
  out.Line(std::string(38, ' ') + "fise fiscale 1 regularizate  ( cap.VI ) pentru anul " + an);
  for (int i = 0; i < 3; ++i) out.Line("");
  DateAngajator(files, out, s.LiniePagina);
  out.Line(kLinie);
  out.Line(kCap1);
  out.Line(kCap2);
  out.Line(kCap3);
  out.Line(kLinie);
  out.Line(kColoane);
  out.Line(kLinie);
}

// A zero amount is an empty cell, as on the sheet.
std::string_view FaraZero(std::string_view camp) { return Valoare(camp) == 0 ? "" : camp; }

}  // namespace

bool ScrieTabel5(Files& files, Control& lista, StareListare& s, std::string& codCurent,
                 const std::string& anFiscal) {
  if (!files.Exists(fisier::Ff1)) return false;
  files.DeleteIfExists(fisier::Ff1Sort);
  SorteazaAlfabetic(files, lista, fisier::Ff1, fisier::Ff1Sort);

  s.CondListare = "R";
  files.DeleteIfExists(kFisier);
  LineWriter out = files.Append(kFisier);
  ScrieCap(files, out, s, anFiscal);
  s.FisierSursa = "Ff1_sort.txt";
  s.FisierDeListat = listare::Ff1R;
  FiltruFise(files, s, codCurent);

  std::array<double, 5> totaluri{};
  long long nr = 0;
  {
    LineReader in = files.Read(s.FisierDeListat);
    std::string linie;
    while (in.Next(linie)) {
      nr += 1;
      FisaFF1 f = CitesteFF1(linie);
      codCurent = f.Antet.CodS;
      std::string nume = f.Antet.NumeS + " " + f.Antet.PrenS;
      std::string rand =
          PeDreapta(std::to_string(nr), 5) + " " + f.Antet.CodS + " " + Taiat(nume, 40) + " ";
      const std::array<std::string_view, 5> coloane = {f.Reg[5], f.Reg[6], f.ImpC[13], f.Reg[8],
                                                       f.Reg[9]};
      for (std::size_t i = 0; i < coloane.size(); ++i) {
        std::string_view valoare = FaraZero(coloane[i]);
        totaluri[i] += ValoareSuma(valoare);
        rand += AliniazaDreapta(valoare, 14);
      }
      out.Line(rand);
      if (nume.size() > 40) out.Line(std::string(20, ' ') + nume.substr(40));
    }
  }

  out.Line(kLinie);
  std::string total = "      TOTAL" + std::string(50, ' ');
  for (double t : totaluri) total += AliniazaDreapta(TextSuma(t), 14);
  out.Line(total);
  out.Line(kLinie);
  out.Line("");
  out.Line(kDeclaratie);
  out.Line("corecte si complete.");
  out.Line("Nume, prenume  ");
  out.Line("Functia  ");
  out.Line("Semnatura si stampila angajatorului__________________________________________");
  out.Close();
  return true;
}

}  // namespace fisc
