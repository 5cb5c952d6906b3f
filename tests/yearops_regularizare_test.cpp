#include <gtest/gtest.h>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "records/Numere.h"
#include "records/Structura.h"
#include "support/TestSupport.h"
#include "tax/Impozit.h"
#include "yearops/RegularizareAnuala.h"

namespace fisc {
namespace {

// An FF1 record of a whole year, the same coefficient each month, fields 77
// to 83 holding letters and `coada` after them.
std::string Record(std::string_view reg, std::string_view venit, std::string_view impozit,
                   std::string_view coef = "1", std::string_view coada = ",,,") {
  std::string r = "1700101080011,#POP#,#ION#,#L#,#J#,#S#,#1#,500100,##,##,##,##,,#X#,#";
  r += reg;
  r += "#,##,##,##,##,##,,,";
  for (int i = 0; i < 12; ++i) r += std::string(coef) + ",";
  for (int i = 0; i < 12; ++i) r += "01.0,";
  for (int i = 0; i < 13; ++i) r += ",,";
  r += std::string(venit) + "," + std::string(impozit) + ",12,2400000,a,b,c,d,e,f,g";
  r += coada;
  return r;
}

class RegularizareAnuala : public ::testing::Test {
 protected:
  void SetUp() override {
    Files data(test::DataDir());
    IncarcaCuantum(data, p_);
    IncarcaImpozitar(data, tabel_);
  }
  double Anual(double suma) {
    short luna = 13;
    return ImpozitLuna(luna, suma, tabel_);
  }
  std::string Regularizat(std::string_view record) {
    std::string out;
    RegularizeazaRecord(record, p_, tabel_, out);
    return out;
  }
  // Fields 77 to 86.
  static std::string Coada(std::string_view record) {
    std::size_t at = record.find(",12,2400000,");
    return std::string(record.substr(at + 12));
  }
  ParametriAn p_;
  TabelImpozit tabel_{};
};

TEST_F(RegularizareAnuala, OnlyTheMarkAndSectionSixChangeEveryOtherByteStays) {
  std::string inainte = Record("", "60000000", "8000000", "1", ",0,12a,");
  ASSERT_TRUE(StructuraRecord(inainte, SablonFF1));
  std::size_t camp15 = inainte.find("#X#,#") + 5;
  std::size_t camp77 = inainte.find(",a,b,c");
  double impozit = Anual(40320000);
  // 12 months of 1600000 x 0.15 = 240000 each; the deductions 12 x 1600000.
  std::string asteptat = inainte.substr(0, camp15) + "X" + inainte.substr(camp15, camp77 - camp15) +
                         ",2880000,59520000,19200000,40320000," + TextDin(impozit) + "," +
                         TextDin(impozit - 8000000) + ",0,,12a,";
  ASSERT_GT(impozit, 8000000);
  EXPECT_EQ(Regularizat(inainte), asteptat) << "the coefficients 01.0 stay as they were";
}

TEST_F(RegularizareAnuala, EqualTaxesWriteZeroTwice) {
  std::string impozit = TextDin(Anual(40320000));
  std::string dupa = Regularizat(Record("", "60000000", impozit));
  EXPECT_NE(dupa.find("," + impozit + ",0,0,,"), std::string::npos) << dupa;
}

TEST_F(RegularizareAnuala, NoIncomeGivesNoDeductionsAndEveryTaxBack) {
  std::string dupa = Regularizat(Record("", "", "500000"));
  EXPECT_EQ(Coada(dupa), "2880000,0,0,0,0,0,500000,,,");
}

TEST_F(RegularizareAnuala, AFailedConditionClearsTheMarkAndSectionSixKeepsSevenAndEight) {
  std::string dupa = Regularizat(Record("X", "60000000", "9000000", "", ",3000000,0,7"));
  EXPECT_NE(dupa.find("#X#,##,##,##"), std::string::npos);
  EXPECT_EQ(dupa.find("#X#,#X#"), std::string::npos);
  EXPECT_EQ(Coada(dupa), ",,,,,,,3000000,,7");
}

TEST_F(RegularizareAnuala, RunningTwiceGivesTheSameFile) {
  test::TempDir dir;
  Files files(dir.path());
  test::WriteBytes(dir / "Ff1.txt",
                   test::Lines({Record("", "60000000", "9000000"), Record("X", "1", "2", ""),
                                Record(" x ", "", "")}));
  ASSERT_EQ(RegularizeazaToate(files, p_, tabel_), RezultatRegularizare::Efectuata);
  std::string odata = test::ReadBytes(dir / "Ff1.txt");
  ASSERT_EQ(RegularizeazaToate(files, p_, tabel_), RezultatRegularizare::Efectuata);
  EXPECT_EQ(test::ReadBytes(dir / "Ff1.txt"), odata);
  EXPECT_FALSE(files.Exists("Temporar.txt"));
}

TEST_F(RegularizareAnuala, NothingIsTouchedWithoutTheAnnualDeductionOrSheets) {
  test::TempDir dir;
  Files files(dir.path());
  EXPECT_EQ(RegularizeazaToate(files, p_, tabel_), RezultatRegularizare::FaraFisier);
  test::WriteBytes(dir / "Ff1.txt", "");
  EXPECT_EQ(RegularizeazaToate(files, p_, tabel_), RezultatRegularizare::FaraFisier);
  test::WriteBytes(dir / "Ff1.txt", "neschimbat\r\n");
  p_.DedLuna[12] = 0;
  EXPECT_EQ(RegularizeazaToate(files, p_, tabel_), RezultatRegularizare::FaraDeducereAnuala);
  EXPECT_EQ(test::ReadBytes(dir / "Ff1.txt"), "neschimbat\r\n");
}

}  // namespace
}  // namespace fisc
