#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "listings/Borderou.h"
#include "listings/Cadru.h"
#include "listings/Centralizator.h"
#include "listings/Randuri.h"
#include "listings/Tabel5.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

const std::string kRep =
    "12345674,1,#SC TEST SRL#,##,##,#ARAD#,#ARAD#,#STR. A#,#1#,0,##,##,##,##,,##,##\r\n";

// An FF1 record with its pairs numbered: month i holds 100 + i and 200 + i,
// the totals `venit` and `impozit`.
std::string FF1(std::string_view cod, std::string_view nume, std::string_view pren,
                std::string_view rect, std::string_view reg, std::string_view venit,
                std::string_view impozit) {
  std::string r = std::string(cod) + ",#" + std::string(nume) + "#,#" + std::string(pren) +
                  "#,#ARAD#,#ARAD#,#STR#,#1#,0,##,##,##,##,,#" + std::string(rect) + "#,#" +
                  std::string(reg) + "#,##,##,##,##,##,,,";
  for (int i = 0; i < 24; ++i) r += "1,";
  for (int i = 0; i < 13; ++i) r += std::to_string(100 + i) + "," + std::to_string(200 + i) + ",";
  r += std::string(venit) + "," + std::string(impozit) + ",12,100,";
  // Reg(2) .. Reg(12): 302 .. 312, Reg(7) not stored.
  for (int k : {2, 3, 4, 5, 6, 8, 9, 10, 11}) r += std::to_string(300 + k) + ",";
  return r + "312";
}

// An FF2 record: month i holds 500 + i and 600 + i, the totals the last pair.
std::string FF2(std::string_view cod, std::string_view nume, std::string_view rect,
                std::string_view venit, std::string_view impozit) {
  std::string r = std::string(cod) + ",#" + std::string(nume) +
                  "#,#P#,#ARAD#,#ARAD#,#STR#,#1#,0,##,##,##,##,,#" + std::string(rect) +
                  "#,##,##,##,##,##,##,##,#X#,";
  for (int i = 0; i < 12; ++i) r += std::to_string(500 + i) + "," + std::to_string(600 + i) + ",";
  return r + std::string(venit) + "," + std::string(impozit);
}

class Tabele : public ::testing::Test {
 protected:
  Tabele() { Scrie("Repfisc.txt", kRep); }

  void ScrieLinii(std::string_view nume, const std::vector<std::string>& linii) {
    std::string bytes;
    for (const std::string& l : linii) bytes += l + "\r\n";
    Scrie(nume, bytes);
  }
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }
  std::vector<std::string> Linii(std::string_view nume) {
    std::vector<std::string> linii;
    LineReader in = files_.Read(nume);
    std::string l;
    while (in.Next(l)) linii.push_back(l);
    return linii;
  }
  // The line that begins with `inceput`.
  std::string Linia(std::string_view nume, std::string_view inceput) {
    for (const std::string& l : Linii(nume))
      if (l.starts_with(inceput)) return l;
    return "(none)";
  }
  void Borderou(int continut) {
    CereriBorderou c;
    c.Continut = continut;
    c.AnFiscal = "2002";
    ScrieBorderou(files_, stare_, cod_, c);
  }
  void Centralizator(int luna, bool ff1) {
    ScrieCentralizator(files_, stare_, cod_, CereriCentralizator{luna, ff1, "2002"});
  }
  static void EsteEsecul5(const std::function<void()>& f) {
    try {
      f();
      ADD_FAILURE() << "no failure";
    } catch (const RuntimeFailure& e) {
      EXPECT_EQ(e.number(), err::InvalidCall);
    }
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  StareListare stare_;
  std::string cod_;
  Desktop desktop_;
  Form intro_{desktop_, "Intro", ""};
  Control& lista_ = intro_.Add(ControlKind::ComboBox, "Combo1").SetSorted(true);
};

TEST(CelulaSuma, ANegativeAmountIsMeasuredWithItsSignAndPrintedWithout) {
  std::string v = "-1234";
  EXPECT_EQ(CelulaSuma(v, 21), std::string(15, ' ') + "1.234");
  EXPECT_EQ(v, "1234");
  EXPECT_EQ(CelulaSuma(v, 21), std::string(16, ' ') + "1.234");
  std::string gol;
  EXPECT_EQ(CelulaSuma(gol, 21), std::string(21, ' '));
  std::string lat = "12345678901234567";  // 17 digits and 5 points: 22
  EXPECT_THROW(CelulaSuma(lat, 21), RuntimeFailure);
}

