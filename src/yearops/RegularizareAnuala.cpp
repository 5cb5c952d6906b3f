#include "yearops/RegularizareAnuala.h"

#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "tax/Conditii.h"
#include "tax/Lanturi.h"

namespace fisc {

namespace {

// Fields 3 to 13: their delimiters, in order.
constexpr std::string_view kAdresa[] = {
    delim::Text, delim::Text, delim::Text, delim::Text,     delim::TextBare, delim::BareText,
    delim::Text, delim::Text, delim::Text, delim::TextBare, delim::BareText};

// Fields 77 to 83 hold these items of the regularisation.
constexpr std::size_t kRegCalculate[] = {2, 3, 4, 5, 6, 8, 9};

// A stored tail amount: a zero is written as nothing.
std::string_view FaraZero(std::string_view text) {
  return Valoare(text) == 0 ? std::string_view() : text;
}

}  // namespace

void RegularizeazaRecord(std::string_view record, const ParametriAn& p, const TabelImpozit& tabel,
                         std::string& out) {
  CititorCampuri c(record);
  std::string_view cod = c.Camp(delim::BareText);
  std::string_view numeS = c.Camp(delim::Text);
  for (std::string_view d : kAdresa) c.Camp(d);
  c.Camp(delim::Text);  // field 14
  std::size_t inceput15 = c.Pozitie();
  c.Camp(delim::Text);
  std::size_t inceput16 = c.Pozitie();
  std::string flagDedu = NormalizeazaMarca(c.Camp(delim::Text));
  std::string flagAlteS = NormalizeazaMarca(c.Camp(delim::Text));
  c.Camp(delim::Text);      // FlagInv1
  c.Camp(delim::Text);      // FlagInv2
  c.Camp(delim::TextBare);  // field 20
  std::string_view dataAngajarii = c.Camp(delim::Bare);
  std::string_view dataIncetarii = c.Camp(delim::Bare);
  DateRegularizare date;
  for (std::string& coef : date.CoefCalc) coef = c.Camp(delim::Bare);
  for (int i = 0; i < 12; ++i) c.Camp(delim::Bare);  // CoefProp
  for (int i = 0; i < 13; ++i) {
    c.Camp(delim::Bare);
    c.Camp(delim::Bare);
  }
  date.VenitNet = Valoare(c.Camp(delim::Bare));
  date.ImpCTotal = Valoare(c.Camp(delim::Bare));
  date.Luni = Valoare(c.Camp(delim::Bare));
  date.ChAc = Valoare(c.Camp(delim::Bare));
  std::size_t sfarsitChAc = c.Pozitie() - 1;
  for (int i = 0; i < 7; ++i) c.Camp(delim::Bare);  // 77 to 83, computed anew
  std::string_view venitFinal = c.Camp(delim::Bare);
  std::string_view impozitFinal = c.Camp(delim::Bare);
  std::string_view venitScutit = c.Rest();

  SituatieAngajat situatie{dataAngajarii, dataIncetarii, numeS, flagAlteS, flagDedu, cod};
  bool neReg = ConditiiNeindeplinite(situatie, date.CoefCalc, p);

  out.append(record.substr(0, inceput15));
  if (!neReg) out += 'X';
  out += delim::Text;
  out.append(record.substr(inceput16, sfarsitChAc - inceput16));
  if (neReg) {
    out.append(7, ',');
  } else {
    // The record keeps its own Luni: only the computation lowers it.
    Regularizare r = CalculeazaRegularizare(date, p, tabel);
    for (std::size_t i : kRegCalculate) {
      out += ',';
      out += TextDin(r.Reg[i]);
    }
  }
  for (std::string_view camp : {venitFinal, impozitFinal, venitScutit}) {
    out += ',';
    out += FaraZero(camp);
  }
}

RezultatRegularizare RegularizeazaToate(Files& files, const ParametriAn& p,
                                        const TabelImpozit& tabel) {
  if (p.DedLuna[12] == 0) return RezultatRegularizare::FaraDeducereAnuala;
  if (!files.Exists(fisier::Ff1) || files.Length(fisier::Ff1) == 0)
    return RezultatRegularizare::FaraFisier;
  files.DeleteIfExists(fisier::Temporar);
  {
    LineWriter out = files.Write(fisier::Temporar);
    LineReader in = files.Read(fisier::Ff1);
    std::string linie, nou;
    while (in.Next(linie)) {
      nou.clear();
      RegularizeazaRecord(linie, p, tabel, nou);
      out.Line(nou);
    }
    out.Close();
  }
  files.Replace(fisier::Temporar, fisier::Ff1);
  return RezultatRegularizare::Efectuata;
}

}  // namespace fisc
