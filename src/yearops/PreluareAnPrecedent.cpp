#include "yearops/PreluareAnPrecedent.h"

#include <vector>

#include "platform/Files.h"
#include "platform/SortNoCase.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "records/Structura.h"
#include "sheets/FisiereSet.h"
#include "tax/Conditii.h"

namespace fisc {

namespace {

// The records of the program of the year before.
constexpr std::string_view SablonFF1Vechi =
    ",##,##,##,##,##,##,,##,##,##,##,,##,##,,,,,,,,,,,,,,,##,##"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,";
constexpr std::string_view SablonFF2Vechi =
    ",##,##,##,##,##,##,,##,##,##,##,,,,##,##,##,##,##,##,##"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,";
constexpr std::string_view SablonDeducereVeche = ",,##,##,##,##,##,##,##,,,,,,,,,,,,";

static_assert(detail::CommasAfterLastText(SablonFF1Vechi) == 88);
static_assert(detail::CommasAfterLastText(SablonFF2Vechi) == 26);
static_assert(detail::CommasAfterLastText(SablonDeducereVeche) == 12);

constexpr std::string_view kWorkDeduceri = "man_ded.txt";

// Fields 2 to 12, the same in every sheet record of both years.
constexpr std::string_view kAntet[] = {delim::Text, delim::Text,     delim::Text,     delim::Text,
                                       delim::Text, delim::TextBare, delim::BareText, delim::Text,
                                       delim::Text, delim::Text,     delim::TextBare};

// The head of a sheet record: fields 1 to 13, up to the comma behind field 13.
// The reader stands on that comma.
std::string_view Antet(CititorCampuri& c, std::string_view linie) {
  c.Camp(delim::BareText);
  for (std::string_view d : kAntet) c.Camp(d);
  std::size_t virgula = linie.find(',', c.Pozitie());
  if (virgula == std::string_view::npos) virgula = linie.size();
  c.Sari(virgula - c.Pozitie());
  return linie.substr(0, virgula);
}

bool AreContinut(const Files& files, std::string_view nume) {
  return files.Exists(nume) && files.Length(nume) > 0;
}

// The code before the first comma.
std::string_view CodLinie(std::string_view linie) { return linie.substr(0, linie.find(',')); }

// The short forms that stand for an empty date.
bool DataGoala(std::string_view data) {
  for (std::string_view gol : {"/  /", ".  .", "-  -", "//", "..", "--"})
    if (data == gol) return true;
  return data.empty();
}

// A sorted pass, as the verification makes one: every line of `sursa`
// converted by `preia` and sorted; `scrie` decides, item after item, which go
// to `tinta`. Counts the lines read and written.
template <class Preia, class Scrie>
void TreceSortat(Files& files, std::string_view sursa, std::string_view tinta, Preia preia,
                 Scrie scrie, long& citite, long& scrise) {
  std::vector<std::string> lista;
  {
    LineReader in = files.Read(sursa);
    std::string linie;
    while (in.Next(linie)) {
      ++citite;
      std::string nou = preia(linie);
      if (!nou.empty()) lista.push_back(std::move(nou));
    }
  }
  SortNoCase(lista);
  files.DeleteIfExists(tinta);
  LineWriter out = files.Write(tinta);
  const std::string* anterior = nullptr;
  for (const std::string& item : lista) {
    if (anterior && !scrie(*anterior, item)) continue;
    out.Line(item);
    ++scrise;
    anterior = &item;
  }
  out.Close();
}

bool CodDiferit(const std::string& anterior, const std::string& item) {
  return Valoare(CodLinie(anterior)) != Valoare(CodLinie(item));
}

// A dependant's line differs by the employee's code or by his own.
bool PersoanaDiferita(const std::string& anterior, const std::string& item) {
  auto codI = [](std::string_view linie) {
    std::size_t virgula = linie.find(',');
    std::size_t sfarsit = linie.find(delim::BareText, virgula + 1);
    return linie.substr(virgula + 1, sfarsit - virgula - 1);
  };
  return CodDiferit(anterior, item) || Valoare(codI(anterior)) != Valoare(codI(item));
}

// One family: a missing source leaves the target absent, an empty one makes
// it empty, any other goes through the sorted pass into the work file, which
// then takes the target's place.
template <class Preia, class Scrie>
void PreiaFamilie(Files& files, std::string_view sursa, std::string_view tinta, Preia preia,
                  Scrie scrie, long& citite, long& scrise) {
  if (!files.Exists(sursa)) {
    files.DeleteIfExists(tinta);
  } else if (files.Length(sursa) == 0) {
    files.Copy(sursa, tinta);
  } else {
    TreceSortat(files, sursa, fisier::Temporar, preia, scrie, citite, scrise);
    files.Replace(fisier::Temporar, tinta);
  }
}

// Keeps the dependants whose employee has an FF1: both files ascend by code,
// so one walk over each does it.
void PastreazaPersoaneleAngajatilor(Files& files, std::string_view deduceri,
                                    std::string_view tinta) {
  auto cheie = [](std::string_view linie) { return Valoare(linie.substr(0, 13)); };
  LineReader ff1 = files.Read(fisier::Ff1);
  LineReader ded = files.Read(deduceri);
  files.DeleteIfExists(tinta);
  LineWriter out = files.Write(tinta);
  std::string linieFF1, linieDed;
  bool areFF1 = ff1.Next(linieFF1);
  double codFF1 = areFF1 ? cheie(linieFF1) : 0;
  while (ded.Next(linieDed)) {
    double cod = cheie(linieDed);
    while (areFF1 && codFF1 < cod) {
      areFF1 = ff1.Next(linieFF1);
      if (areFF1) codFF1 = cheie(linieFF1);
    }
    if (areFF1 && codFF1 == cod) out.Line(linieDed);
  }
  out.Close();
}

}  // namespace

std::string AnPrecedent(std::string_view anFiscal) { return TextDin(Valoare(anFiscal) - 1); }

bool PreluareImposibila(Files& files, std::string_view anFiscal) {
  if (AreContinut(files, NumeAnual(Familie::Rep, AnPrecedent(anFiscal)))) return false;
  for (Familie f : {Familie::Rep, Familie::FF1, Familie::FF2, Familie::Ded})
    if (!files.Exists(NumeLucru(f))) files.CreateEmpty(NumeLucru(f));
  return true;
}

std::string PreiaAngajator(std::string_view linie) {
  if (linie.empty() || !StructuraRecord(linie, SablonAngajatorAnAnterior)) return {};
  std::size_t diez = linie.find(delim::BareText);
  std::string_view cod = linie.substr(0, diez);
  // The old fields 2 and 3 have no place in the new record.
  std::size_t rest = diez + delim::BareText.size();
  for (int camp = 0; camp < 2; ++camp) rest = linie.find(delim::Text, rest) + delim::Text.size();
  std::string nou(cod);
  nou += cod.size() == 13 ? ",2,#" : ",1,#";
  nou += linie.substr(rest);
  nou += ",##,##";
  return nou;
}

std::string PreiaFF2(std::string_view linie) {
  if (linie.empty() || !StructuraRecord(linie, SablonFF2Vechi)) return {};
  CititorCampuri c(linie);
  std::string nou(Antet(c, linie));
  nou += ",##,##,##,##,##,##,##,##,##,";
  nou.append(25, ',');
  return nou;
}

std::string PreiaFF1(std::string_view linie) {
  if (linie.empty() || !StructuraRecord(linie, SablonFF1Vechi)) return {};
  CititorCampuri c(linie);
  std::string nou(Antet(c, linie));
  c.Sari(delim::BareText.size());
  c.Camp(delim::Text);
  c.Camp(delim::TextBare);
  c.Camp(delim::Bare);  // the start date
  std::string_view sfarsit = c.Camp(delim::Bare);
  // Only one who was still employed on the last day of a year is taken over;
  // the year of that day isn't looked at.
  if (!DataGoala(sfarsit) && !sfarsit.starts_with("31/12")) return {};
  nou += ",##,##,##,##,##,##,##,,,";
  for (int i = 0; i < 24; ++i) nou += "1,";
  nou.append(39, ',');
  return nou;
}

std::string PreiaDeducere(std::string_view linie, std::string_view anFiscal) {
  if (linie.empty() || !StructuraRecord(linie, SablonDeducereVeche)) return {};
  CititorCampuri c(linie);
  c.Camp(delim::Bare);
  std::string_view codI = c.Camp(delim::BareText);
  c.Camp(delim::Text);  // NumeI
  c.Camp(delim::Text);  // PrenI
  std::string nou(linie.substr(0, c.Pozitie() - delim::Text.size()));
  std::string sotie = c.Marca(delim::Text);
  std::string copil = c.Marca(delim::Text);
  std::string alta = c.Marca(delim::Text);
  std::string inv1 = c.Marca(delim::Text);
  std::string inv2 = c.Marca(delim::TextBare);
  if (copil == "X") {
    // A child who came of age during the year counts as another person too.
    int varsta = Varsta(codI, anFiscal);
    if (varsta > 18)
      nou += "#,##,##,#X#,";
    else if (varsta == 18)
      nou += "#,##,#X#,#X#,";
    else
      nou += "#,##,#X#,##,";
  } else {
    nou += "#,#" + sotie + "#,#" + copil + "#,#" + alta + "#,";
  }
  nou += "#" + inv1 + "#,#" + inv2 + "#,##";
  std::string_view coef = inv2 == "X" ? ",1" : inv1 == "X" ? ",1.5" : ",0.5";
  for (int i = 0; i < 12; ++i) nou += coef;
  return nou;
}

ContoarePreluare PreiaAnPrecedent(Files& files, std::string_view anFiscal) {
  ContoarePreluare n;
  std::string an = AnPrecedent(anFiscal);

  std::string angajator;
  std::string sursaRep = NumeAnual(Familie::Rep, an);
  if (AreContinut(files, sursaRep)) angajator = PreiaAngajator(files.Read(sursaRep).Line());
  files.DeleteIfExists(fisier::Temporar);
  {
    LineWriter out = files.Write(fisier::Temporar);
    if (!angajator.empty()) out.Line(angajator);
    out.Close();
  }
  files.Replace(fisier::Temporar, fisier::Repfisc);

  PreiaFamilie(files, NumeAnual(Familie::FF2, an), fisier::Ff2, PreiaFF2, CodDiferit, n.FF2Citite,
               n.FF2Scrise);
  PreiaFamilie(files, NumeAnual(Familie::FF1, an), fisier::Ff1, PreiaFF1, CodDiferit, n.FF1Citite,
               n.FF1Scrise);

  std::string sursaDed = NumeAnual(Familie::Ded, an);
  auto preiaDed = [&](std::string_view linie) { return PreiaDeducere(linie, anFiscal); };
  long citite = 0, scrise = 0;
  if (!files.Exists(sursaDed) || files.Length(sursaDed) == 0) {
    PreiaFamilie(files, sursaDed, fisier::Deduceri, preiaDed, PersoanaDiferita, citite, scrise);
  } else {
    TreceSortat(files, sursaDed, fisier::Temporar, preiaDed, PersoanaDiferita, citite, scrise);
    // The dependants of those who weren't taken over go too.
    if (AreContinut(files, fisier::Ff1) && AreContinut(files, fisier::Temporar)) {
      PastreazaPersoaneleAngajatilor(files, fisier::Temporar, kWorkDeduceri);
      files.Replace(kWorkDeduceri, fisier::Deduceri);
      files.Delete(fisier::Temporar);
    } else {
      files.Replace(fisier::Temporar, fisier::Deduceri);
    }
  }
  return n;
}

}  // namespace fisc
