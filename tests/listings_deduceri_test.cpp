#include <gtest/gtest.h>

#include "listings/IndexDeduceri.h"
#include "platform/Files.h"
#include "sheets/Stocare.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

// A dependant row of `angajat`; `nume` tells the rows apart.
std::string Rand(std::string_view angajat, std::string_view nume) {
  return std::string(angajat) + ",1600707123450,#" + std::string(nume) +
         "#,#P#,##,#X#,##,##,##,##,1" + std::string(11, ',') + "1";
}

class Deduceri : public ::testing::Test {
 protected:
  // The rows the sheet load finds and those the listing's index finds, as
  // "count:name name ...".
  std::pair<std::string, std::string> Ambele(std::string_view cod) {
    return {Descrie([&](TabelDed& t, short& n) {
              Pozitii p{};
              IncarcaDeduceri(files_, cod, t, n, p);
            }),
            Descrie([&](TabelDed& t, short& n) { index_->Incarca(cod, t, n); })};
  }
  template <typename F>
  static std::string Descrie(F&& incarca) {
    TabelDed t;
    t(1, ded::NumeI) = "vechi";
    short n = 7;
    incarca(t, n);
    std::string s = std::to_string(n) + ":";
    for (int i = 1; i <= 20; ++i)
      if (!t(i, ded::NumeI).empty()) s += " " + t(i, ded::NumeI);
    return s;
  }
  void Fisier(std::string_view bytes) {
    test::WriteBytes(dir_ / "Deduceri.txt", bytes);
    index_ = std::make_unique<IndexDeduceri>(files_);
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  std::unique_ptr<IndexDeduceri> index_;
};

TEST_F(Deduceri, FindsTheFirstUnbrokenBlockAsTheSheetLoadDoes) {
  // Mixed line ends, a code that begins a longer one, a broken block, a
  // line with no comma, and a last line with no end.
  Fisier(Rand("123", "a1") + "\r\n" + Rand("1234", "b1") + "\n" + Rand("123", "a2") + "\r" +
         Rand("1234", "b2") + "\r\n" + "fara virgula\r\n" + Rand("1234", "b3") + "\r\n" +
         Rand("77", "c1") + "\r\n" + Rand("77", "c2"));
  for (std::string_view cod : {"123", "1234", "77", "12", "9", ""}) {
    auto [incarcare, index] = Ambele(cod);
    EXPECT_EQ(index, incarcare) << cod;
  }
  EXPECT_EQ(Ambele("1234").second, "1: b1");
  EXPECT_EQ(Ambele("77").second, "2: c1 c2");
  EXPECT_EQ(Ambele("9").second, "0:");
}

TEST_F(Deduceri, AnEmptyOrMissingFileKeepsTheCountAndEmptiesTheTable) {
  index_ = std::make_unique<IndexDeduceri>(files_);
  EXPECT_EQ(Ambele("123").second, "7:");
  Fisier("");
  auto [incarcare, index] = Ambele("123");
  EXPECT_EQ(index, "7:");
  EXPECT_EQ(index, incarcare);
}

TEST_F(Deduceri, ATwentyFirstRowFails) {
  std::string text;
  for (int i = 0; i < 21; ++i) text += Rand("5", "r" + std::to_string(i)) + "\r\n";
  Fisier(text);
  TabelDed t;
  short n = 0;
  EXPECT_EQ(test::FailureOf([&] { index_->Incarca("5", t, n); }), 9);
  EXPECT_EQ(n, 21);
}

TEST_F(Deduceri, ReadsBlocksLongerThanItsBuffer) {
  // Rows of 40000 characters cross the reader's buffer.
  std::string lung(40000, 'N');
  Fisier(Rand("1", "x") + "\r\n" + Rand("2", lung) + "\r\n" + Rand("2", lung + "2") + "\r\n" +
         Rand("3", "y") + "\r\n");
  auto [incarcare, index] = Ambele("2");
  EXPECT_EQ(index, incarcare);
  EXPECT_EQ(index.substr(0, 2), "2:");
  EXPECT_EQ(Ambele("3").second, "1: y");
  EXPECT_EQ(Ambele("1").second, "1: x");
}

}  // namespace
}  // namespace fisc
