#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "app/Aplicatie.h"
#include "sheets/Sortare.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

class Sortare : public ::testing::Test {
 protected:
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  Desktop desktop_;
  Form form_{desktop_, "Intro", ""};
  Control& lista_ = form_.Add(ControlKind::ComboBox, "Combo1").SetSorted(true);
};

TEST(CheieSortare, TakesTheNameAndTheFirstNameOfARecord) {
  EXPECT_EQ(CheieSortare("1800101123450,#POPESCU#,#ION#,#BRASOV#,#BRASOV#"), "POPESCU ION");
  EXPECT_EQ(CheieSortare("1,##,##,"), " ");
}

TEST(CheieSortare, ARecordWithoutItsDelimitersFails) {
  for (std::string_view r : {"", "1800101123450", "1800101123450,#POPESCU", "1,#POP#,#ION"}) {
    try {
      CheieSortare(r);
      ADD_FAILURE() << r;
    } catch (const RuntimeFailure& f) {
      EXPECT_EQ(f.number(), err::InvalidCall) << r;
    }
  }
}

TEST_F(Sortare, OrdersByNameThenFirstNameThenTheRecordWithoutRegardToCase) {
  Scrie("Ff1.txt",
        "2900101123455,#POPESCU#,#ION#,#X#\r\n"
        "1900101123456,#popa#,#maria#,#X#\r\n"
        "1800101123450,#POPESCU#,#ION#,#Y#\r\n"
        "1700101123451,#POP#,#VASILE#,#Z#\r\n"
        "1600101123452,#Ionescu#,#Ana#,#Z#\r\n");
  SorteazaAlfabetic(files_, lista_, "Ff1.txt", "ff1_sort1.txt");
  // "POP VASILE" before "popa": the blank after the name sorts first. Equal
  // names follow the code, the next characters of the list's entries.
  EXPECT_EQ(Citeste("ff1_sort1.txt"),
            "1600101123452,#Ionescu#,#Ana#,#Z#\r\n"
            "1700101123451,#POP#,#VASILE#,#Z#\r\n"
            "1900101123456,#popa#,#maria#,#X#\r\n"
            "1800101123450,#POPESCU#,#ION#,#Y#\r\n"
            "2900101123455,#POPESCU#,#ION#,#X#\r\n");
  EXPECT_EQ(lista_.ListCount(), 0);
}

TEST_F(Sortare, ARecordHoldingAnAtSignIsCutThere) {
  Scrie("Ff2.txt", "1,#B#,#B#,#MAIL@X.RO#,#\r\n2,#A#,#A#,##\r\n");
  SorteazaAlfabetic(files_, lista_, "Ff2.txt", "ff2_sort1.txt");
  EXPECT_EQ(Citeste("ff2_sort1.txt"), "2,#A#,#A#,##\r\n1,#B#,#B#,#MAIL\r\n");
}

TEST_F(Sortare, CheckingReplacesAStaleCopyAndCopiesAnEmptyFile) {
  Scrie("Ff1.txt", "");
  Scrie("FF1_SORT1.TXT", "STALE\r\n");
  PregatesteSortare(files_, lista_, true);
  EXPECT_EQ(Citeste("ff1_sort1.txt"), "");
  EXPECT_EQ(files_.List().size(), 2u);
}

}  // namespace
}  // namespace fisc

namespace fisc {
namespace {

std::vector<std::string> LiniiCuSfarsit(const std::filesystem::path& file) {
  std::vector<std::string> linii;
  std::string bytes = test::ReadBytes(file);
  for (std::size_t at = 0, end; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2)
    linii.push_back(bytes.substr(at, end + 2 - at));
  return linii;
}

TEST(Check1, MakesTheCopiesThatTheListingsFollowAndDeletesThemWhenCleared) {
  namespace fs = std::filesystem;
  const fs::path caz =
      test::DataDir().parent_path() / "tests/replay/listing_borderou_sorted/before";
  test::TempDir dir;
  for (const char* f : {"Cuantum.txt", "Impozitar.txt"}) fs::copy(test::DataDir() / f, dir / f);
  for (const auto& e : fs::directory_iterator(caz))
    fs::copy(e.path(), dir / e.path().filename().string());
  Files files(dir.path());
  HeadlessDialogs dialogs;
  HeadlessClock clock;
  HeadlessLauncher launcher;
  Drive drive(dir / "a");
  HeadlessPrinter printer;
  Platforma p{files, dialogs, clock, launcher, drive, printer};
  Aplicatie app(p);
  ASSERT_TRUE(app.Porneste());

  app.Ecran().UserClick(app.intro.Check1);
  // By name and first name; the two POPESCU ION by their codes.
  std::vector<std::string> ff1 = LiniiCuSfarsit(caz / "FF1_2002.txt");
  std::vector<std::string> ff2 = LiniiCuSfarsit(caz / "FF2_2002.txt");
  ASSERT_EQ(ff1.size(), 5u);
  ASSERT_EQ(ff2.size(), 2u);
  EXPECT_EQ(test::ReadBytes(dir / "ff1_sort1.txt"), ff1[4] + ff1[1] + ff1[0] + ff1[3] + ff1[2]);
  EXPECT_EQ(test::ReadBytes(dir / "ff2_sort1.txt"), ff2[1] + ff2[0]);
  EXPECT_EQ(app.intro.Combo1.ListCount(), 0);

  // A listing button leaves the box and the copies as they are.
  app.Ecran().UserClick(app.intro.Command2);
  EXPECT_EQ(app.intro.Check1.Value(), 1);
  EXPECT_TRUE(files.Exists("ff1_sort1.txt"));
  app.Ecran().UserClose(app.lisBord);

  app.Ecran().UserClick(app.intro.Check1);
  EXPECT_FALSE(files.Exists("ff1_sort1.txt"));
  EXPECT_FALSE(files.Exists("ff2_sort1.txt"));
  EXPECT_TRUE(dialogs.History().empty());
}

}  // namespace
}  // namespace fisc
