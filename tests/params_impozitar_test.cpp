#include <gtest/gtest.h>

#include <string>

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

}  // namespace
}  // namespace fisc
