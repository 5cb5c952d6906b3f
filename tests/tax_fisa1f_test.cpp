#include <gtest/gtest.h>

#include <functional>

#include "support/Ecrane.h"

namespace fisc {
namespace {

using test::Program;

constexpr std::string_view kCod = "1700315123458";

// The delivered Cuantum.txt with one line replaced.
std::function<void(const test::TempDir&)> Cuantum(std::string_view vechi, std::string_view nou) {
  return [vechi = std::string(vechi), nou = std::string(nou)](const test::TempDir& dir) {
    std::string text = test::ReadBytes(dir / "Cuantum.txt");
    std::size_t at = text.find(vechi);
    ASSERT_NE(at, std::string::npos);
    text.replace(at, vechi.size(), nou);
    test::WriteBytes(dir / "Cuantum.txt", text);
  };
}

class EcranFF1 : public ::testing::Test {
 protected:
  // A new dependant on the frame IV.C, with one month's coefficient.
  static void Persoana(Program& p, std::string_view cod, std::string_view coef, int luna = 0) {
    Fisa1F& f = p.F1();
    p.Click(f.Ok_PersU);
    p.Scrie(f.CodI, cod);
    p.Scrie(*f.CoefI[static_cast<std::size_t>(luna)], coef);
    p.D().UserFocus(f.NumeI);
  }
};

TEST_F(EcranFF1, LeavingTheIncomeRoundsTheDeductionAndCommand3DoesNot) {
  // 1.5 x 1600003 = 2400004.5, which rounds to the even 2400004: the
  // unrounded base stands half a leu lower, under the thousand.
  Program p(Cuantum(" 1,1600000,", " 1,1600003,"));
  p.FisaNoua(kCod, "", "", /*inv2=*/true);
  Fisa1F& f = p.F1();
  ASSERT_EQ(f.CoefCalc[0]->Text(), "1.5");
  p.Click(f.Command3);
  p.Completeaza(*f.VenitN[0], "3400004", *f.VenitN[1]);
  EXPECT_EQ(f.ImpP[0]->Text(), "180000");
  p.Click(f.Command3);
  EXPECT_EQ(f.ImpP[0]->Text(), "179820");
  std::string total = f.ImpP[13]->Text();
  p.Click(f.Command3);
  EXPECT_EQ(f.ImpP[13]->Text(), total);
}

TEST_F(EcranFF1, ATotalAboveTheMaximumStaysOnTheSheetButTaxesAtTheMaximum) {
  Program p;
  p.FisaNoua(kCod, "", "", /*inv2=*/true);
  Fisa1F& f = p.F1();
  p.Click(f.Command2);
  Persoana(p, "2800720123452", "1.5");
  Persoana(p, "1950610123459", "1");
  EXPECT_EQ(f.CoefCalc[0]->Text(), "4");
  p.Click(f.Command3);
  p.Completeaza(*f.VenitN[0], "5000000", *f.VenitN[1]);
  // Three deductions of 1600000 come off, not four.
  EXPECT_EQ(f.ImpP[0]->Text(), "36000");
}

TEST_F(EcranFF1, ExpensesAreProposedOnceAndTheirMonthsHeldToTheMonthsWithADeduction) {
  Program p;
  p.FisaNoua(kCod, "15/03/2002", "20/10/2002");
  Fisa1F& f = p.F1();
  p.Click(f.Command3);
  EXPECT_EQ(f.Luni.Text(), "8");
  EXPECT_EQ(f.ChAc.Text(), "1920000");

  p.Completeaza(f.Luni, "5", f.ChAc);
  p.Completeaza(f.ChAc, "1000000", f.Luni);
  p.Click(f.Command3);
  EXPECT_EQ(f.Luni.Text(), "5");
  EXPECT_EQ(f.ChAc.Text(), "1000000");

  std::size_t mesaje = p.Mesaje();
  p.Completeaza(f.Luni, "13", f.ChAc);
  ASSERT_EQ(p.Mesaje(), mesaje + 1);
  EXPECT_EQ(p.UltimulMesaj(),
            " Numar de luni pentru chelt.profesionale acordate\r\nmai mare decat nr.de luni cu "
            "drept de deducere = 8.");
  EXPECT_EQ(f.Luni.Text(), "8");

  // A month cancelled afterwards lowers Luni at the regularisation, silently.
  p.Click(f.Command1);
  p.Completeaza(*f.CoefProp[4], "0", *f.CoefProp[5]);
  mesaje = p.Mesaje();
  p.Click(f.Command4);
  EXPECT_EQ(f.Luni.Text(), "7");
  EXPECT_EQ(p.Mesaje(), mesaje);
}

TEST_F(EcranFF1, AZeroOwnCoefficientWipesTheMonthForTheDependantsAndTheIncome) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command2);
  Persoana(p, "2800720123452", "0.5", 3);
  EXPECT_EQ(f.CoefCalc[3]->Text(), "1.5");
  p.Click(f.Command3);
  p.Completeaza(*f.VenitN[3], "1000000", *f.VenitN[4]);
  p.Click(f.Command1);
  p.Completeaza(*f.CoefProp[3], "0", *f.CoefProp[4]);
  EXPECT_EQ(p.Fisa().Ded(1, ded::CoefI + 3), "");
  EXPECT_EQ(f.CoefI[3]->Text(), "0");
  EXPECT_EQ(f.CoefCalc[3]->Text(), "0");
  for (auto* coloana : {&f.VenitN, &f.ImpP, &f.ImpC}) EXPECT_EQ((*coloana)[3]->Text(), "0");
  EXPECT_EQ(f.CoefCalc[4]->Text(), "1");
}

