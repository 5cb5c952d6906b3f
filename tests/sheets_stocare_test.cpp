#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "sheets/Stocare.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

constexpr std::string_view kCod = "1800101123456";
constexpr std::string_view kAlt = "2750505123450";

// FF1-like lines: only the position of the codes matters here.
const std::string kLinieAlt = std::string(kAlt) + ",#ALT#,#A#";
const std::string kLinieCod = std::string(kCod) + ",#VECHI#,#V#";
const std::string kLinieCodMaiDeparte = "2600606123451,#ADRESA " + std::string(kCod) + "#,#X#";

class Stocare : public ::testing::Test {
 protected:
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }

  // A dependant row of `angajat` naming `persoana`.
  static std::string RandDed(std::string_view angajat, std::string_view persoana) {
    return std::string(angajat) + "," + std::string(persoana) + ",#N#,#P#,##,#X#,##,##,##,##,,1" +
           std::string(10, ',') + "1";
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  Pozitii pozitii_{7, 7, 7};
};

TEST_F(Stocare, CautaCodLooksAtTheStartOfEachLineOfBothFiles) {
  Scrie("Ff1.txt", kLinieAlt + "\r\n" + kLinieCod + "\r\n");
  Scrie("Ff2.txt", kLinieCodMaiDeparte + "\r\n");
  EXPECT_EQ(CautaCod(files_, kCod, pozitii_), "F1");
  EXPECT_EQ(pozitii_, (Pozitii{0, 1, 7}));

  Scrie("Ff2.txt", kLinieCod + "\r\n");
  EXPECT_EQ(CautaCod(files_, kCod, pozitii_), "F1F2");
  EXPECT_EQ(pozitii_, (Pozitii{1, 1, 7}));

  Scrie("Ff1.txt", kLinieAlt);
  EXPECT_EQ(CautaCod(files_, kCod, pozitii_), "F2");
  EXPECT_EQ(pozitii_, (Pozitii{1, 0, 7}));

  // The start of a longer code matches: the look-up is a text search.
  EXPECT_EQ(CautaCod(files_, kCod.substr(0, 12), pozitii_), "F2");
  EXPECT_EQ(CautaCod(files_, "1", pozitii_), "F2");
  EXPECT_EQ(CautaCod(files_, "3", pozitii_), "");
}

TEST_F(Stocare, CautaCodFindsNothingWithoutTheFiles) {
  EXPECT_EQ(CautaCod(files_, kCod, pozitii_), "");
  EXPECT_EQ(pozitii_, (Pozitii{0, 0, 7}));
}

TEST_F(Stocare, GasesteLiniaCountsLinesFromOne) {
  Scrie("FF1.TXT", kLinieCodMaiDeparte + "\r\n" + kLinieAlt + "\n" + kLinieCod + "\r\n");
  LinieGasita gasita = GasesteLinia(files_, "Ff1.txt", kCod);
  EXPECT_EQ(gasita.Numar, 3);
  EXPECT_EQ(gasita.Text, kLinieCod);
  EXPECT_EQ(GasesteLinia(files_, "Ff1.txt", "3").Numar, 0);
}

TEST_F(Stocare, SalveazaFF1AppendsANewSheetWithItsDependants) {
  Scrie("Ff1.txt", kLinieAlt + "\r\n");
  Scrie("Ff2.txt", kLinieCod + "\r\n");
  Scrie("Deduceri.txt", RandDed(kAlt, "1") + "\r\n");
  TabelDed ded;
  ded(1, 1) = "5000101123456";
  ded(2, 1) = "6000101123456";
  ded(3, 1) = "left over";
  SalveazaFF1(files_, "2002", kCod, "NOU", 0, ded, 2);

  EXPECT_EQ(Citeste("Ff1.txt"), kLinieAlt + "\r\nNOU\r\n");
  EXPECT_EQ(Citeste("Ff2.txt"), kLinieCod + "\r\n");
  std::string deduceri = Citeste("Deduceri.txt");
  EXPECT_EQ(deduceri, RandDed(kAlt, "1") + "\r\n" + RecordDed(kCod, ded, 1) + "\r\n" +
                          RecordDed(kCod, ded, 2) + "\r\n");
  EXPECT_EQ(Citeste("FF1_2002.txt"), Citeste("Ff1.txt"));
  EXPECT_EQ(Citeste("Ded_2002.txt"), deduceri);
  EXPECT_FALSE(files_.Exists("Temporar.txt"));
}

