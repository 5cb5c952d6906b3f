#include <gtest/gtest.h>

#include "platform/Files.h"
#include "records/Structura.h"
#include "support/TestSupport.h"
#include "yearops/PreluareAnPrecedent.h"

namespace fisc {
namespace {

// Lines of last year's structures.
std::string Antet(std::string_view cod) {
  return std::string(cod) + ",#POP#,#ION#,#BRASOV#,#BRASOV#,#STR#,#1#,500100,##,##,##,##,3";
}
std::string FF1Vechi(std::string_view cod, std::string_view sfarsit) {
  std::string l = Antet(cod) + ",#X#,##,01/02/2001," + std::string(sfarsit);
  for (int i = 0; i < 12; ++i) l += ",7";
  l += ",#X#,##";
  for (int i = 0; i < 88; ++i) l += ",9";
  return l;
}
std::string FF2Vechi(std::string_view cod) {
  std::string l = Antet(cod) + ",1,2,#X#,##,##,##,##,##,##,";
  for (int i = 0; i < 26; ++i) l += i ? ",5" : "5";
  return l;
}
std::string DedVechi(std::string_view codI, std::string_view marci) {
  return "1700101080011," + std::string(codI) + ",#NUME#,#PREN#," + std::string(marci) +
         ",0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5";
}

TEST(Preluare, TheEmployerTypeFollowsTheLengthOfTheCode) {
  std::string rest = ",#T1#,#T2#,#DEN#,##,##,#LOC#,#JUD#,#STR#,#1#,500100,#A#,#B#,#C#,#D#,4";
  std::string cf = PreiaAngajator("12345674" + rest);
  EXPECT_EQ(cf, "12345674,1,#DEN#,##,##,#LOC#,#JUD#,#STR#,#1#,500100,#A#,#B#,#C#,#D#,4,##,##");
  EXPECT_TRUE(StructuraRecord(cf, SablonAngajator));
  EXPECT_TRUE(PreiaAngajator("1700101080011" + rest).starts_with("1700101080011,2,#DEN#"));
  EXPECT_TRUE(PreiaAngajator("1234567890123" + rest).starts_with("1234567890123,2,"));
  EXPECT_EQ(PreiaAngajator("12345674,1,#DEN#"), "");
}

TEST(Preluare, OnlyThoseEmployedOnTheLastDayOfAYearStay) {
  EXPECT_NE(PreiaFF1(FF1Vechi("1700101080011", "")), "");
  EXPECT_NE(PreiaFF1(FF1Vechi("1700101080011", "31/12/2001")), "");
  EXPECT_NE(PreiaFF1(FF1Vechi("1700101080011", "31/12/2000")), "");
  for (std::string_view gol : {"/  /", ".  .", "-  -", "//", "..", "--"})
    EXPECT_NE(PreiaFF1(FF1Vechi("1700101080011", gol)), "") << gol;
  EXPECT_EQ(PreiaFF1(FF1Vechi("1700101080011", "30/12/2001")), "");
  EXPECT_EQ(PreiaFF1(FF1Vechi("1700101080011", "31.12.2001")), "");
}

TEST(Preluare, SheetsKeepTheirHeadAndStartBlank) {
  std::string ff1 = PreiaFF1(FF1Vechi("1700101080011", ""));
  EXPECT_TRUE(StructuraRecord(ff1, SablonFF1)) << ff1;
  std::string corp = ",##,##,##,##,##,##,##,,,";
  for (int i = 0; i < 24; ++i) corp += "1,";
  EXPECT_EQ(ff1, Antet("1700101080011") + corp + std::string(39, ','));

  std::string ff2 = PreiaFF2(FF2Vechi("1700101080011"));
  EXPECT_TRUE(StructuraRecord(ff2, SablonFF2)) << ff2;
  EXPECT_EQ(ff2, Antet("1700101080011") + ",##,##,##,##,##,##,##,##,##," + std::string(25, ','));
  EXPECT_EQ(PreiaFF2(FF1Vechi("1700101080011", "")), "");
}

TEST(Preluare, AChildsAgeMovesItsMarks) {
  // Born 1984, 1983 and 2002: 18, 19 and 0 years old in 2002.
  std::string optsprezece = PreiaDeducere(DedVechi("1840101080011", "##,#X#,##,##,##"), "2002");
  EXPECT_TRUE(StructuraRecord(optsprezece, SablonDeducere)) << optsprezece;
  EXPECT_EQ(optsprezece,
            "1700101080011,1840101080011,#NUME#,#PREN#,##,#X#,#X#,##,##,##"
            ",0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5");
  EXPECT_NE(PreiaDeducere(DedVechi("2830101080011", "##,# x#,##,##,##"), "2002")
                .find("#PREN#,##,##,#X#,"),
            std::string::npos);
  EXPECT_NE(PreiaDeducere(DedVechi("5020304080011", "##,#X#,#X#,##,##"), "2002")
                .find("#PREN#,##,#X#,##,"),
            std::string::npos);
  // Not a child: the marks go on as read, trimmed and in upper case.
  EXPECT_NE(PreiaDeducere(DedVechi("2750101080011", "# x #,##,#y#,##,##"), "2002")
                .find("#PREN#,#X#,##,#Y#,"),
            std::string::npos);
}

TEST(Preluare, InvalidityGivesTheCoefficientGradeTwoWinning) {
  auto coef = [](std::string_view marci) {
    std::string l = PreiaDeducere(DedVechi("2750101080011", marci), "2002");
    return l.substr(l.rfind(',') + 1);
  };
  EXPECT_EQ(coef("#X#,##,##,##,##"), "0.5");
  EXPECT_EQ(coef("#X#,##,##,#X#,##"), "1.5");
  EXPECT_EQ(coef("#X#,##,##,##,#X#"), "1");
  EXPECT_EQ(coef("#X#,##,##,#X#,#X#"), "1");
  EXPECT_NE(
      PreiaDeducere(DedVechi("2750101080011", "#X#,##,##,#X#,#x#"), "2002").find("#X#,#X#,##,1,"),
      std::string::npos)
      << "inv3 comes empty";
}

class PreluareFisiere : public ::testing::Test {
 protected:
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  test::TempDir dir_;
  Files files_{dir_.path()};
};

TEST_F(PreluareFisiere, NoEmployerOfLastYearStopsAndMakesTheWorkingFilesExist) {
  Scrie("Rep_2001.txt", "");
  Scrie("Ff1.txt", "pastrat\r\n");
  EXPECT_TRUE(PreluareImposibila(files_, "2002"));
  EXPECT_EQ(Citeste("Ff1.txt"), "pastrat\r\n");
  for (std::string_view nume : {"Repfisc.txt", "Ff2.txt", "Deduceri.txt"})
    EXPECT_EQ(Citeste(nume), "") << nume;
}

TEST_F(PreluareFisiere, MissingSourcesLeaveTheirTargetsAbsentAndBadLinesOnlyCount) {
  Scrie("Rep_2001.txt", "un rand de alta forma\r\n");
  Scrie("FF2_2001.txt", test::Lines({"rau", "", "1700101080011,#X#"}));
  for (std::string_view nume : {"Repfisc.txt", "Ff1.txt", "Ff2.txt", "Deduceri.txt"})
    Scrie(nume, "vechi\r\n");
  ASSERT_FALSE(PreluareImposibila(files_, "2002"));
  ContoarePreluare n = PreiaAnPrecedent(files_, "2002");
  EXPECT_EQ(n.FF2Scrise, 0);
  EXPECT_EQ(n.FF2Citite, 3);
  EXPECT_EQ(n.FF1Citite, 0);
  EXPECT_EQ(Citeste("Repfisc.txt"), "");
  EXPECT_EQ(Citeste("Ff2.txt"), "");
  EXPECT_FALSE(files_.Exists("Ff1.txt"));
  EXPECT_FALSE(files_.Exists("Deduceri.txt"));
  EXPECT_FALSE(files_.Exists("Temporar.txt"));
}

TEST_F(PreluareFisiere, DependantsOfThoseNotTakenOverGoAndDuplicatesToo) {
  Scrie("Rep_2001.txt", "12345674,#A#,#B#,#D#,##,##,#L#,#J#,#S#,#1#,1,#A#,#B#,#C#,#D#,\r\n");
  Scrie("FF1_2001.txt",
        test::Lines({FF1Vechi("1700101080033", ""), FF1Vechi("1700101080022", "30/06/2001"),
                     FF1Vechi("1700101080011", "")}));
  auto ded = [](std::string_view angajat, std::string_view codI) {
    return std::string(angajat) + "," + std::string(codI) +
           ",#N#,#P#,##,##,#X#,##,##,1,1,1,1,1,1,1,1,1,1,1,1";
  };
  Scrie(
      "Ded_2001.txt",
      test::Lines({ded("1700101080022", "1500101080022"), ded("1700101080033", "1500101080033"),
                   ded("1700101080011", "1500101080011"), ded("1700101080044", "1500101080044"),
                   ded("1700101080011", "1500101080011"), ded("1700101080000", "1500101080000")}));
  ContoarePreluare n = PreiaAnPrecedent(files_, "2002");
  EXPECT_EQ(n.FF1Scrise, 2);
  EXPECT_EQ(n.FF1Citite, 3);
  std::string coef = ",0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5,0.5";
  EXPECT_EQ(Citeste("Deduceri.txt"),
            test::Lines({"1700101080011,1500101080011,#N#,#P#,##,##,#X#,##,##,##" + coef,
                         "1700101080033,1500101080033,#N#,#P#,##,##,#X#,##,##,##" + coef}));
  EXPECT_FALSE(files_.Exists("man_ded.txt"));
  EXPECT_FALSE(files_.Exists("Temporar.txt"));
}

}  // namespace
}  // namespace fisc
