#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"
#include "yearops/UnireDischete.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

// Headless boxes, with a hand that acts on the drive when a box shows.
class Persoana : public HeadlessDialogs {
 public:
  std::function<void(std::string_view)> LaCutie;
  Answer Box(std::string_view text, Buttons buttons, Icon icon, std::string_view title) override {
    if (LaCutie) LaCutie(text);
    return HeadlessDialogs::Box(text, buttons, icon, title);
  }
};

class Unire : public ::testing::Test {
 protected:
  void Discheta(std::string_view ff1, std::string_view rep) {
    fs::remove_all(drive_);
    fs::create_directories(drive_);
    test::WriteBytes(drive_ / "ff1_2002.TXT", ff1);
    test::WriteBytes(drive_ / "Rep_2002.txt", rep);
  }
  std::optional<RezultatUnire> Uneste() {
    return UnesteDischete(files_, drive, dialogs_, clock_, "2002");
  }
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  std::size_t Cutii(std::string_view text) {
    std::size_t n = 0;
    for (const auto& b : dialogs_.History()) n += b.text == text;
    return n;
  }

  test::TempDir dir_, disk_;
  fs::path drive_ = disk_ / "a";
  Files files_{dir_.path()};
  Drive drive{drive_};
  Persoana dialogs_;
  HeadlessClock clock_;
};

TEST_F(Unire, TheCountersAreSixteenBit) {
  EXPECT_EQ(AdaugaLinie(32766), 32767);
  EXPECT_EQ(test::FailureOf([] { AdaugaLinie(32767); }), err::Overflow);
}

TEST_F(Unire, TwoDiskettesAreJoinedAndTheLastEmployerWins) {
  Discheta(test::Lines({"a", "b"}), "rep1\r\n");
  test::WriteBytes(dir_ / "Ff1.txt", "de pe acest calculator\r\n");
  test::WriteBytes(dir_ / "Deduceri.txt", "de pe acest calculator\r\n");
  dialogs_.LaCutie = [&](std::string_view text) {
    if (text.starts_with("Introduceti discheta urmatoare")) Discheta("c\r\n", "rep2\r\n");
  };
  for (Answer a : {Answer::Yes, Answer::Yes, Answer::No, Answer::No}) dialogs_.QueueAnswer(a);
  std::optional<RezultatUnire> r = Uneste();
  ASSERT_TRUE(r);
  EXPECT_EQ(r->FF1, 3);
  EXPECT_EQ(r->FF2, 0);
  EXPECT_EQ(r->NrDischete, 2);
  EXPECT_EQ(Citeste("Ff1.txt"), test::Lines({"a", "b", "c"}));
  EXPECT_EQ(Citeste("Repfisc.txt"), "rep2\r\n");
  EXPECT_EQ(Citeste("Deduceri.txt"), "");
  EXPECT_EQ(Citeste("Ff2.txt"), "");
  for (std::string_view lucru : {"Ff1_r.txt", "Ff2_r.txt", "Ded_r.txt", "Ff1_u.txt"})
    EXPECT_FALSE(files_.Exists(lucru)) << lucru;
  EXPECT_EQ(clock_.waited, std::chrono::seconds(6));
}

TEST_F(Unire, NoDiskInTheDriveIsAskedForAgain) {
  dialogs_.LaCutie = [&](std::string_view text) {
    if (text.starts_with("Eroare 71")) Discheta("a\r\n", "");
  };
  for (Answer a : {Answer::Yes, Answer::No, Answer::No}) dialogs_.QueueAnswer(a);
  std::optional<RezultatUnire> r = Uneste();
  ASSERT_TRUE(r);
  EXPECT_EQ(Cutii("Eroare 71. Nu ati introdus discheta in unitate ."), 1u);
  EXPECT_EQ(Citeste("Ff1.txt"), "a\r\n");
}

TEST_F(Unire, AnUnreadableDriveShowsSeventyFiveAndTriesAgain) {
  test::WriteBytes(drive_, "nu e un dosar");
  int ori = 0;
  dialogs_.LaCutie = [&](std::string_view text) {
    if (text.starts_with("Eroare 75") && ++ori == 2) Discheta("a\r\n", "");
  };
  for (Answer a : {Answer::Yes, Answer::No, Answer::No}) dialogs_.QueueAnswer(a);
  ASSERT_TRUE(Uneste());
  EXPECT_EQ(Cutii("Eroare 75. Fisier defect. Refaceti discheta si reluati faza de unire. "), 2u);
  EXPECT_EQ(Citeste("Ff1.txt"), "a\r\n");
}

TEST_F(Unire, MoreThan32767SheetsEndTheMergeWithWhatWasAddedAndTheWorkFilesLeft) {
  std::string multe;
  for (int i = 0; i < 32768; ++i) multe += "1\r\n";
  Discheta(multe, "rep\r\n");
  for (Answer a : {Answer::Yes, Answer::No, Answer::No}) dialogs_.QueueAnswer(a);
  EXPECT_FALSE(Uneste());
  EXPECT_EQ(Citeste("Ff1.txt"), multe);
  EXPECT_EQ(Citeste("Repfisc.txt"), "rep\r\n");
  EXPECT_TRUE(files_.Exists("Ff1_r.txt"));
}

}  // namespace
}  // namespace fisc
