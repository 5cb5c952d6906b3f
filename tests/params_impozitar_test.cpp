#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "params/Impozitar.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

class Impozitar : public ::testing::Test {
 protected:
  // Loads `bytes` as the table file; the failure number, 0 for none.
  int Load(const std::string& bytes) {
    test::WriteBytes(dir / "Impozitar.txt", bytes);
    return LoadAsItIs();
  }
  int LoadAsItIs() {
    try {
      IncarcaImpozitar(files, tabel);
    } catch (const RuntimeFailure& f) {
      return f.number();
    }
    return 0;
  }
  int RowsInUse() const {
    int n = 0;
    while (n <= MaxRandImpozit && tabel[static_cast<std::size_t>(n)][0]) ++n;
    return n;
  }
  test::TempDir dir;
  Files files{dir.path()};
  TabelImpozit tabel;
};

TEST_F(Impozitar, ReadsFiveNumbersALineUpToTheMarker) {
  tabel[7][0] = 3;  // a load starts from an empty table
  EXPECT_EQ(
      Load(test::Lines({" 5,1800001,4600000,324000,23", "1,0,1800000,0,18.5,99", "eof", "x"})), 0);
  EXPECT_EQ(RowsInUse(), 2);
  EXPECT_EQ(tabel[0], (RandImpozit{5, 1800001, 4600000, 324000, 23}));
  EXPECT_EQ(tabel[1], (RandImpozit{1, 0, 1800000, 0, 18.5}));  // a sixth field is not read
  EXPECT_FALSE(tabel[7][0]);

  EXPECT_EQ(Load(test::Lines({"eof"})), 0);
  EXPECT_EQ(RowsInUse(), 0);
}

TEST_F(Impozitar, FailuresKeepTheRowsReadBeforeThem) {
  tabel[0][0] = 1;
  EXPECT_EQ(LoadAsItIs(), err::FileNotFound);
  EXPECT_FALSE(tabel[0][0]);

  EXPECT_EQ(Load(""), err::InputPastEnd);
  EXPECT_EQ(Load(test::Lines({"13,0,1,0,18", " 1,0,1,0,18"})), err::InputPastEnd);
  EXPECT_EQ(RowsInUse(), 2);

  // The marker is the exact lower-case word alone on its line.
  for (const char* marker : {"eof ", "EOF"}) {
    EXPECT_EQ(Load(test::Lines({"13,0,1,0,18", marker})), err::InvalidCall) << marker;
    EXPECT_EQ(RowsInUse(), 1);
  }
  EXPECT_EQ(Load(test::Lines({"13,0,1,0,18", " 1,0,1,0", "eof"})), err::InvalidCall);
  EXPECT_EQ(RowsInUse(), 2);  // the short line's first fields are in
  EXPECT_FALSE(tabel[1][4]);
}

TEST_F(Impozitar, HoldsAtMost130Rows) {
  std::string rows;
  for (int i = 0; i < 130; ++i) rows += " 1," + std::to_string(130 - i) + ",0,0,10\r\n";
  EXPECT_EQ(Load(rows + "eof\r\n"), 0);
  EXPECT_EQ(RowsInUse(), 130);
  EXPECT_EQ(Load(rows + " 1,0,0,0,10\r\neof\r\n"), err::SubscriptOutOfRange);
  EXPECT_EQ(RowsInUse(), 130);
}

TEST_F(Impozitar, LoadAndSaveOfTheDeliveredTableGiveTheSameBytes) {
  std::string delivered = test::ReadBytes(test::DataDir() / "Impozitar.txt");
  EXPECT_EQ(delivered, test::ReadBytes(test::DataDir() / "Impozitar_copie.txt"));
  ASSERT_EQ(Load(delivered), 0);
  EXPECT_EQ(RowsInUse(), 10);
  SalvImpozit(files, tabel);
  EXPECT_EQ(test::ReadBytes(dir / "Impozitar.txt"), delivered);
  EXPECT_FALSE(files.Exists("Temporar.txt"));
}

TEST_F(Impozitar, SaveWritesMonthsInTwoPlacesUpToTheFirstEmptyRowAndANewComment) {
  ASSERT_EQ(Load(test::Lines({"1,0,1800000,0,18", "eof", "old comment"})), 0);
  tabel[1] = RandImpozit{13, 0.5, std::nullopt, 2, 3};
  tabel[3] = RandImpozit{12, 0, 0, 0, 0};  // behind the empty row 2: not written
  SalvImpozit(files, tabel);
  std::string delivered = test::ReadBytes(test::DataDir() / "Impozitar.txt");
  EXPECT_EQ(
      test::ReadBytes(dir / "Impozitar.txt"),
      test::Lines({" 1,0,1800000,0,18", "13,0.5,,2,3"}) + delivered.substr(delivered.find("eof")));
}

