#include <gtest/gtest.h>

#include <string>

#include "params/Cuantum.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

class Cuantum : public ::testing::Test {
 protected:
  int Load(const std::string& bytes) {
    test::WriteBytes(dir / "Cuantum.txt", bytes);
    return test::FailureOf([&] { IncarcaCuantum(files, p); });
  }
  const std::string delivered = test::ReadBytes(test::DataDir() / "Cuantum.txt");
  test::TempDir dir;
  Files files{dir.path()};
  ParametriAn p;
};

TEST_F(Cuantum, LoadsTheDeliveredYear) {
  ASSERT_EQ(Load(delivered), 0);
  EXPECT_EQ(p.AnFiscal + " " + p.PrimaZi + " " + p.UltimaZi, "2002 03 31");
  for (std::size_t i = 0; i < 13; ++i) EXPECT_EQ(p.DedLuna[i], 1600000) << i;
  for (std::size_t i = 0; i < 12; ++i)
    EXPECT_EQ(p.CoefCopil[i] + p.CoefSotie[i] + p.CoefAlta[i], "0.50.50.5") << i;
  EXPECT_EQ(p.CoefMaxim + " " + p.CoefInv1 + " " + p.CoefInv2 + " " + p.CoefInv3 + " " +
                p.CoefCheltProf + " " + p.CotaImpFinal,
            "3 1 0.5 0 0.15 0.1");
}

TEST_F(Cuantum, PlacesRowsByTheirMonthAndConvertsAsTheFieldsDo) {
  // Rows in any order; a month without a row keeps its value; the first day
  // gets its leading zero; the last line is never parsed, whatever it holds.
  p.DedLuna[5] = 7;
  ASSERT_EQ(Load(test::Lines({"02002x,3,31", "13,1 800 000,3,1,0.50,,0.15,abc,",
                              " 2,1500000,0.50,1,x,", " 1,12a,,,,", "12,1,1,1,1,"})),
            0);
  EXPECT_EQ(p.AnFiscal + " " + p.PrimaZi, "2002 03");
  EXPECT_EQ(p.DedLuna[12], 1800000);
  EXPECT_EQ(p.CoefInv2 + " " + p.CoefInv3 + " " + p.CotaImpFinal, "0.5 0 0");
  EXPECT_EQ(p.DedLuna[1], 1500000);
  EXPECT_EQ(p.CoefCopil[1] + " " + p.CoefAlta[1], "0.5 0");
  EXPECT_EQ(p.DedLuna[0], 12);
  EXPECT_EQ(p.DedLuna[5], 7);
  EXPECT_EQ(p.CoefCopil[11], "");
}

TEST_F(Cuantum, FailuresKeepWhatWasReadBeforeThem) {
  // Without the marker the annual row is the last line: lost, silently.
  ASSERT_EQ(Load(delivered.substr(0, delivered.find("eof"))), 0);
  EXPECT_EQ(p.DedLuna[11], 1600000);
  EXPECT_EQ(p.DedLuna[12], 0);

  files.Delete("Cuantum.txt");
  ParametriAn before = p;
  EXPECT_EQ(test::FailureOf([&] { IncarcaCuantum(files, p); }), err::FileNotFound);
  EXPECT_EQ(p.AnFiscal, before.AnFiscal);

  p = {};
  EXPECT_EQ(Load(test::Lines({"2002,03,31", " 1,1600000,0.5,0.5,0.5", "eof"})), err::InvalidCall);
  EXPECT_EQ(p.AnFiscal, "2002");
  EXPECT_EQ(Load(test::Lines({"2002,03,31", " 1,1600000,0.5,0.5,0.5,", " 0,1,1,1,1,", "eof"})),
            err::SubscriptOutOfRange);
  EXPECT_EQ(p.DedLuna[0], 1600000);
  // Above 13 the row is read as the annual one before its month fails.
  EXPECT_EQ(Load(test::Lines({"2002,03,31", "14,1,2,3,4,", "eof"})), err::InvalidCall);
  EXPECT_EQ(Load(test::Lines({"2002,03,31", "14,1,2,3,4,5,6,7,", "eof"})),
            err::SubscriptOutOfRange);
  // A line behind the marker makes the marker a row.
  EXPECT_EQ(Load(test::Lines({"2002,03,31", "eof", ""})), err::InvalidCall);
}

TEST_F(Cuantum, SaveWritesTheFieldsAsTheyStandAndMakesThemTheParameters) {
  ASSERT_EQ(Load(delivered), 0);
  CampuriCuantum c = CampuriDin(p);
  ParametriAn saved;
  SalveazaCuantum(files, c, saved);
  EXPECT_EQ(test::ReadBytes(dir / "Cuantum.txt"), delivered);
  EXPECT_EQ(saved.DedLuna, p.DedLuna);
  EXPECT_EQ(saved.CoefAlta, p.CoefAlta);

  c.AnF = "2003";
  c.Cuanta[9] = "1700000";
  c.Maxi = "2.5";
  SalveazaCuantum(files, c, saved);
  std::string text = test::ReadBytes(dir / "Cuantum.txt");
  EXPECT_EQ(text.substr(0, 12), "2003,03,31\r\n");
  EXPECT_NE(text.find("\r\n10,1700000,0.5,0.5,0.5,\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n13,1600000,2.5,1,0.5,0,0.15,0.1,\r\neof\r\n"), std::string::npos);
  EXPECT_EQ(saved.AnFiscal + " " + saved.CoefMaxim, "2003 2.5");
  EXPECT_EQ(saved.DedLuna[9], 1700000);

  // A file removed meanwhile stops the save before anything changes.
  files.Delete("Cuantum.txt");
  c.AnF = "2004";
  EXPECT_EQ(test::FailureOf([&] { SalveazaCuantum(files, c, saved); }), err::FileNotFound);
  EXPECT_EQ(saved.AnFiscal, "2003");
  EXPECT_FALSE(files.Exists("Cuantum.txt"));
}

}  // namespace
}  // namespace fisc
