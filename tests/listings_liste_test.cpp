#include <gtest/gtest.h>

#include <sstream>

#include "listings/ListaFF1.h"
#include "listings/ListaFF2.h"
#include "params/Cuantum.h"
#include "platform/Files.h"
#include "sheets/FisaInLucru.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

constexpr std::string_view kCod = "1800101123450";
const std::string kAntet =
    "                                                   (Cod angajat : " + std::string(kCod) + ")";

constexpr std::string_view kAdresa = "#,#ION#,#DEVA#,#HUNEDOARA#,#S#,#1#,0,##,##,##,##,,#";

std::string Repeta(std::string_view text, int n) {
  std::string s;
  for (int i = 0; i < n; ++i) s += text;
  return s;
}

// An FF1 record with the given name and first month's income, the rest empty.
std::string RecordFF1(std::string_view nume, std::string_view venit = "") {
  return std::string(kCod) + ",#" + std::string(nume) + std::string(kAdresa) + Repeta("#,#", 6) +
         "#,," + std::string(24, ',') + "," + std::string(venit) + std::string(27 + 12, ',');
}

std::string RecordFF2(std::string_view nume) {
  return std::string(kCod) + ",#" + std::string(nume) + std::string(kAdresa) + Repeta("#,#", 8) +
         "#," + std::string(25, ',');
}

std::string RandDed(int i) {
  return std::string(kCod) + ",16007071234" + std::to_string(10 + i) +
         ",#N#,#P#,##,#X#,##,##,##,##,0.5" + std::string(11, ',') + "0.5";
}

class Liste : public ::testing::Test {
 protected:
  Liste() {
    test::WriteBytes(dir_ / "Repfisc.txt",
                     "12345674,1,#SC TEST SRL#,##,##,#DEVA#,#HUNEDOARA#,#S#,#2#,0,##,##,##,##,,##,"
                     "##\r\n");
    parametri_.AnFiscal = "2002";
    parametri_.DedLuna[12] = 1600000;
    listare_.Exemplar = "angajat";
    fisa_.CodCurent = kCod;
  }

  std::vector<std::string> FF1(const std::string& record) {
    {
      LineWriter out = files_.Write("ListF1.txt");
      ListaFF1 lista(files_, out, parametri_, fisa_, listare_, "nume", "functie");
      lista.ListF1(record);
      out.Close();
    }
    return Linii("ListF1.txt");
  }
  std::vector<std::string> FF2(const std::string& record) {
    {
      LineWriter out = files_.Write("ListF2.txt");
      ListaFF2 lista(files_, out, parametri_, listare_, "nume", "functie");
      lista.ListF2(record);
      out.Close();
    }
    return Linii("ListF2.txt");
  }
  std::vector<std::string> Linii(std::string_view fisier) {
    std::vector<std::string> linii;
    LineReader in = files_.Read(fisier);
    std::string l;
    while (in.Next(l)) linii.push_back(l);
    return linii;
  }
  // Numbers from 1 of the lines that name the employee.
  static std::vector<std::size_t> Antete(const std::vector<std::string>& linii) {
    std::vector<std::size_t> la;
    for (std::size_t i = 0; i < linii.size(); ++i)
      if (linii[i] == kAntet) la.push_back(i + 1);
    return la;
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  ParametriAn parametri_;
  FisaInLucru fisa_;
  StareListare listare_;
};

TEST_F(Liste, ASheetIsPaddedToTheNextPageOfTheGrid) {
  auto linii = FF1(RecordFF1("POPESCU"));
  EXPECT_EQ(linii.size(), 130u);
  EXPECT_EQ(Antete(linii), (std::vector<std::size_t>{66}));
  EXPECT_EQ(linii[66], "");
  EXPECT_EQ(linii[129], "");
}

TEST_F(Liste, TwentyDependantsReachAThirdPageAndItsHeaderToo) {
  std::string ded;
  for (int i = 1; i <= 20; ++i) ded += RandDed(i) + "\r\n";
  test::WriteBytes(dir_ / "Deduceri.txt", ded);
  auto linii = FF1(RecordFF1("POPESCU"));
  EXPECT_EQ(linii.size(), 260u);
  EXPECT_EQ(Antete(linii), (std::vector<std::size_t>{66, 131, 196}));
  EXPECT_EQ(fisa_.NrPersoane, 20);
}

TEST_F(Liste, PastSevenPagesThereIsNoHeaderAndNoPadding) {
  // A name of 450 pieces of 63 characters: the ninth page has no header.
  auto linii = FF1(RecordFF1(std::string(63 * 450, 'N')));
  EXPECT_EQ(Antete(linii), (std::vector<std::size_t>{66, 131, 196, 261, 326, 391, 456}));
  EXPECT_GT(linii.size(), 8 * 65u);
  EXPECT_EQ(linii.back(),
            "Semnatura si stampila angajatorului__________________________________________");
}

TEST_F(Liste, WithNoAnnualDeductionSectionVIRunsElevenLinesPastTheGrid) {
  parametri_.DedLuna[12] = 0;
  auto linii = FF1(RecordFF1("POPESCU"));
  EXPECT_EQ(linii.size(), 141u);
  EXPECT_EQ(Antete(linii), (std::vector<std::size_t>{66}));
}

TEST_F(Liste, AnAmountWiderThanItsCellEndsTheListing) {
  EXPECT_EQ(test::FailureOf([&] { FF1(RecordFF1("POPESCU", "12345678901234567")); }), 5);
}

TEST_F(Liste, AnFF2SheetOverOnePageGetsNoPadding) {
  EXPECT_EQ(FF2(RecordFF2("POPESCU")).size(), 65u);
  auto linii = FF2(RecordFF2(std::string(63 * 30, 'N')));
  EXPECT_GT(linii.size(), 65u);
  EXPECT_EQ(linii.back(),
            "Semnatura si stampila angajatorului__________________________________________");
  EXPECT_TRUE(Antete(linii).empty());
}

}  // namespace
}  // namespace fisc
