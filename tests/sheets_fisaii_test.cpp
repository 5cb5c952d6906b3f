#include <gtest/gtest.h>

#include "support/Ecrane.h"

namespace fisc {
namespace {

using test::Program;

constexpr std::string_view kCod = "1700315123458";

// An employee's FF1 line, a whole year at coefficient 1, in county `judet`.
std::string LinieFF1(std::string_view judet, std::string_view cod = kCod) {
  return std::string(cod) + ",#POP#,#ION#,#SACELE#,#" + std::string(judet) +
         "#,##,##,0,##,##,##,##,,##,##,##,##,##,##,##,,,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,"
         "1,1,1" +
         std::string(40, ',') + "\r\n";
}

std::function<void(const test::TempDir&)> CuFF1(std::string linie) {
  return [linie](const test::TempDir& dir) { test::WriteBytes(dir / "FF1_2002.txt", linie); };
}

TEST(EcranAngajat, ACountyTheListRefusesIsToldOnlyByTheDecisionLoad) {
  Program p(CuFF1(LinieFF1("XYZ")));
  p.EcranAngajat();
  p.Scrie(p.II().CodS, kCod);
  p.D().UserFocus(p.II().NumeS);
  ASSERT_TRUE(p.app->frmGasit.Visible());
  p.Click(*p.app->frmGasit.but[0]);
  ASSERT_EQ(p.Mesaje(), 1u);
  EXPECT_EQ(p.UltimulMesaj(), "Judet eronat.");
  EXPECT_EQ(p.II().JudS.Text(), " ");
  EXPECT_EQ(p.Fisa().JudetAngajat, "XYZ");
  EXPECT_EQ(p.Fisa().Pozitii[1], 1);

  p.Click(p.II().Option2);
  p.D().UserSelect(p.II().Combo1, 0);
  EXPECT_EQ(p.Mesaje(), 1u);
  EXPECT_EQ(p.II().JudS.Text(), " ");
}

TEST(EcranAngajat, TheDecisionLoadStepsOverABrokenRecordAndTheListEndsTheProgram) {
  Program p(CuFF1(std::string(kCod) + ",#POP#,#ION#,#SACELE\r\n"));
  p.EcranAngajat();
  p.Scrie(p.II().CodS, kCod);
  p.D().UserFocus(p.II().NumeS);
  p.Click(*p.app->frmGasit.but[0]);
  EXPECT_FALSE(p.D().Fatal());
  EXPECT_GE(p.Mesaje(), 2u);
  for (const auto& box : p.dialogs.History()) EXPECT_EQ(box.text, "Judet eronat.");
  EXPECT_TRUE(p.II().Frame1.Visible());

  p.Click(p.II().Option2);
  p.D().UserSelect(p.II().Combo1, 0);
  ASSERT_TRUE(p.D().Fatal());
  EXPECT_EQ(p.D().Fatal()->number(), 5);
}

TEST(EcranAngajat, AListEntryWithAnEmptyCodeLoadsWithoutEndingTheProgram) {
  Program p(CuFF1(LinieFF1("BRASOV", "")));
  p.EcranAngajat();
  p.Click(p.II().Option2);
  ASSERT_EQ(p.II().Combo1.ListCount(), 1);
  EXPECT_EQ(p.II().Combo1.Item(0), "POP ION----FF1");
  p.D().UserSelect(p.II().Combo1, 0);
  ASSERT_FALSE(p.D().Fatal());
  EXPECT_EQ(p.II().CodS.Text(), "");
  EXPECT_EQ(p.II().NumeS.Text(), "POP");
  EXPECT_EQ(p.II().but_sterg_fisa.Caption(), "Sterge fisa 1");
  EXPECT_TRUE(p.II().Frame1.Visible());
}

TEST(EcranAngajat, EnteringTheCodeClearsTheLastEmployeeButKeepsHisLocality) {
  Program p;
  p.EcranAngajat();
  FisaII& e = p.II();
  p.Scrie(e.CodS, kCod);
  p.Scrie(e.NumeS, "pop");
  p.Scrie(*e.AdrS[0], "sacele");
  p.Scrie(*e.AdrS[1], "lunga");
  p.Click(e.Ok_Fisa1);
  p.Click(e.Xdedu);
  p.Click(e.CodS);
  EXPECT_EQ(e.NumeS.Text(), "");
  EXPECT_EQ(e.AdrS[1]->Text(), "");
  EXPECT_EQ(e.AdrS[0]->Text(), "SACELE");
  EXPECT_EQ(e.JudS.Text(), "BRASOV");
  EXPECT_EQ(e.Xdedu.Value(), 0);
  EXPECT_TRUE(e.Xreg.Enabled());
  EXPECT_FALSE(e.Frame1.Visible());
}

TEST(EcranAngajat, TheMonthsOfActivityComeFromTheDatesAsCommand1TakesThem) {
  Program p;
  p.FisaNoua(kCod, "15/03/2002", "20/10/2002");
  EXPECT_EQ(p.Fisa().LunaPrima, 2);
  EXPECT_EQ(p.Fisa().LunaUltima, 9);
  EXPECT_EQ(p.Fisa().DataAngajarii, "15/03/2002");
  Fisa1F& f = p.F1();
  EXPECT_FALSE(f.CoefProp[1]->Visible());
  EXPECT_TRUE(f.CoefProp[2]->Visible());
  EXPECT_FALSE(f.Bif[10]->Visible());
  // Closing without a save brings a whole year back for the next employee.
  p.dialogs.QueueAnswer(Answer::No);
  p.D().UserClose(f);
  p.FisaNoua("2800720123452");
  EXPECT_TRUE(f.CoefProp[1]->Visible());
  EXPECT_TRUE(f.Bif[10]->Visible());
  EXPECT_EQ(f.CoefProp[11]->Text(), "1");
}

}  // namespace
}  // namespace fisc
