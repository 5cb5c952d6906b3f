#include "listings/ListaFF2.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include <array>

#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/RecordFF2.h"

namespace fisc {

namespace {

using listare::U80;

constexpr std::array<std::string_view, 13> kLuni = {
    "Ianuarie     1.", "Februarie    2.", "Martie       3.", "Aprilie      4.", "Mai          5.",
    "Iunie        6.", "Iulie        7.", "August       8.", "Septembrie   9.", "Octombrie   10.",
    "Noiembrie   11.", "Decembrie   12.", "Total       13."};

}  // namespace

ListaFF2::ListaFF2(const Files& files, LineWriter& out, const ParametriAn& parametri,
                   StareListare& listare, std::string_view semnatarNume,
                   std::string_view semnatarFunctie)
    : files_(files),
      out_(out),
      parametri_(parametri),
      listare_(listare),
      nume_(Majuscule(semnatarNume)),
      functie_(Majuscule(semnatarFunctie)) {}

void ListaFF2::Linie(std::string_view text) {
  out_.Line(text);
  NumaraLinie(listare_.LiniePagina);
}

void ListaFF2::ListF2(std::string_view linie) {
  listare_.LiniePagina = 0;
  LiniiPagina = 65;
  FisaFF2 f = CitesteFF2(linie);
  Linie(LiniaExemplar(listare_.Exemplar));
  ScrieFisa(f);
  const short c = listare_.LiniePagina;
  if (c >= 1 && c < LiniiPagina)
    for (int k = LiniiPagina - c; k > 0; --k) out_.Line("");
}

void ListaFF2::Imagine(FisaFF2& fisa) {
  out_.Line("(copie pentru angajat)");
  ScrieFisa(fisa);
}

void ListaFF2::ScrieFisa(FisaFF2& f) {
  // The months follow the zero rule of FF1; the total pair stands as it is,
  // so a "0" there prints as "0".
  for (std::size_t i = 0; i < 12; ++i) {
    if (Valoare(f.VenitCS[i]) == 0) f.VenitCS[i].clear();
    if (Valoare(f.ImpS[i]) == 0) f.ImpS[i].clear();
  }
  Linie("");
  Linie("");
  Linie(U80);
  Linie("                        FISA FISCALA 2  pentru anul " + parametri_.AnFiscal);
  Linie("   (pentru venituri din salarii altele decat cele de la functia de baza)");
  Linie(U80);
  Linie("                                                 Fisa fiscala rectificativa : " +
        std::string(f.FlagRectif == "X" ? "DA" : "NU"));
  Linie(U80);
  Linie(" I. DATE DE IDENTIFICARE ANGAJATOR");
  Linie(U80);
  if (!angajator_) angajator_ = CitesteBlocAngajator(files_);
  ScrieBlocAngajator(*angajator_, out_, listare_.LiniePagina);
  Linie(U80);
  Linie(" II. DATE DE IDENTIFICARE ANGAJAT");
  Linie(U80);
  for (const std::string& l : BlocAngajat(f.Antet)) Linie(l);
  Linie(U80);
  Linie("III. CALCULUL IMPOZITULUI PE VENITURILE DIN SALARII, ALTELE DECAT CELE DE LA ");
  std::string tip = "     FUNCTIA DE BAZA        Tip venit : ";
  for (std::size_t i = 0; i < f.TAS.size(); ++i)
    if (Majuscule(f.TAS[i]) == "X") tip += " AS" + std::to_string(i + 1);
  Linie(tip);
  Linie(U80);
  Linie(" Luna                    Venit baza         Impozit calculat");
  Linie("                          de calcul            si retinut");
  Linie(U80);
  for (std::size_t i = 0; i < 13; ++i) {
    if (i == 12) Linie(U80);
    std::string venit = FormatSuma(f.VenitCS[i]);
    std::string impozit = FormatSuma(f.ImpS[i]);
    Linie(std::string(kLuni[i]) + AliniazaDreapta(venit, 20) + AliniazaDreapta(impozit, 25));
  }
  Linie(U80);
  for (const std::string& l : BlocSemnatura(nume_, functie_)) Linie(l);
}

}  // namespace fisc
