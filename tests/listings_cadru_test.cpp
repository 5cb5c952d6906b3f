#include <gtest/gtest.h>

#include "listings/Cadru.h"
#include "platform/Files.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

std::string Format(std::string valoare) { return FormatSuma(valoare); }

TEST(FormatSuma, GroupsThreeDigitsFromTheRight) {
  EXPECT_EQ(Format("999"), "999");
  EXPECT_EQ(Format("1000"), "1.000");
  EXPECT_EQ(Format("123456"), "123.456");
  EXPECT_EQ(Format("1234567"), "1.234.567");
  EXPECT_EQ(Format("0"), "0");
  EXPECT_EQ(Format(""), "");
}

TEST(FormatSuma, WorksOnTheCharactersOfAWholeNumber) {
  // A decimal point is grouped as if it were a digit.
  EXPECT_EQ(Format("1234.5"), "123.4.5");
}

TEST(FormatSuma, ANegativeValueLosesItsSignInTheCallersVariable) {
  std::string suma = "-1000";
  EXPECT_EQ(FormatSuma(suma), "-1.000");
  EXPECT_EQ(suma, "1000");
  // So the second of two calls on one variable prints no sign.
  EXPECT_EQ(FormatSuma(suma), "1.000");

  std::string mic = "-5";
  EXPECT_EQ(FormatSuma(mic), "-5");
  EXPECT_EQ(mic, "5");
}

TEST(AliniazaDreapta, PutsTheTextAgainstTheRightEdge) {
  EXPECT_EQ(AliniazaDreapta("1.234", 8), "   1.234");
  EXPECT_EQ(AliniazaDreapta("", 3), "   ");
  EXPECT_EQ(AliniazaDreapta("12345", 5), "12345");
  // A text wider than its cell is a negative count of blanks.
  EXPECT_EQ(test::FailureOf([] { AliniazaDreapta("123456", 5); }), 5);
}

TEST(Bucati63, CutsTheTextBehindTheLabelAndSixteenBlanks) {
  const std::string eticheta = "Nume, prenume : ";
  EXPECT_EQ(Bucati63(eticheta, ""), (std::vector<std::string>{eticheta}));
  EXPECT_EQ(Bucati63(eticheta, std::string(62, 'A')),
            (std::vector<std::string>{eticheta + std::string(62, 'A')}));
  // Exactly 63 characters leave a second line of blanks alone.
  EXPECT_EQ(Bucati63(eticheta, std::string(63, 'A')),
            (std::vector<std::string>{eticheta + std::string(63, 'A'), std::string(16, ' ')}));
  EXPECT_EQ(
      Bucati63(eticheta, std::string(63, 'A') + "B"),
      (std::vector<std::string>{eticheta + std::string(63, 'A'), std::string(16, ' ') + "B"}));
  EXPECT_EQ(Bucati63(eticheta, std::string(126, 'A')).size(), 3u);
}

TEST(LiniaExemplar, TheEmployersCopyIsTheOriginal) {
  EXPECT_EQ(LiniaExemplar("angajat"), "(copie pentru angajat)");
  EXPECT_EQ(LiniaExemplar("unitatea fiscala"), "(copie pentru unitatea fiscala)");
  EXPECT_EQ(LiniaExemplar("angajator"), "(original pentru angajator)");
}