TEST_F(Stocare, SalveazaFF1ReplacesTheLineInPlaceAndDropsOneWithTheCodeLater) {
  const std::string inainte = kLinieAlt + "\r\n";
  const std::string dupa = "2900101123452,#Z#\r\n\r\n";
  Scrie("ff1.txt", inainte + kLinieCod + "\r\n" + kLinieCodMaiDeparte + "\r\n" + dupa);
  Scrie("Temporar.txt", "left by a crash");
  Scrie("ff1_2002.txt", "old copy");
  SalveazaFF1(files_, "2002", kCod, "NOU", 2, TabelDed(), 0);

  EXPECT_EQ(Citeste("ff1.txt"), inainte + "NOU\r\n" + dupa);
  EXPECT_EQ(Citeste("ff1_2002.txt"), Citeste("ff1.txt"));
  EXPECT_FALSE(files_.Exists("Temporar.txt"));
  EXPECT_EQ(files_.List().size(), 4u);  // ff1, Deduceri and their copies
}

TEST_F(Stocare, SalveazaFF1PurgesEveryDependantLineNamingTheCode) {
  Scrie("Ff1.txt", kLinieCod + "\r\n");
  const std::string altii = RandDed(kAlt, "5000101123456") + "\r\n";
  Scrie("Deduceri.txt", RandDed(kCod, "5000101123456") + "\r\n" + altii +
                            RandDed("2600606123451", kCod) + "\r\n" +
                            RandDed(kCod, "6000101123456") + "\r\n");
  TabelDed ded;
  ded(1, 1) = "7000101123456";
  SalveazaFF1(files_, "2002", kCod, "NOU", 1, ded, 1);
  EXPECT_EQ(Citeste("Deduceri.txt"), altii + RecordDed(kCod, ded, 1) + "\r\n");

  // With no dependants left the code has no line at all.
  SalveazaFF1(files_, "2002", kCod, "NOU", 1, ded, 0);
  EXPECT_EQ(Citeste("Deduceri.txt"), altii);
  EXPECT_EQ(Citeste("Ded_2002.txt"), altii);
}

TEST_F(Stocare, SalveazaFF1CreatesAMissingDependantsFile) {
  SalveazaFF1(files_, "2002", kCod, "NOU", 0, TabelDed(), 0);
  EXPECT_EQ(Citeste("Ff1.txt"), "NOU\r\n");
  EXPECT_TRUE(files_.Exists("Deduceri.txt"));
  EXPECT_EQ(Citeste("Ded_2002.txt"), "");
}

TEST_F(Stocare, SalveazaFF2RewritesOnlyTheSecondSheetFile) {
  Scrie("Ff1.txt", kLinieCod + "\r\n");
  Scrie("Ff2.txt", kLinieCod + "\r\n" + kLinieAlt + "\r\n");
  SalveazaFF2(files_, "2002", kCod, "NOU2", 1);
  EXPECT_EQ(Citeste("Ff2.txt"), "NOU2\r\n" + kLinieAlt + "\r\n");
  SalveazaFF2(files_, "2002", "3000101123456", "ALT2", 0);
  EXPECT_EQ(Citeste("Ff2.txt"), "NOU2\r\n" + kLinieAlt + "\r\nALT2\r\n");
  EXPECT_EQ(Citeste("FF2_2002.txt"), Citeste("Ff2.txt"));
  EXPECT_EQ(Citeste("Ff1.txt"), kLinieCod + "\r\n");
  EXPECT_FALSE(files_.Exists("FF1_2002.txt"));
}

