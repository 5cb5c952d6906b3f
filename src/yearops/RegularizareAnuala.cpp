#include "yearops/RegularizareAnuala.h"

#include <array>

#include "platform/Failure.h"
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
  // Fields 21 to 86 are bare: one walk finds the commas between them.
  constexpr int kCampuri = 86 - 21 + 1;
  std::array<std::string_view, kCampuri> camp;
  std::size_t inceput = c.Pozitie();
  for (int k = 0; k + 1 < kCampuri; ++k) {
    std::size_t virgula = record.find(',', inceput);
    if (virgula == std::string_view::npos) Fail(err::InvalidCall);
    camp[static_cast<std::size_t>(k)] = record.substr(inceput, virgula - inceput);
    inceput = virgula + 1;
  }
  camp[kCampuri - 1] = record.substr(inceput);
  auto nr = [&](int field) { return camp[static_cast<std::size_t>(field - 21)]; };

  std::string_view dataAngajarii = nr(21), dataIncetarii = nr(22);
  DateRegularizare date;
  for (int i = 0; i < 12; ++i) date.CoefCalc[static_cast<std::size_t>(i)] = nr(23 + i);
  date.VenitNet = Valoare(nr(73));
  date.ImpCTotal = Valoare(nr(74));
  date.Luni = Valoare(nr(75));
  date.ChAc = Valoare(nr(76));
  // The end of ChAc: the comma before field 77.
  std::size_t sfarsitChAc = static_cast<std::size_t>(nr(77).data() - record.data()) - 1;
  std::string_view venitFinal = nr(84), impozitFinal = nr(85), venitScutit = nr(86);

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