TEST_F(Impozitar, SaveWithTheTableFileGoneLeavesTheNewTableInTheWorkFile) {
  tabel[0] = RandImpozit{1, 0, 1, 0, 18};
  EXPECT_EQ(test::FailureOf([&] { SalvImpozit(files, tabel); }), err::FileNotFound);
  EXPECT_FALSE(files.Exists("Impozitar.txt"));
  EXPECT_EQ(test::ReadBytes(dir / "Temporar.txt").substr(0, 18), " 1,0,1,0,18\r\neof\r\n");
}

// Rows of brackets 0..limita for the months given, each group of `n` rows
// written highest bracket first, as the file holds them.
TabelImpozit Grupe(std::initializer_list<int> luni, int n = 2) {
  TabelImpozit t{};
  std::size_t r = 0;
  for (int luna : luni)
    for (int k = n; k-- > 0;) t[r++] = RandImpozit{double(luna), k * 100.0, k * 100.0 + 99, 0, 10};
  return t;
}

std::vector<double> Luni(const TabelImpozit& t) {
  std::vector<double> luni;
  for (const RandImpozit& r : t)
    if (r[0]) luni.push_back(*r[0]);
  return luni;
}

TEST(GrupaImpozit, AMonthWithoutAGroupUsesTheNearestEarlierOne) {
  TabelImpozit t = Grupe({13, 3, 1});
  auto prim = [&](double luna) { return GrupaInVigoare(t, luna)->prim; };
  EXPECT_EQ(prim(1), 4u);
  EXPECT_EQ(prim(2), 4u);
  EXPECT_EQ(prim(3), 2u);
  EXPECT_EQ(prim(12), 2u);
  EXPECT_EQ(prim(13), 0u);
  EXPECT_EQ(GrupaInVigoare(t, 13)->ultim, 1u);
  EXPECT_EQ(RandulLunii(t, 2), 4u);

  // Below the last group the walk meets the empty rows: no table.
  EXPECT_FALSE(GrupaInVigoare(Grupe({13, 5}), 4));
  EXPECT_FALSE(GrupaInVigoare(TabelImpozit{}, 1));
  // A full table of later months leaves no row to stop on.
  EXPECT_EQ(test::FailureOf([] { GrupaInVigoare(Grupe({13}, 130), 1); }), err::SubscriptOutOfRange);
}

TEST(GrupaImpozit, ANewMonthGoesInFrontOfTheGroupItFollowedAndAnOldOneIsReplaced) {
  TabelImpozit t = Grupe({13, 1});
  std::vector<RandImpozit> aprilie = {{4, 1000, 1999, 0, 20}, {4, 0, 999, 0, 10}};
  InlocuiesteGrupa(t, 4, aprilie);
  EXPECT_EQ(Luni(t), (std::vector<double>{13, 13, 4, 4, 1, 1}));
  EXPECT_EQ(t[2], aprilie[0]);
  EXPECT_EQ(GrupaInVigoare(t, 9)->prim, 2u);
  EXPECT_EQ(GrupaInVigoare(t, 3)->prim, 4u);

  // The same month again: its rows give way to the new ones, fewer or more.
  InlocuiesteGrupa(t, 4, {{4, 0, 5, 0, 1}});
  EXPECT_EQ(Luni(t), (std::vector<double>{13, 13, 4, 1, 1}));
  InlocuiesteGrupa(t, 13, {{13, 2, 3, 0, 1}, {13, 1, 1, 0, 1}, {13, 0, 0, 0, 1}});
  EXPECT_EQ(Luni(t), (std::vector<double>{13, 13, 13, 4, 1, 1}));
  EXPECT_EQ(t[0], (RandImpozit{13, 2, 3, 0, 1}));
  EXPECT_EQ(t[3], (RandImpozit{4, 0, 5, 0, 1}));
}

TEST(GrupaImpozit, ANearlyFullTableLosesItsLastRowsToTheNewGroup) {
  // 13 groups of 10 fill the table. A new group of 3 for month 12 takes
  // the place of its 10 rows, and still the last 3 of January are lost.
  TabelImpozit t{};
  for (int luna = 13; luna >= 1; --luna)
    for (int k = 0; k < 10; ++k) t[static_cast<std::size_t>((13 - luna) * 10 + k)][0] = luna;
  InlocuiesteGrupa(t, 12, {{12, 2, 2, 0, 1}, {12, 1, 1, 0, 1}, {12, 0, 0, 0, 1}});
  std::vector<double> luni = Luni(t);
  ASSERT_EQ(luni.size(), 120u);
  EXPECT_EQ(std::count(luni.begin(), luni.end(), 12), 3);
  EXPECT_EQ(std::count(luni.begin(), luni.end(), 1), 7);
}

}  // namespace
}  // namespace fisc