TEST_F(Stocare, IncarcaDeduceriReadsTheFirstUnbrokenBlock) {
  Scrie("Deduceri.txt", RandDed(kAlt, "1") + "\r\n" + RandDed(kCod, "11") + "\r\n" +
                            RandDed(kCod, "12") + "\r\n" + RandDed(kAlt, kCod) + "\r\n" +
                            RandDed(kCod, "13") + "\r\n");
  TabelDed ded;
  ded(5, 1) = "stale";
  short nr = 9;
  IncarcaDeduceri(files_, kCod, ded, nr, pozitii_);
  EXPECT_EQ(nr, 2);
  EXPECT_EQ(pozitii_[2], 3);
  EXPECT_EQ(ded(1, 1), "11");
  EXPECT_EQ(ded(2, 1), "12");
  EXPECT_EQ(ded(2, 5), "X");
  EXPECT_EQ(ded(3, 1), "");
  EXPECT_EQ(ded(5, 1), "");
}

TEST_F(Stocare, IncarcaDeduceriSearchesTheCodeWithItsComma) {
  Scrie("Deduceri.txt", RandDed(kCod, "11") + "\r\n" + RandDed(kCod, "12"));  // no line end
  TabelDed ded;
  short nr = 9;
  IncarcaDeduceri(files_, kCod, ded, nr, pozitii_);
  EXPECT_EQ(nr, 2);
  EXPECT_EQ(ded(2, 21), "1");

  IncarcaDeduceri(files_, kCod.substr(0, 12), ded, nr, pozitii_);
  EXPECT_EQ(nr, 0);
  EXPECT_EQ(pozitii_[2], 0);
  EXPECT_EQ(ded(1, 1), "");
}

TEST_F(Stocare, IncarcaDeduceriOnAnEmptyFileKeepsTheOldCount) {
  Scrie("Deduceri.txt", "");
  TabelDed ded;
  ded(1, 1) = "stale";
  short nr = 4;
  IncarcaDeduceri(files_, kCod, ded, nr, pozitii_);
  EXPECT_EQ(nr, 4);
  EXPECT_EQ(pozitii_[2], 7);
  EXPECT_EQ(ded(1, 1), "");
}

TEST_F(Stocare, IncarcaDeduceriFailsOnATwentyFirstRow) {
  std::string bloc;
  for (int i = 0; i < 21; ++i) bloc += RandDed(kCod, std::to_string(i + 1)) + "\r\n";
  Scrie("Deduceri.txt", bloc);
  TabelDed ded;
  short nr = 0;
  EXPECT_EQ(test::FailureOf([&] { IncarcaDeduceri(files_, kCod, ded, nr, pozitii_); }),
            err::SubscriptOutOfRange);
  EXPECT_EQ(nr, 21);
  EXPECT_EQ(ded(20, 1), "20");
}

TEST_F(Stocare, StergeFF1RemovesEveryLineWithTheCodeFromBothFiles) {
  Scrie("Ff1.txt", kLinieCod + "\r\n" + kLinieAlt + "\r\n" + kLinieCodMaiDeparte + "\r\n");
  Scrie("Ff2.txt", kLinieCod + "\r\n");
  Scrie("Deduceri.txt",
        RandDed(kCod, "1") + "\r\n" + RandDed(kAlt, kCod) + "\r\n" + RandDed(kAlt, "2") + "\r\n");
  StergeFF1(files_, "2002", kCod);
  EXPECT_EQ(Citeste("Ff1.txt"), kLinieAlt + "\r\n");
  EXPECT_EQ(Citeste("Deduceri.txt"), RandDed(kAlt, "2") + "\r\n");
  EXPECT_EQ(Citeste("FF1_2002.txt"), Citeste("Ff1.txt"));
  EXPECT_EQ(Citeste("Ded_2002.txt"), Citeste("Deduceri.txt"));
  EXPECT_EQ(Citeste("Ff2.txt"), kLinieCod + "\r\n");

  StergeFF2(files_, "2002", kCod);
  EXPECT_EQ(Citeste("Ff2.txt"), "");
  EXPECT_EQ(Citeste("FF2_2002.txt"), "");
}

}  // namespace
}  // namespace fisc