TEST_F(EcranFF1, TheAgeFromTheCodeMarksAChildUpTo18AndAnotherPersonFrom18) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command2);
  struct Caz {
    std::string_view cod;
    int copil, alta;
    std::string_view varsta;
  };
  for (const Caz& c : {Caz{"1850101123451", 1, 0, "(Varsta = 17 ani)"},
                       Caz{"1841231123454", 1, 1, "(Varsta = 18 ani)"},
                       Caz{"1830606123457", 0, 1, "(Varsta = 19 ani)"}}) {
    Persoana(p, c.cod, "0.5");
    EXPECT_EQ(f.Copil.Value(), c.copil) << c.cod;
    EXPECT_EQ(f.Alta.Value(), c.alta) << c.cod;
    EXPECT_EQ(f.Label34.Caption(), c.varsta);
    short rand = p.Fisa().PersoanaCurenta;
    EXPECT_EQ(p.Fisa().Ded(rand, ded::Copil), c.copil ? "X" : "");
    EXPECT_EQ(p.Fisa().Ded(rand, ded::Alta), c.alta ? "X" : "");
  }
  EXPECT_EQ(p.Fisa().NrPersoane, 3);
}

TEST_F(EcranFF1, AChildMarkOnAPersonOver18TurnsIntoAnotherPerson) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command2);
  Persoana(p, "1830606123457", "0.5");
  p.Click(f.Copil);
  p.D().UserFocus(f.NumeI);
  EXPECT_EQ(f.Copil.Value(), 0);
  EXPECT_EQ(f.Alta.Value(), 1);
  EXPECT_EQ(p.Fisa().Ded(1, ded::Copil), "");
}

TEST_F(EcranFF1, DeletingAPersonShowsTheLastAndLeavesItsMonthsInTheFreedRow) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command2);
  Persoana(p, "2800720123452", "0.5");
  Persoana(p, "1950610123459", "1");
  Persoana(p, "1980202123459", "0.5");
  Persoana(p, "1900303123451", "1.5");
  EXPECT_EQ(f.CoefCalc[0]->Text(), "4.5");
  p.Click(f.Ok_persA);
  p.Click(f.Ok_persA);
  ASSERT_EQ(f.CodI.Text(), "1950610123459");

  p.dialogs.QueueAnswer(Answer::Yes);
  p.Click(f.Ok_StergP);
  FisaInLucru& s = p.Fisa();
  EXPECT_EQ(s.NrPersoane, 3);
  EXPECT_EQ(s.PersoanaCurenta, 3);
  EXPECT_EQ(f.CodI.Text(), "1900303123451");
  EXPECT_EQ(s.Ded(2, ded::CodI), "1980202123459");
  EXPECT_EQ(f.CoefCalc[0]->Text(), "3.5");
  EXPECT_EQ(s.Ded(4, ded::CodI), "");
  EXPECT_EQ(s.Ded(4, ded::CoefI), "1.5");
  EXPECT_EQ(f.Ok_PersU.ToolTip(), "Sunt inregistrate 3 persoane");

  for (int i = 0; i < 3; ++i) {
    p.dialogs.QueueAnswer(Answer::Yes);
    p.Click(f.Ok_StergP);
  }
  EXPECT_EQ(s.NrPersoane, 0);
  EXPECT_EQ(s.PersoanaCurenta, 1);
  EXPECT_EQ(f.CoefCalc[0]->Text(), "1");
}

TEST_F(EcranFF1, EnterOnTheBonusMonthSkipsTheMarksOnlyForTheDomicileMark) {
  {
    // A foreign person has no deductions either, but walks on to his marks.
    Program p;
    p.FisaNoua("9840501123452", "15/03/2002");
    Fisa1F& f = p.F1();
    ASSERT_FALSE(f.ChAc.Enabled());
    p.D().UserFocus(f.LuPrima);
    p.Enter();
    EXPECT_EQ(p.D().Focused(), f.Bif[2]);
  }
  {
    Program p;
    p.EcranAngajat();
    p.Scrie(p.II().CodS, kCod);
    p.Scrie(p.II().NumeS, "POPESCU");
    p.Click(p.II().Ok_Fisa1);
    p.Click(p.II().Xdedu);
    p.Click(p.II().Command1);
    Fisa1F& f = p.F1();
    ASSERT_EQ(p.Fisa().FlagDedu, "X");
    p.D().UserFocus(f.LuPrima);
    p.Enter();
    EXPECT_EQ(p.D().Focused(), &f.Command8);
  }
}

