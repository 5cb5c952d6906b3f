#include <gtest/gtest.h>

#include "params/Cuantum.h"
#include "platform/Files.h"
#include "support/TestSupport.h"
#include "tax/Conditii.h"

namespace fisc {
namespace {

// The delivered year: first working day 03, last 31; CoefInv1 1, CoefInv2 0.5;
// spouse, child and other person 0.5 every month.
class Conditii2002 : public ::testing::Test {
 protected:
  Conditii2002() {
    Files files(test::DataDir());
    IncarcaCuantum(files, p);
  }
  CoeficientiLuni Coeficienti(std::string_view c) {
    CoeficientiLuni luni;
    luni.fill(std::string(c));
    return luni;
  }
  ParametriAn p;
};

TEST_F(Conditii2002, JanuaryAndDecemberDatesKeepTheFirstAndLastMonth) {
  EXPECT_EQ(LunaPrimaActivitate("", p.PrimaZi), 0);
  EXPECT_EQ(LunaPrimaActivitate("03/01/2002", p.PrimaZi), 0);
  EXPECT_EQ(LunaPrimaActivitate("25/01/2002", p.PrimaZi), 0);
  EXPECT_EQ(LunaPrimaActivitate("01/02/2002", p.PrimaZi), 1);
  EXPECT_EQ(LunaPrimaActivitate("15/07/2002", p.PrimaZi), 6);
  EXPECT_EQ(LunaUltimaActivitate("", p.UltimaZi), 11);
  EXPECT_EQ(LunaUltimaActivitate("02/12/2002", p.UltimaZi), 11);
  EXPECT_EQ(LunaUltimaActivitate("30/11/2002", p.UltimaZi), 10);
}

TEST_F(Conditii2002, TheWholeYearEndsAtTheFirstAndLastWorkingDays) {
  EXPECT_TRUE(AnIntreg("", "", p.PrimaZi, p.UltimaZi));
  EXPECT_TRUE(AnIntreg("03/01/2002", "31/12/2002", p.PrimaZi, p.UltimaZi));
  EXPECT_FALSE(AnIntreg("04/01/2002", "", p.PrimaZi, p.UltimaZi));
  EXPECT_FALSE(AnIntreg("", "30/12/2002", p.PrimaZi, p.UltimaZi));
  EXPECT_FALSE(AnIntreg("", "30/11/2002", p.PrimaZi, p.UltimaZi));
}

TEST_F(Conditii2002, ARegularisationNeedsAWholeYearOfOrdinaryDeductions) {
  CoeficientiLuni unu = Coeficienti("1");
  SituatieAngajat s{"", "", "POPESCU", "", "", "1700315123458"};
  EXPECT_FALSE(ConditiiNeindeplinite(s, unu, p));

  SituatieAngajat alteSurse = s, faraDomiciliu = s, strain = s, parteAn = s;
  alteSurse.FlagAlteS = "X";
  faraDomiciliu.FlagDedu = "X";
  strain.CodCurent = "9840501123452";
  parteAn.DataAngajarii = "04/01/2002";
  for (const SituatieAngajat& x : {alteSurse, faraDomiciliu, strain, parteAn})
    EXPECT_TRUE(ConditiiNeindeplinite(x, unu, p));

  // A month at 0 fails the sheet unless the surname carries "**".
  CoeficientiLuni oLunaNula = unu;
  oLunaNula[3] = "";
  EXPECT_TRUE(ConditiiNeindeplinite(s, oLunaNula, p));
  SituatieAngajat cuStele = s;
  cuStele.NumeS = "POP**ESCU";
  EXPECT_FALSE(ConditiiNeindeplinite(cuStele, oLunaNula, p));
  cuStele.CodCurent = "9840501123452";
  EXPECT_TRUE(ConditiiNeindeplinite(cuStele, oLunaNula, p));
}

TEST(Nastere, TheFirstDigitGivesTheCentury) {
  EXPECT_EQ(NastereDinCod("1841231123454").An, 1984);
  EXPECT_EQ(NastereDinCod("2800720123452").An, 1980);
  EXPECT_EQ(NastereDinCod("3020615123458").An, 2002);
  EXPECT_EQ(NastereDinCod("4990101123450").An, 2099);
  EXPECT_EQ(NastereDinCod("5020615123458").An, 2002);
  EXPECT_EQ(NastereDinCod("5020615123458").Luna, 6);
  EXPECT_EQ(NastereDinCod("0").An, 2000);
}

TEST(Nastere, TheAgeCountsWholeCalendarYears) {
  // Born on the last day of 1984: 18 all through 2002.
  EXPECT_EQ(Varsta("1841231123454", "2002"), 18);
  EXPECT_EQ(Varsta("1850101123454", "2002"), 17);
  EXPECT_EQ(Varsta("5020615123458", "2002"), 0);
}

TEST_F(Conditii2002, TheOwnCoefficientFollowsTheTableAndGradeTwoWins) {
  EXPECT_EQ(CoefPropriu(false, false, p), 1);
  EXPECT_EQ(CoefPropriu(true, false, p), 2);
  EXPECT_EQ(CoefPropriu(false, true, p), 1.5);
  EXPECT_EQ(CoefPropriu(true, true, p), 1.5);
  for (double ok : {0.0, 1.0, 1.5, 2.0}) EXPECT_TRUE(CoefPropPermis(ok, p)) << ok;
  for (double gresit : {0.5, 3.0, 2.5}) EXPECT_FALSE(CoefPropPermis(gresit, p)) << gresit;
  // A dependant's values are fixed, whatever the table says.
  p.CoefInv1 = "2";
  EXPECT_TRUE(CoefPropPermis(3, p));
  for (double ok : {0.0, 0.5, 1.0, 1.5}) EXPECT_TRUE(CoefIPermis(ok)) << ok;
  EXPECT_FALSE(CoefIPermis(2));
  EXPECT_FALSE(CoefIPermis(0.25));
}

TEST_F(Conditii2002, TakenConditionsStartAtTheBirthMonthAndPreferTheSpouse) {
  p.CoefSotie.fill("1");
  p.CoefCopil.fill("0.5");
  CalitatePersoana copil{false, true, false, false, false};
  Nastere iunie2002{2002, 6};
  EXPECT_EQ(CoefPreluat(4, copil, iunie2002, 2002, 1, p), 0);
  EXPECT_EQ(CoefPreluat(5, copil, iunie2002, 2002, 1, p), 0.5);
  // Born in June of another year: every month counts.
  EXPECT_EQ(CoefPreluat(0, copil, {2001, 6}, 2002, 1, p), 0.5);

  CalitatePersoana sotSiCopil{true, true, false, false, false};
  EXPECT_EQ(CoefPreluat(0, sotSiCopil, {1980, 7}, 2002, 1, p), 1);
  // No own coefficient, no dependant in that month.
  EXPECT_EQ(CoefPreluat(0, sotSiCopil, {1980, 7}, 2002, 0, p), 0);

  CalitatePersoana invalid{false, true, false, true, true};
  EXPECT_EQ(CoefPreluat(0, invalid, {1990, 1}, 2002, 1, p), 0.5 + 0.5);
  invalid.Inv2 = false;
  EXPECT_EQ(CoefPreluat(0, invalid, {1990, 1}, 2002, 1, p), 0.5 + 1);
  EXPECT_EQ(CoefPreluat(4, invalid, iunie2002, 2002, 1, p), 0);
}

}  // namespace
}  // namespace fisc
