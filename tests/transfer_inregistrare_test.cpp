#include <gtest/gtest.h>

#include <map>

#include "records/Structura.h"
#include "sheets/RecordAngajator.h"
#include "sheets/RecordDed.h"
#include "sheets/RecordFF1.h"
#include "sheets/RecordFF2.h"
#include "transfer/Inregistrare.h"
#include "transfer/StructuriDbf.h"

namespace fisc {
namespace {

const FisierDbf& Fisier(std::string_view prefix) {
  for (const FisierDbf& f : FisiereDbf())
    if (f.prefix == prefix) return f;
  throw std::logic_error("no such file");
}

// Each field of the layout, by its dBase name, against the value the
// program's own writer put at that place: a field out of place or a name
// mixed up shows here.
void EsteCaScriitorul(const FisierDbf& fisier, const std::string& linie,
                      const std::map<std::string, std::string>& asteptat) {
  std::vector<std::string> valori;
  ASSERT_TRUE(CitesteInregistrare(fisier, linie, valori)) << linie;
  std::size_t stocate = 0;
  for (std::size_t i = 0; i < fisier.campuri.size(); ++i) {
    const CampDbf& camp = fisier.campuri[i];
    if (!camp.Stocat()) {
      EXPECT_EQ(valori[i], "");
      continue;
    }
    ++stocate;
    auto it = asteptat.find(camp.nume);
    ASSERT_NE(it, asteptat.end()) << camp.nume;
    EXPECT_EQ(valori[i], it->second) << camp.nume;
  }
  EXPECT_EQ(stocate, asteptat.size());
  EXPECT_EQ(ScrieInregistrare(fisier, valori), linie);
}

std::string Doua(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

void Antet(AntetFisa& a, std::map<std::string, std::string>& m) {
  a = {"1700101123456",
       "POPESCU",
       "ION",
       {"IASI", "PACII", "1A", "700001", "B", "C", "4", "17", ""},
       "IASI"};
  m["CODS"] = a.CodS;
  m["NUMES"] = a.NumeS;
  m["PRENS"] = a.PrenS;
  m["JUDET"] = a.JudS;
  const char* adresa[] = {"LOCALIT", "STRADA", "NUMAR", "CODPOSTAL", "BLOC",
                          "SCARA",   "ETAJ",   "APART", "SECTOR"};
  for (std::size_t i = 0; i < 9; ++i) m[adresa[i]] = a.AdrS[i];
}

TEST(TransferInregistrare, Ff1FieldsStandWhereTheSheetWriterPutsThem) {
  FisaFF1 f;
  std::map<std::string, std::string> m;
  Antet(f.Antet, m);
  f.FlagRectif = "X", f.FlagReg = "", f.FlagDedu = "X", f.FlagAlteS = "", f.FlagInv1 = "X";
  f.FlagInv2 = "";
  m["RECTIF"] = "X", m["REGULAR"] = "", m["FARADOM"] = "X", m["ALTESURSE"] = "", m["INVGR1"] = "X";
  m["INVGR2"] = "";
  f.DataAngajarii = m["DATAANG"] = "20020301";
  f.DataIncetarii = m["DATAINC"] = "20021130";
  for (int i = 0; i < 12; ++i) {
    f.CoefCalc[i] = m["COEFCALC" + Doua(i + 1)] = std::to_string(i + 1) + ".5";
    f.CoefProp[i] = m["COEFPROP" + Doua(i + 1)] = std::to_string(i + 20);
  }
  for (int i = 0; i < 14; ++i) {
    std::string luna = i < 12 ? Doua(i + 1) : i == 12 ? "PV" : "TOT";
    f.VenitN[i] = m["VENITN" + luna] = std::to_string(1000 + i);
    f.ImpC[i] = m["IMPC" + luna] = std::to_string(2000 + i);
  }
  f.Luni = m["LUNICHELT"] = "9";
  f.ChAc = m["CHELTACORD"] = "3001";
  const std::map<int, std::string> reg = {
      {2, "CHELTCUV"}, {3, "VENITRECAL"}, {4, "DEDUCCUV"},    {5, "VENITBAZA"}, {6, "IMPANUAL"},
      {8, "DIFPLATA"}, {9, "DIFRESTIT"},  {10, "VENITFINAL"}, {11, "IMPFINAL"}, {12, "VENITSCUT"}};
  for (const auto& [i, nume] : reg) f.Reg[i] = m[nume] = std::to_string(4000 + i);
  EsteCaScriitorul(Fisier("FF1"), RecordFF1(f), m);
}

TEST(TransferInregistrare, Ff2FieldsStandWhereTheSheetWriterPutsThem) {
  FisaFF2 f;
  std::map<std::string, std::string> m;
  Antet(f.Antet, m);
  f.FlagRectif = m["RECTIF"] = "X";
  for (int i = 0; i < 8; ++i) f.TAS[i] = m["AS" + std::to_string(i + 1)] = i == 5 ? "X" : "";
  for (int i = 0; i < 13; ++i) {
    std::string luna = i < 12 ? Doua(i + 1) : "TOT";
    f.VenitCS[i] = m["VENITCS" + luna] = std::to_string(1000 + i);
    f.ImpS[i] = m["IMPS" + luna] = i == 4 ? "0" : std::to_string(2000 + i);
  }
  EsteCaScriitorul(Fisier("FF2"), RecordFF2(f), m);
}

TEST(TransferInregistrare, DependantFieldsStandWhereTheSheetWriterPutsThem) {
  TabelDed t;
  std::map<std::string, std::string> m = {{"CODS", "1700101123456"}};
  t(1, ded::CodI) = m["CODI"] = "5020303123451";
  t(1, ded::NumeI) = m["NUMEI"] = "POPESCU";
  t(1, ded::PrenI) = m["PRENI"] = "ANA, MARIA";
  const char* marci[] = {"SOTIE", "COPIL", "ALTA", "INVGR1", "INVGR2"};
  for (int c = ded::Sotie; c <= ded::Inv2; ++c)
    t(1, c) = m[marci[c - ded::Sotie]] = c % 2 ? "" : "X";
  m["ALTESIT"] = "";
  for (int i = 0; i < 12; ++i)
    t(1, ded::CoefI + i) = m["COEFI" + Doua(i + 1)] = i < 3 ? "" : "0." + std::to_string(i - 2);
  EsteCaScriitorul(Fisier("Ded"), RecordDed(m["CODS"], t, 1), m);
}

TEST(TransferInregistrare, EmployerFieldsStandWhereTheEmployerWriterPutsThem) {
  RecordAngajator r{"1234567890128",
                    "2",
                    "",
                    "IONESCU",
                    "MARIA",
                    " ",
                    {"BUCURESTI", "CALEA VICTORIEI", "10", "0", "A1", "2", "3", "14", "3",
                     "0213141516", "OFFICE@EXEMPLU.RO"}};
  std::map<std::string, std::string> m = {
      {"CODP", r.CodP},         {"TIPANG", "2"},       {"DENP", ""},
      {"NUMEP", r.NumeP},       {"PRENP", r.PrenP},    {"JUDET", " "},
      {"LOCALIT", r.AdrP[0]},   {"STRADA", r.AdrP[1]}, {"NUMAR", r.AdrP[2]},
      {"CODPOSTAL", r.AdrP[3]}, {"BLOC", r.AdrP[4]},   {"SCARA", r.AdrP[5]},
      {"ETAJ", r.AdrP[6]},      {"APART", r.AdrP[7]},  {"SECTOR", r.AdrP[8]},
      {"TELEFON", r.AdrP[9]},   {"EMAIL", r.AdrP[10]}};
  EsteCaScriitorul(Fisier("Rep"), ScrieAngajator(r), m);
}

TEST(TransferInregistrare, EveryTableHasTheFieldsOfItsTemplate) {
  for (const FisierDbf& f : FisiereDbf()) {
    std::vector<std::string> goale(f.campuri.size());
    EXPECT_TRUE(StructuraRecord(ScrieInregistrare(f, goale), f.sablon)) << f.prefix;
    for (const CampDbf& c : f.campuri) EXPECT_LE(c.nume.size(), 10u) << c.nume;
  }
}

TEST(TransferInregistrare, ALineOfAnotherShapeIsRefused) {
  const FisierDbf& ded = Fisier("Ded");
  std::vector<std::string> valori;
  const std::string buna = "1,2,#N#,#P#,##,##,##,##,##,##,,,,,,,,,,,,1";
  EXPECT_TRUE(CitesteInregistrare(ded, buna, valori));
  EXPECT_EQ(valori.back(), "1");
  EXPECT_FALSE(CitesteInregistrare(ded, buna + ",", valori));
  EXPECT_FALSE(CitesteInregistrare(ded, "1,2,#N#,#P#,##,##", valori));
  EXPECT_FALSE(CitesteInregistrare(ded, "", valori));
  // A "#" inside a name spoils the record, as it does for every reader.
  EXPECT_FALSE(CitesteInregistrare(ded, "1,2,#N#X#,#P#,##,##,##,##,##,##,,,,,,,,,,,,", valori));
}

}  // namespace
}  // namespace fisc