TEST_F(EcranFF1, TheDeductionViewerReadsTheTableAfreshForTheSheet) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  // The file changes under the running program: January's deduction now
  // covers the whole income.
  std::string text = test::ReadBytes(p.dir / "Cuantum.txt");
  std::size_t at = text.find(" 1,1600000,");
  ASSERT_NE(at, std::string::npos);
  text.replace(at, 11, " 1,3000000,");
  test::WriteBytes(p.dir / "Cuantum.txt", text);

  p.Click(f.Command3);
  p.Completeaza(*f.VenitN[0], "3000000", *f.VenitN[1]);
  EXPECT_NE(f.ImpP[0]->Text(), "0");
  p.Click(f.Command15);
  p.Completeaza(*f.VenitN[0], "3000000", *f.VenitN[1]);
  EXPECT_EQ(f.ImpP[0]->Text(), "0");
}

TEST_F(EcranFF1, Command12CopiesEveryRowAndAMarkTakenOffLeavesZero) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command3);
  p.Completeaza(*f.VenitN[2], "2000000", *f.VenitN[3]);
  p.Click(*f.Bif[2]);
  EXPECT_EQ(f.ImpC[2]->Text(), "72000");
  p.Completeaza(*f.ImpC[2], "5", *f.ImpC[3]);
  p.Click(f.Command12);
  EXPECT_EQ(f.Bif[2]->Value(), 1);
  EXPECT_EQ(f.ImpC[2]->Text(), "72000");
  EXPECT_EQ(f.ImpC[13]->Text(), "72000");
  p.Click(*f.Bif[2]);
  EXPECT_EQ(f.ImpC[2]->Text(), "0");
  EXPECT_EQ(f.ImpC[13]->Text(), "0");
}

TEST_F(EcranFF1, WithoutAnAnnualDeductionTheRegularisationOnlyShowsItsFrame) {
  Program p(Cuantum("13,1600000,", "13,0,"));
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  p.Click(f.Command4);
  EXPECT_TRUE(f.Fisa1_V.Visible());
  EXPECT_TRUE(f.Command10.Enabled());
  EXPECT_EQ(p.Mesaje(), 0u);
  EXPECT_EQ(p.D().Focused(), &f.Command4);
}

// A regularised sheet on file, loaded from the list, with its start date.
class MarcajDinFisier : public EcranFF1, public ::testing::WithParamInterface<const char*> {};

TEST_P(MarcajDinFisier, TheMarkStandsOnlyOnAWholeYear) {
  std::string data = GetParam();
  Program p([&](const test::TempDir& dir) {
    std::string coef = "1,1,1,1,1,1,1,1,1,1,1,1";
    std::string perechi;
    for (int i = 0; i < 12; ++i) perechi += "2000000,72000,";
    test::WriteBytes(dir / "FF1_2002.txt",
                     std::string(kCod) +
                         ",#POP#,#ION#,#BRASOV#,#BRASOV#,##,##,0,##,##,##,##,,##,#X#,"
                         "##,##,##,##,##," +
                         data + ",," + coef + "," + coef + "," + perechi +
                         ",,24000000,864000,12,"
                         "2880000,,,,,,,,,,\r\n");
  });
  p.EcranAngajat();
  p.Click(p.II().Option2);
  p.D().UserSelect(p.II().Combo1, 0);
  p.Click(p.II().Command1);
  Fisa1F& f = p.F1();
  p.Click(f.Command4);
  if (data == "03/01/2002") {
    EXPECT_EQ(p.Fisa().FlagReg, "X");
    EXPECT_EQ(f.Reg[0]->Text(), "24000000");
    EXPECT_EQ(f.Reg[4]->Text(), "19200000");
    EXPECT_EQ(f.Reg[6]->Text(), "864000");
    EXPECT_EQ(p.Mesaje(), 0u);
  } else {
    EXPECT_EQ(p.Fisa().FlagReg, "");
    EXPECT_EQ(f.Reg[0]->Text(), "");
    ASSERT_EQ(p.Mesaje(), 1u);
    EXPECT_TRUE(p.UltimulMesaj().starts_with(
        "Fisa fiscala are marcajul 'X' pentru regularizare, desi conditiile nu sunt"));
  }
}

INSTANTIATE_TEST_SUITE_P(DataAngajarii, MarcajDinFisier,
                         ::testing::Values("03/01/2002", "04/01/2002"));

}  // namespace
}  // namespace fisc