class Angajator : public ::testing::Test {
 protected:
  // The employer block as DateAngajator writes it, and the lines it counted.
  std::pair<std::string, short> Bloc(std::string_view record) {
    test::WriteBytes(dir_ / "Repfisc.txt", record);
    short linii = 3;
    {
      LineWriter out = files_.Write("bloc.txt");
      DateAngajator(files_, out, linii);
      out.Close();
    }
    return {test::ReadBytes(dir_ / "bloc.txt"), static_cast<short>(linii - 3)};
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
};

TEST_F(Angajator, AFirmHasItsDenominationAndAPostalCodeUnlessZero) {
  auto [text, numarate] = Bloc(
      "12345674,1,#SC TEST SRL#,##,##,#BRASOV#,#BRASOV#,#STR. LUNGA#,#12#,0,#A#,##,##,#14#,,#"
      "0268123456#,##\r\n");
  EXPECT_EQ(text, test::Lines({"1 - cod de inregistrare fiscala/ cod unic de inregistrare",
                               "Cod angajator : 12345674", "Denumire      : SC TEST SRL",
                               "Adresa        : BRASOV,jud.BRASOV,str.STR. LUNGA,nr.12,bl.A,ap.14",
                               "Telefon : 0268123456"}));
  EXPECT_EQ(numarate, 5);
}

TEST_F(Angajator, APersonInBucurestiHasASectorAndNoCounty) {
  auto [text, numarate] = Bloc(
      "1800101123450,2,##,#POPESCU#,#ION#,#BUCURESTI#,# #,#VICTORIEI#,#1#,10101,##,"
      "#B#,#3#,##,6,##,#ION@MAIL.RO#\r\n");
  EXPECT_EQ(text, test::Lines({"2 - cod numeric personal/ numar de identificare fiscala",
                               "Cod angajator : 1800101123450", "Nume,prenume  : POPESCU ION",
                               "Adresa        : BUCURESTI,str.VICTORIEI,nr.1,cod postal "
                               "10101,sc.B,et.3,sect.6",
                               " , E-mail : ION@MAIL.RO"}));
  EXPECT_EQ(numarate, 5);
}

TEST_F(Angajator, AnotherTypeLeavesTheHeadEmptyAndTheCountyStandsEvenEmpty) {
  auto [text, numarate] =
      Bloc("12345674,0,#FIRMA#,##,##,#DEVA#,##,#STR. MICA#,#2#,0,##,##,##,##,,##,##\r\n");
  EXPECT_EQ(text, test::Lines({"", "Cod angajator : 12345674", "",
                               "Adresa        : DEVA,jud.,str.STR. MICA,nr.2", ""}));
  EXPECT_EQ(numarate, 5);
}

TEST_F(Angajator, ATypeWithAFractionIsAnotherTypeNotTheOneItBeginsWith) {
  for (std::string_view tip : {"1.5", "2.9"}) {
    std::string record = "12345674," + std::string(tip) +
                         ",#FIRMA#,#POP#,#ION#,#DEVA#,#HUNEDOARA#,#S#,#2#,0,##,##,##,##,,##,##\r\n";
    auto [text, numarate] = Bloc(record);
    EXPECT_EQ(text, test::Lines({"", "Cod angajator : 12345674", "",
                                 "Adresa        : DEVA,jud.HUNEDOARA,str.S,nr.2", ""}))
        << tip;
    EXPECT_EQ(numarate, 5);
  }
}

TEST_F(Angajator, ANameOf64CharactersTakesASecondLine) {
  std::string den = std::string(63, 'D') + "E";
  auto [text, numarate] =
      Bloc("12345674,1,#" + den + "#,##,##,#DEVA#,#HUNEDOARA#,#S#,#2#,0,##,##,##,##,,##,##\r\n");
  EXPECT_NE(text.find("Denumire      : " + std::string(63, 'D') + "\r\n" + std::string(16, ' ') +
                      "E\r\n"),
            std::string::npos);
  EXPECT_EQ(numarate, 6);
}

TEST_F(Angajator, AnEmptyFileGivesOneLineThatIsNotCounted) {
  auto [text, numarate] = Bloc("");
  EXPECT_EQ(text, test::Lines({"Nu sunt date despre angajator"}));
  EXPECT_EQ(numarate, 0);
}

TEST_F(Angajator, AMissingFileEndsTheListing) {
  short linii = 0;
  LineWriter out = files_.Write("bloc.txt");
  EXPECT_EQ(test::FailureOf([&] { DateAngajator(files_, out, linii); }), 53);
}

// An FF1 record head up to FlagReg, with `reg` in field 15.
std::string Fisa(std::string_view cod, std::string_view reg) {
  return std::string(cod) + ",#N#,#P#,#L#,#J#,#S#,#1#,0,##,##,##,##,,##,#" + std::string(reg) +
         "#,##,##,##,##,#,,";
}

TEST(FiltruFise, SplitsTheSheetsByTheTrimmedUpperCaseMark) {
  test::TempDir dir;
  Files files(dir.path());
  const std::string a = Fisa("1", "X"), b = Fisa("2", " x "), c = Fisa("3", ""), d = Fisa("4", "Y");
  test::WriteBytes(dir / "Ff1.txt", test::Lines({a, b, c, d}));
  test::WriteBytes(dir / "Ff1N.txt", "stale\r\n");
  StareListare s;
  s.FisierSursa = "Ff1.txt";
  std::string cod;

  s.CondListare = "N";
  s.FisierDeListat = "Ff1N.txt";
  FiltruFise(files, s, cod);
  EXPECT_EQ(test::ReadBytes(dir / "Ff1N.txt"), test::Lines({c, d}));
  EXPECT_EQ(cod, "4");

  s.CondListare = "R";
  s.FisierDeListat = "Ff1R.txt";
  FiltruFise(files, s, cod);
  EXPECT_EQ(test::ReadBytes(dir / "Ff1R.txt"), test::Lines({a, b}));
}

TEST(FiltruFise, ARecordWithoutItsDelimitersEndsTheRun) {
  test::TempDir dir;
  Files files(dir.path());
  test::WriteBytes(dir / "Ff1.txt", "1,#N#,#P#\r\n");
  StareListare s{0, "", "N", "Ff1N.txt", "Ff1.txt", "", ""};
  std::string cod;
  EXPECT_EQ(test::FailureOf([&] { FiltruFise(files, s, cod); }), 5);
}

}  // namespace
}  // namespace fisc
