// The two parameter editors on their own desktop, driven as a person would.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "params/CuantumFrm.h"
#include "params/ImpozitFrm.h"
#include "platform/Desktop.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

class Editor : public ::testing::Test {
 protected:
  Editor() {
    for (const char* name : {"Cuantum.txt", "Impozitar.txt"})
      std::filesystem::copy_file(test::DataDir() / name, dir / name);
  }
  void Scrie(Control& c, std::string_view text) {
    d.UserFocus(c);
    d.UserType(text);
  }
  void Enter() { d.UserEnter(); }
  std::string Focus() const { return d.Focused() ? d.Focused()->FullName() : "-"; }
  int Fatal() const { return d.Fatal() ? d.Fatal()->number() : 0; }
  std::string Mesaje() const {
    std::string m;
    for (const auto& box : dialogs.History())
      m += IconWord(box.icon) + " \"" + box.title + "\" " + box.text + "\n";
    return m;
  }

  test::TempDir dir;
  Files files{dir.path()};
  HeadlessDialogs dialogs;
  HeadlessClock clock;
  HeadlessLauncher launcher;
  Drive drive{dir / "a"};
  HeadlessPrinter printer;
  Platforma p{files, dialogs, clock, launcher, drive, printer};
  Desktop d;
};

class EditorImpozit : public Editor {
 protected:
  // Opened from the main window, with January's table open for writing.
  void Modifica() {
    f.Deschide(false);
    d.UserClick(f.PrelMod);
  }
  std::string Rand(std::size_t k) const {
    return f.LimMin[k]->Caption() + "|" + f.LimMax[k]->Text() + "|" + f.ImpFix[k]->Text() + "|" +
           f.Procent[k]->Text();
  }
  TabelImpozit tabel{};
  ImpozitFrm f{d, p, tabel};
};

TEST_F(EditorImpozit, EnterOnTheMonthListOfAViewOnlyScreenIsFailure5) {
  f.Deschide(true);
  d.UserSelect(f.Timp, 3);
  EXPECT_FALSE(f.PrelMod.Enabled());
  // It aims the focus at the disabled button.
  Enter();
  EXPECT_EQ(Fatal(), err::InvalidCall);
}

TEST_F(EditorImpozit, LeavingALimitSetsTheNextLowerLimitOrEndsTheTable) {
  Modifica();
  Scrie(*f.LimMax[1], "5000000x");
  d.UserFocus(*f.ImpFix[1]);
  EXPECT_EQ(f.LimMax[1]->Text(), "5000000");
  EXPECT_EQ(f.LimMin[2]->Caption(), "5000001");
  Scrie(*f.LimMax[3], "");
  d.UserFocus(*f.ImpFix[2]);
  EXPECT_EQ(Rand(3), "|||");
  EXPECT_EQ(Rand(4), "|||");
  // A figure of a row without a limit goes when it is 0.
  Scrie(*f.ImpFix[3], "abc");
  d.UserFocus(*f.ImpFix[2]);
  EXPECT_EQ(f.ImpFix[3]->Text(), "");
  // The lowest bracket starts at 0: its limit emptied stays "0".
  Scrie(*f.LimMax[0], "");
  d.UserFocus(*f.ImpFix[0]);
  EXPECT_EQ(Rand(0), "0|0|0|18");
  EXPECT_EQ(f.LimMin[1]->Caption(), "1");
}

TEST_F(EditorImpozit, TheFixedTaxMayBeOffByLessThanALeu) {
  Modifica();
  // 18 percent of 1800000 is 324000.
  Scrie(*f.ImpFix[1], "324001");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(Mesaje(), "none \"\" Impozitul fix este gresit\n");
  EXPECT_EQ(Focus(), "ImpFix(0)");
  Scrie(*f.ImpFix[1], "323999.5");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(dialogs.History().size(), 1u);
  EXPECT_EQ(Focus(), "Timp");
  EXPECT_EQ(tabel[8], (RandImpozit{1, 1800001, 4600000, 323999.5, 23}));
}

TEST_F(EditorImpozit, OpenedAgainTheScreenStartsAfreshFromTheFile) {
  f.Deschide(true);
  d.UserClose(f);
  tabel[9][4] = 50;
  f.Deschide(false);
  EXPECT_TRUE(f.PrelMod.Enabled());
  EXPECT_EQ(f.Procent[0]->Text(), "18");
}

TEST_F(EditorImpozit, AMissingTableEndsTheProgramWhenTheScreenOpens) {
  files.Delete("Impozitar.txt");
  d.Dispatch([&] { f.Deschide(false); });
  EXPECT_EQ(Fatal(), err::FileNotFound);
}

class EditorCuantum : public Editor {
 protected:
  ParametriAn par;
  CuantumFrm f{d, p, par};
};

TEST_F(EditorCuantum, LeavingAFieldPutsItsValueInOrder) {
  f.Deschide(false);
  auto lasa = [&](Control& c, std::string_view text) {
    Scrie(c, text);
    d.UserFocus(f.Maxi);
    return c.Text();
  };
  EXPECT_EQ(lasa(f.prima_zi, "0"), "01");
  EXPECT_EQ(lasa(f.prima_zi, "7"), "07");
  EXPECT_EQ(lasa(f.ultima_zi, "31x"), "31");
  EXPECT_EQ(lasa(f.AnF, ""), "0");
  EXPECT_EQ(lasa(f.hand3, "0,25"), "0.25");
  d.UserClose(f);
  std::string text = test::ReadBytes(dir / "Cuantum.txt");
  EXPECT_EQ(text.substr(0, 10), "0,07,31\r\n ");
  EXPECT_NE(text.find("\r\n13,1600000,3,1,0.5,0.25,0.15,0.1,\r\n"), std::string::npos);
  EXPECT_EQ(par.AnFiscal, "0");
}

TEST_F(EditorCuantum, OpenedForChangeAfterAViewTheFieldsAreOpenAgain) {
  f.Deschide(true);
  EXPECT_FALSE(f.CotaIF.Enabled());
  d.UserClose(f);
  f.Deschide(false);
  EXPECT_TRUE(f.Command1.Visible());
  EXPECT_TRUE(f.CotaIF.Enabled());
}

TEST_F(EditorCuantum, OpeningRereadsTheFileAndAFileRemovedMeanwhileEndsTheProgram) {
  test::WriteBytes(dir / "Cuantum.txt",
                   test::Lines({"2003,2,30", " 1,1700000,0.5,0.5,0.5,", "eof"}));
  f.Deschide(false);
  EXPECT_EQ(par.AnFiscal + " " + f.AnF.Text() + " " + f.prima_zi.Text(), "2003 2003 02");
  EXPECT_EQ(f.Cuanta[0]->Text(), "1700000");
  files.Delete("Cuantum.txt");
  d.UserClose(f);
  EXPECT_EQ(Fatal(), err::FileNotFound);
}

}  // namespace
}  // namespace fisc