TEST_F(Tabele, BorderouNamesAndCodesKeepTheirWidthsOrPushTheRow) {
  std::string nume40(34, 'N'), pren41(6, 'P');  // 34 + blank + 5 = 40, + 6 = 41
  ScrieLinii("Ff1.txt", {FF1("1800101123450", nume40, pren41.substr(1), "", "", "1000", "10"),
                         FF1("2800101123451", nume40, pren41, "", "", "1000", "10"),
                         FF1("18001011234501", "A", "B", "", "", "1000", "10")});
  Borderou(1);
  std::vector<std::string> l = Linii("Borderou.txt");
  auto rand = std::find_if(l.begin(), l.end(), [](auto& s) { return s.starts_with("    1 "); });
  ASSERT_NE(rand, l.end());
  EXPECT_EQ(rand[0].size(), 122u);
  EXPECT_TRUE(rand[1].starts_with("    2 "));
  EXPECT_EQ(rand[2], std::string(20, ' ') + "P");
  // A code of 14 characters isn't cut: the rest of its row stands one place right.
  EXPECT_EQ(rand[3], "    3 18001011234501 " + std::string("A B") + std::string(37, ' ') +
                         "  X             " + "    " + std::string(16, ' ') + "1.000" +
                         std::string(19, ' ') + "10");
}

TEST_F(Tabele, BorderouTotalsKeepTheSignOfASumButNotOfASingleTotal) {
  std::vector<std::string> ff1;
  // Ten rectified sheets: the count of two digits pushes the amounts right.
  for (int i = 0; i < 10; ++i)
    ff1.push_back(FF1("18001011234" + std::to_string(10 + i), "A", "B", "X", "", "-1000", ""));
  ScrieLinii("Ff1.txt", ff1);
  ScrieLinii("Ff2.txt", {FF2("1800101123450", "A", "", "3000", "")});
  Borderou(0);
  EXPECT_EQ(Linia("Borderou.txt", "      TOTAL"),
            "      TOTAL" + std::string(46, ' ') + "    10" + "     1" + "     0" + "    10" +
                std::string(15, ' ') + "-7.000" + std::string(20, ' ') + "0");
  // The total of FF1 alone is a variable: measured -10.000, printed 10.000.
  EXPECT_EQ(Linia("Borderou.txt", std::string(58, ' ') + "Total fise fiscale 1"),
            std::string(58, ' ') + "Total fise fiscale 1 :" + std::string(14, ' ') + "10.000" +
                std::string(20, ' ') + "0");
}

TEST_F(Tabele, CentralizatorRepeatsTheTailOfALongName) {
  std::string nume(40, 'N'), pren(33, 'P');  // 74 characters with the blank
  pren.back() = 'Z';
  ScrieLinii("Ff1.txt", {FF1("1", std::string(34, 'A'), "B", "", "", "", ""),
                         FF1("2", std::string(35, 'A'), "C", "", "", "", ""),
                         FF1("3", nume, pren, "", "", "", "")});
  Centralizator(0, true);
  std::vector<std::string> l = Linii("Listab4.txt");
  auto rand = std::find_if(l.begin(), l.end(), [](auto& s) { return s.starts_with("1     "); });
  ASSERT_NE(rand, l.end());
  // 37 characters with the blank: the last one goes on alone.
  EXPECT_TRUE(rand[1].starts_with("2 "));
  EXPECT_EQ(rand[2], std::string(21, ' ') + "C");
  // 74: the tail from the 37th on, and before it its last character alone.
  EXPECT_EQ(rand[3].substr(21, 37), std::string(36, 'N') + " ");
  EXPECT_EQ(rand[4], std::string(21, ' ') + "Z");
  EXPECT_EQ(rand[5], std::string(21, ' ') + "NNNN " + std::string(32, 'P') + "Z");
}

TEST_F(Tabele, CentralizatorFailsOnAnAmountWiderThanItsColumn) {
  std::string r = FF2("1", "A", "", "", "");
  r.replace(r.find(",500,"), 5, ",123456789012345,");
  ScrieLinii("Ff2.txt", {r});
  EsteEsecul5([&] { Centralizator(0, false); });
}

TEST_F(Tabele, Tabel5NeedsTheFF1File) {
  EXPECT_FALSE(ScrieTabel5(files_, lista_, stare_, cod_, "2002"));
  EXPECT_FALSE(files_.Exists("tab5.txt"));
}

TEST_F(Tabele, Tabel5RowsAreNotPaddedToTheCodeAndLeaveZerosEmpty) {
  std::string r = FF1("123", "A", "B", "", "X", "1000", "0");
  // Reg(8) and Reg(9) zero and empty: both cells blank.
  r.replace(r.find("308,309,"), 8, "0,,");
  ScrieLinii("Ff1.txt", {r, FF1("1800101123450", "Z", "Z", "", "", "1", "1")});
  ASSERT_TRUE(ScrieTabel5(files_, lista_, stare_, cod_, "2002"));
  EXPECT_EQ(Linia("tab5.txt", "    1 "),
            "    1 123 " + std::string("A B") + std::string(37, ' ') + " " + std::string(11, ' ') +
                "305" + std::string(11, ' ') + "306" + std::string(14, ' ') + std::string(28, ' '));
  EXPECT_EQ(Linia("tab5.txt", "      TOTAL"),
            "      TOTAL" + std::string(50, ' ') + std::string(11, ' ') + "305" +
                std::string(11, ' ') + "306" + std::string(13, ' ') + "0" + std::string(13, ' ') +
                "0" + std::string(13, ' ') + "0");
  EXPECT_EQ(Linii("Ff1R.txt").size(), 1u);
}

}  // namespace
}  // namespace fisc
