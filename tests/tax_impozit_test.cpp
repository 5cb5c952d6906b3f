#include <gtest/gtest.h>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "support/TestSupport.h"
#include "tax/Impozit.h"
#include "tax/Lanturi.h"

namespace fisc {
namespace {

double Tax(short luna, double suma, const TabelImpozit& t) { return ImpozitLuna(luna, suma, t); }

int FailureOf(short luna, double suma, const TabelImpozit& t) {
  try {
    ImpozitLuna(luna, suma, t);
  } catch (const RuntimeFailure& f) {
    return f.number();
  }
  return 0;
}

// The delivered 2002 table and deduction amounts.
class Impozit2002 : public ::testing::Test {
 protected:
  Impozit2002() {
    Files files(test::DataDir());
    IncarcaImpozitar(files, tabel);
    IncarcaCuantum(files, p);
  }
  double Tax(short luna, double suma) { return fisc::Tax(luna, suma, tabel); }
  TabelImpozit tabel;
  ParametriAn p;
};

TEST_F(Impozit2002, TheBaseCountsInWholeThousands) {
  EXPECT_EQ(Tax(1, 999), 0);     // 18% of 0 + 1
  EXPECT_EQ(Tax(1, 1999), 180);  // 18% of 1001
  EXPECT_EQ(Tax(1, 1800000), 324000);
  // Just above a limit ending in 001 the cut base stands one leu below it:
  // the bracket's fixed tax alone.
  EXPECT_EQ(Tax(1, 1800999), 324000);
  EXPECT_EQ(Tax(1, 1801000), 324230);
  EXPECT_EQ(Tax(1, 20000000), 2710000 + 0.40 * 9800000);
  EXPECT_EQ(Tax(7, 2000000), 370000);  // the January table holds all year
  EXPECT_EQ(Tax(13, 30000000), 5820000);
}

TEST_F(Impozit2002, ANegativeAmountIsWrittenBackAsZero) {
  short luna = 3;
  double suma = -5000;
  EXPECT_EQ(ImpozitLuna(luna, suma, tabel), 0);
  EXPECT_EQ(suma, 0);
}

TEST_F(Impozit2002, AMonthWithNoTableFails) {
  EXPECT_EQ(FailureOf(0, 1000, tabel), err::InvalidUseOfNull);  // stops on the empty row
  EXPECT_EQ(FailureOf(1, 1000, TabelImpozit{}), err::InvalidUseOfNull);
  TabelImpozit full;
  full.fill(RandImpozit{5, 0, 0, 0, 10});
  EXPECT_EQ(FailureOf(4, 1000, full), err::SubscriptOutOfRange);
}

TEST(ImpozitLuna, TakesTheGroupInForceAndRunsOnPastItsLowestRow) {
  TabelImpozit t;
  t[0] = RandImpozit{13, 0, 0, 1300, 0};
  t[1] = RandImpozit{7, 5000, 0, 7000, 0};
  t[2] = RandImpozit{7, 1000, 0, 700, 0};
  t[3] = RandImpozit{1, 0, 0, 100, 0};
  EXPECT_EQ(Tax(8, 6000, t), 7000);
  EXPECT_EQ(Tax(7, 1000, t), 700);
  EXPECT_EQ(Tax(7, 999, t), 100);  // no row of group 7 low enough
  EXPECT_EQ(Tax(6, 6000, t), 100);
  EXPECT_EQ(Tax(13, 6000, t), 1300);
}

TEST(ImpozitLuna, RoundsTiesToEven) {
  TabelImpozit t;
  t[0] = RandImpozit{1, 0, 0, 12345, 50};
  t[1] = RandImpozit{0, 0, 0, 12344, 50};
  EXPECT_EQ(Tax(1, 0, t), 12346);  // 12345.5
  EXPECT_EQ(Tax(0, 0, t), 12344);  // 12344.5
}

TEST_F(Impozit2002, TheMonthlyChainCapsTheCoefficientAndFloorsTheBase) {
  EXPECT_EQ(DeducereLuna(0, "3.5", p), 4800000);
  EXPECT_EQ(DeducereLuna(0, "1,5", p), 2400000);
  // 6000000 less three deductions leaves 1200000.
  EXPECT_EQ(ImpozitPropusLuna(0, 6000000, "3.5", p, tabel), 216000);
  EXPECT_EQ(ImpozitPropusLuna(4, 1000000, "1", p, tabel), 0);
  // The bonus has no deduction, and no tax without its month.
  EXPECT_EQ(ImpozitPrima(7, 2000000, tabel), 370000);
  EXPECT_EQ(ImpozitPrima(0, 2000000, tabel), 0);
}

TEST_F(Impozit2002, OnlyLeavingTheIncomeRoundsTheDeduction) {
  p.DedLuna[0] = 1600001;  // half a deduction is 800000.5
  EXPECT_EQ(ImpozitPropusLuna(0, 1801000, "0.5", p, tabel), 180180);
  EXPECT_EQ(ImpozitPropusLunaNerotunjit(0, 1801000, "0.5", p, tabel), 180000);
}

TEST_F(Impozit2002, ExpensesAreProposedForTheMonthsWithACoefficient) {
  CoeficientiLuni coef{"1", "", "0", "0.5", "1", "1", "1", "1", "1", "1", "0.0", "1"};
  p.DedLuna[3] = 1000003;  // each month's share is rounded by itself
  CheltuieliPropuse c = PropuneCheltuieli(coef, p);
  EXPECT_EQ(c.Luni, 9);
  EXPECT_EQ(c.ChAc, 8 * 240000 + 150000);
}

DateRegularizare Sheet() {
  DateRegularizare d;
  d.VenitNet = 30000000;
  d.ChAc = 2880000;
  d.Luni = 13;
  d.ImpCTotal = 1800000;
  d.CoefCalc = {"1", "1", "3.5", "1", "1", "1", "1", "1", "1", "1", "1", ""};
  d.VenitImpunereFinala = 5000000;
  d.VenitScutit = 700000;
  return d;
}

TEST_F(Impozit2002, TheRegularisationWorksTheYearThroughTheAnnualTable) {
  Regularizare r = CalculeazaRegularizare(Sheet(), p, tabel);
  EXPECT_EQ(r.Luni, 11);  // no more than the months with a coefficient
  const std::array<double, 13> expected = {
      30000000, 2880000, 11 * 240000, 30240000, 10 * 1600000 + 3 * 1600000,
      9440000,  1699200, 1800000,     0,        100800,
      5000000,  500000,  700000};
  EXPECT_EQ(r.Reg, expected);
}

TEST_F(Impozit2002, TheRegularisationFloorsAtZeroAndSettlesOneWayOnly) {
  DateRegularizare d = Sheet();
  d.ImpCTotal = 1000000;
  Regularizare r = CalculeazaRegularizare(d, p, tabel);
  EXPECT_EQ(r.Reg[8], 699200);
  EXPECT_EQ(r.Reg[9], 0);

  d.ImpCTotal = 1699200;
  r = CalculeazaRegularizare(d, p, tabel);
  EXPECT_EQ(r.Reg[8], 0);
  EXPECT_EQ(r.Reg[9], 0);

  d.VenitNet = 0;
  d.ChAc = 0;
  r = CalculeazaRegularizare(d, p, tabel);
  EXPECT_EQ(r.Reg[3], 0);  // 0 + 0 less the expenses due
  EXPECT_EQ(r.Reg[4], 0);  // no income, no deductions
  EXPECT_EQ(r.Reg[9], 1699200);
}

TEST_F(Impozit2002, TheAnnualDeductionIsRoundedMonthByMonth) {
  p.DedLuna[12] = 1600001;
  DateRegularizare d = Sheet();
  d.CoefCalc.fill("0.5");
  Regularizare r = CalculeazaRegularizare(d, p, tabel);
  EXPECT_EQ(r.Reg[4], 12 * 800000);  // not the rounded 9600006
  EXPECT_EQ(r.Reg[2], 12 * 240000);  // 240000.15 rounded once, times the months
}

}  // namespace
}  // namespace fisc
