#include <gtest/gtest.h>

#include "support/TestSupport.h"

#include "platform/Failure.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordDed.h"
#include "sheets/RecordFF1.h"
#include "sheets/RecordFF2.h"

namespace fisc {
namespace {

// The row of "#" and "," of a record whose text fields hold no comma.
std::string Structura(std::string_view record) {
  std::string s;
  for (char c : record)
    if (c == '#' || c == ',') s += c;
  return s;
}

const std::string kTemplateFF1 =
    ",##,##,##,##,##,##,,##,##,##,##,,##,##,##,##,##,##,##" + std::string(66, ',');
const std::string kTemplateFF2 =
    ",##,##,##,##,##,##,,##,##,##,##,,##,##,##,##,##,##,##,##,##" + std::string(26, ',');
const std::string kTemplateDed = ",,##,##,##,##,##,##,##,##,,,,,,,,,,,,";

AntetFisa Antet() {
  AntetFisa a;
  a.CodS = "1800101123456";
  a.NumeS = "POPESCU";
  a.PrenS = "ION";
  a.AdrS = {"BUCURESTI", "LIPSCANI", "5", "0", "B1", "", "2", "12", "3"};
  a.JudS = " ";
  return a;
}
const std::string kAntet =
    "1800101123456,#POPESCU#,#ION#,#BUCURESTI#,# #,#LIPSCANI#,#5#,0,#B1#,##,#2#,#12#,3,#";

FisaFF1 Ff1CuZerouri() {
  FisaFF1 f;
  f.Antet = Antet();
  f.FlagRectif = " x ";
  f.FlagAlteS = "X";
  f.FlagInv2 = "x";
  f.DataAngajarii = "01/03/2002";
  f.CoefCalc = {"0.0", "0", "1.5", "1.5", "", "", "", "", "", "", "", "2"};
  f.CoefProp = {"0,0", "", "1", "1"};
  f.VenitN[0] = "0";
  f.ImpC[0] = " 0";
  f.VenitN[2] = f.VenitN[13] = "1500000";
  f.ImpC[2] = f.ImpC[13] = "210000";
  f.Luni = "0";
  f.Reg[2] = "abc";
  f.Reg[3] = "1500000";
  f.Reg[12] = "7";
  return f;
}

TEST(RecordFF1, WritesZerosAsEmptyFieldsAndMarksAsX) {
  const std::string marciSiDate = "X#,##,##,#X#,##,#X#,##,01/03/2002,";  // fields 14-22
  const std::string coeficienti = ",,,1.5,1.5,,,,,,,,2,,,1,1,,,,,,,,";   // fields 23-46
  const std::string perechi = ",,,,,1500000,210000" + std::string(20, ',') + ",1500000,210000";
  const std::string regularizare = ",,,,1500000,,,,,,,,7";  // Luni, ChAc, Reg
  const std::string expected = kAntet + marciSiDate + coeficienti + perechi + regularizare;
  std::string record = RecordFF1(Ff1CuZerouri());
  EXPECT_EQ(record, expected);
  EXPECT_EQ(Structura(record), kTemplateFF1);
}

TEST(RecordFF1, KeepsTheHeadAsTypedAndAForeignPersonHasNoCoefficients) {
  FisaFF1 f;
  f.Antet = Antet();
  f.Antet.CodS = "9800101123456";
  f.Antet.AdrS[8] = "0";  // a blank sector in BUCURESTI
  f.VenitN[5] = "-100";
  std::string record = RecordFF1(f);
  EXPECT_EQ(Structura(record), kTemplateFF1);
  FisaFF1 citit = CitesteFF1(record);
  EXPECT_EQ(citit.Antet.AdrS[3], "0");
  EXPECT_EQ(citit.Antet.AdrS[8], "0");
  for (int i = 0; i < 12; ++i) EXPECT_EQ(citit.CoefCalc[i] + citit.CoefProp[i], "");
  EXPECT_EQ(citit.VenitN[5], "-100");
}

TEST(RecordFF1, ReadsBackEveryFieldWithMarksNormalised) {
  FisaFF1 f = Ff1CuZerouri();
  std::string record = RecordFF1(f);
  FisaFF1 citit = CitesteFF1(record);
  EXPECT_EQ(citit.Antet.JudS, " ");
  EXPECT_EQ(citit.FlagRectif, "X");
  EXPECT_EQ(citit.FlagInv2, "X");
  EXPECT_EQ(citit.FlagReg, "");
  EXPECT_EQ(citit.CoefCalc[11], "2");
  EXPECT_EQ(citit.ImpC[13], "210000");
  EXPECT_EQ(citit.Reg[3], "1500000");
  EXPECT_EQ(citit.Reg[12], "7");
  EXPECT_EQ(RecordFF1(citit), record);
}

TEST(RecordFF1, LoadTakesTheHeadThenTheBodyTheScreenKeeps) {
  FisaFF1 f = Ff1CuZerouri();
  f.DataAngajarii = "01.03-2002";
  f.Reg[5] = "99";
  f.Reg[10] = "10";
  f.Reg[11] = "11";
  std::string record = RecordFF1(f);

  FisaFF1 ecran;
  ecran.Reg[5] = "computed";
  std::size_t pozitie = CitesteAntetFF1(record, ecran);
  EXPECT_EQ(record.substr(pozitie, 4), ",,1.");  // field 23 starts here
  EXPECT_EQ(ecran.DataAngajarii, "01/03/2002");
  EXPECT_EQ(ecran.FlagAlteS, "X");

  CitesteCorpFF1(record, pozitie, ecran);
  EXPECT_EQ(ecran.CoefCalc[0], "0");  // an empty coefficient shows 0
  EXPECT_EQ(ecran.CoefCalc[2], "1.5");
  EXPECT_EQ(ecran.VenitN[0], "");
  EXPECT_EQ(ecran.VenitN[13], "1500000");
  EXPECT_EQ(ecran.Reg[5], "computed");  // stepped over
  EXPECT_EQ(ecran.Reg[10], "10");
  EXPECT_EQ(ecran.Reg[11], "11");
  EXPECT_EQ(ecran.Reg[12], "7");
}

FisaFF2 Ff2() {
  FisaFF2 f;
  f.Antet = Antet();
  f.TAS[1] = " x ";
  f.TAS[7] = "X";
  f.VenitCS[0] = "1500000";
  f.ImpS[0] = "0";
  f.VenitCS[12] = "1500000";
  f.ImpS[12] = "0";
  return f;
}

TEST(RecordFF2, WritesAmountsAsTheyStand) {
  std::string record = RecordFF2(Ff2());
  EXPECT_EQ(record,
            kAntet + "#,##,#X#,##,##,##,##,##,#X#,1500000,0" + std::string(22, ',') + ",1500000,0");
  EXPECT_EQ(Structura(record), kTemplateFF2);
}

TEST(RecordFF2, LoadReadsTheMarksThenPairsFromTheFirstAmount) {
  for (const char* ianuarie : {"1500000", ""}) {
    FisaFF2 f = Ff2();
    f.FlagRectif = "X";
    f.VenitCS[0] = ianuarie;
    f.ImpS[11] = "11";
    std::string record = RecordFF2(f);

    FisaFF2 ecran;
    std::size_t pozitie = CitesteAntetFF2(record, ecran);
    EXPECT_EQ(ecran.FlagRectif, "X");
    CitesteCorpFF2(record, pozitie, ecran);
    EXPECT_EQ(ecran.TAS[1], "X");
    EXPECT_EQ(ecran.TAS[7], "X");
    EXPECT_EQ(ecran.VenitCS[0], ianuarie);
    EXPECT_EQ(ecran.ImpS[0], "0");
    EXPECT_EQ(ecran.ImpS[11], "11");
    EXPECT_EQ(ecran.VenitCS[12], "1500000");
    EXPECT_EQ(ecran.ImpS[12], "0");

    FisaFF2 citit = CitesteFF2(record);
    EXPECT_EQ(RecordFF2(citit), record);
  }
}

TEST(RecordDed, WritesColumnNineEmptyAndZeroCoefficientsAsNothing) {
  TabelDed t;
  t(1, ded::CodI) = "2950101123456";
  t(1, ded::NumeI) = "POPESCU";
  t(1, ded::PrenI) = "ANA";
  t(1, ded::Copil) = " x ";
  t(1, ded::Inv3) = "X";
  t(1, ded::CoefI + 0) = "0.0";
  t(1, ded::CoefI + 1) = "0.5";
  t(1, ded::CoefI + 11) = "1";
  std::string record = RecordDed("1800101123456", t, 1);
  EXPECT_EQ(record,
            "1800101123456,2950101123456,#POPESCU#,#ANA#,##,#X#,##,##,##,##,,0.5,,,,,,,,,,1");
  EXPECT_EQ(Structura(record), kTemplateDed);
}

TEST(RecordDed, ReadsMarksNormalisedAndTheLastCoefficientToTheEnd) {
  TabelDed t;
  std::string_view cod = CitesteRandDed(
      "1800101123456,2950101123456,#Popescu #,#ANA#,# x#,##,##,##,##,#x #,,0.5,,,,,,,,,,1.5", t, 3);
  EXPECT_EQ(cod, "1800101123456");
  EXPECT_EQ(t(3, ded::NumeI), "Popescu ");
  EXPECT_EQ(t(3, ded::Sotie), "X");
  EXPECT_EQ(t(3, ded::Inv3), "X");
  EXPECT_EQ(t(3, ded::CoefI + 1), "0.5");
  EXPECT_EQ(t(3, ded::CoefI + 11), "1.5");
}

TEST(TabelDed, ATwentyFirstRowIsOutOfRange) {
  TabelDed t;
  t(20, ded::Coloane) = "x";
  EXPECT_EQ(test::FailureOf([&] { t(21, 1) = "x"; }), err::SubscriptOutOfRange);
}

TEST(FisiereSet, NamesThePerYearFiles) {
  EXPECT_EQ(NumeAnual(Familie::FF1, "2002"), "FF1_2002.txt");
  EXPECT_EQ(NumeAnual(Familie::Ded, "2002"), "Ded_2002.txt");
  EXPECT_EQ(NumeAnual(Familie::Rep, ""), "Rep_.txt");
  EXPECT_EQ(NumeLucru(Familie::Ded), "Deduceri.txt");
}

}  // namespace
}  // namespace fisc
