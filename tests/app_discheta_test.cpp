#include <gtest/gtest.h>

#include <filesystem>

#include "app/Discheta.h"
#include "platform/Failure.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

class Discheta : public ::testing::Test {
 protected:
  Discheta() {
    test::WriteBytes(dir_ / "Ff1.txt", "FF1\r\n");
    test::WriteBytes(dir_ / "Ff2.txt", "FF2\r\n");
    test::WriteBytes(dir_ / "Deduceri.txt", "");
    test::WriteBytes(dir_ / "Repfisc.txt", "REP\r\n");
  }

  void Salveaza(Answer raspuns) {
    dialogs_.QueueAnswer(raspuns);
    SalveazaPeDischeta(p_, "2002");
  }
  std::vector<std::string> Texte() const {
    std::vector<std::string> t;
    for (const auto& b : dialogs_.History()) t.push_back(b.text);
    return t;
  }
  std::vector<std::string> PeDischeta() const {
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(discheta_)) names.push_back(e.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  test::TempDir dir_, aDrive_;
  fs::path discheta_ = aDrive_ / "a";
  Files files_{dir_.path()};
  HeadlessDialogs dialogs_;
  HeadlessClock clock_;
  HeadlessLauncher launcher_;
  Drive drive_{discheta_};
  HeadlessPrinter printer_;
  Platforma p_{files_, dialogs_, clock_, launcher_, drive_, printer_};
};

TEST_F(Discheta, NoStillWaitsAndCopiesNothing) {
  fs::create_directory(discheta_);
  test::WriteBytes(discheta_ / "KEEP.txt", "OLD");
  Salveaza(Answer::No);
  EXPECT_EQ(PeDischeta(), std::vector<std::string>{"KEEP.txt"});
  EXPECT_EQ(Texte().back(), "Salvarea nu a fost efectuata.");
  EXPECT_EQ(clock_.waited, std::chrono::seconds(5));
}

TEST_F(Discheta, AMissingDriveFolderIsADriveWithoutDiskette) {
  Salveaza(Answer::Yes);
  EXPECT_EQ(Texte().back(), "Eroare 71. Nu ati introdus discheta in unitate .");
  EXPECT_EQ(dialogs_.History().back().icon, Icon::Warning);
  EXPECT_EQ(dialogs_.History().back().title, "  ");
  // The steps left undone include the pause and the message of success.
  EXPECT_EQ(clock_.waited, std::chrono::seconds(0));
  EXPECT_EQ(dialogs_.History().size(), 2u);
}

TEST_F(Discheta, AFileInPlaceOfTheDriveOrANameItCantTakeIsABadDiskette) {
  test::WriteBytes(discheta_, "");
  Salveaza(Answer::Yes);
  EXPECT_EQ(Texte().back(), "Eroare 52. Discheta defecta.");
  fs::remove(discheta_);
  fs::create_directory(discheta_);
  dialogs_.QueueAnswer(Answer::Yes);
  SalveazaPeDischeta(p_, "20/02");
  EXPECT_EQ(Texte().back(), "Eroare 52. Discheta defecta.");
}

TEST_F(Discheta, AFullDisketteKeepsWhatWasCopiedBefore) {
  fs::create_directory(discheta_);
  // The copy of Ff2.txt writes its work file into a device that is always full.
  fs::create_symlink("/dev/full", discheta_ / ".~FF2_2002.txt");
  Salveaza(Answer::Yes);
  EXPECT_EQ(Texte().back(), "Eroare 61. Discheta plina. ");
  EXPECT_EQ(test::ReadBytes(discheta_ / "FF1_2002.txt"), "FF1\r\n");
  EXPECT_FALSE(fs::exists(discheta_ / "Ded_2002.txt"));
}

TEST_F(Discheta, AnyOtherFailureEndsTheCopyWithoutAWord) {
  fs::create_directory(discheta_);
  files_.Delete("Ff2.txt");
  Salveaza(Answer::Yes);
  EXPECT_EQ(dialogs_.History().size(), 1u);
  EXPECT_EQ(PeDischeta(), std::vector<std::string>{"FF1_2002.txt"});
}

}  // namespace
}  // namespace fisc
