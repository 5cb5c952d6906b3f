// The two parameter editors on their own desktop, driven as a person would.
#include <gtest/gtest.h>

#include <string>
#include <vector>

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
  void Modifica(int luna = 0) {
    f.Deschide(false);
    d.UserSelect(f.Timp, luna);
    d.UserClick(f.PrelMod);
  }
  std::string Rand(std::size_t k) const {
    return f.LimMin[k]->Caption() + "|" + f.LimMax[k]->Text() + "|" + f.ImpFix[k]->Text() + "|" +
           f.Procent[k]->Text();
  }
  TabelImpozit tabel{};
  ImpozitFrm f{d, p, tabel};
};

TEST_F(EditorImpozit, OpensOnJanuaryWithTheLowestBracketOnTopAndTheBoxesClosed) {
  f.Deschide(false);
  EXPECT_EQ(Rand(0), "0|1800000|0|18");
  EXPECT_EQ(Rand(4), "10200001|999999999999|2710000|40");
  EXPECT_EQ(Rand(5), "|||");
  EXPECT_FALSE(f.LimMax[0]->Enabled());
  EXPECT_FALSE(f.Ok_Imp.Visible());
  EXPECT_TRUE(f.PrelMod.Enabled());
  EXPECT_EQ(Focus(), "Timp");
  d.UserSelect(f.Timp, 12);
  EXPECT_EQ(Rand(0), "0|21600000|0|18");
  // A month without its own group shows the one in force.
  d.UserSelect(f.Timp, 6);
  EXPECT_EQ(Rand(1), "1800001|4600000|324000|23");
}

TEST_F(EditorImpozit, RowsBelowAShorterGroupKeepWhatTheLastTableLeftThere) {
  test::WriteBytes(dir / "Impozitar.txt",
                   test::Lines({" 5,101,999,20,30", " 5,0,100,0,20", " 1,201,300,40,30",
                                " 1,101,200,20,20", " 1,0,100,0,20", "eof"}));
  f.Deschide(false);
  d.UserSelect(f.Timp, 4);
  EXPECT_EQ(Rand(1), "101|999|20|30");
  EXPECT_EQ(Rand(2), "201|300|40|30");
}

TEST_F(EditorImpozit, FromTheSheetsTheTableCanOnlyBeLookedAt) {
  f.Deschide(true);
  for (int luna : {3, 12, 0}) {
    d.UserSelect(f.Timp, luna);
    EXPECT_FALSE(f.PrelMod.Enabled()) << luna;
  }
  d.UserClick(f.PrelMod);
  EXPECT_FALSE(f.LimMax[0]->Enabled());
  // Enter on the month list aims at the disabled button: failure 5.
  d.UserFocus(f.Timp);
  Enter();
  EXPECT_EQ(Fatal(), err::InvalidCall);
}

TEST_F(EditorImpozit, LeavingALimitSetsTheNextLowerLimitOrEndsTheTable) {
  Modifica();
  EXPECT_EQ(Focus(), "LimMax(0)");
  EXPECT_FALSE(f.Timp.Enabled());
  EXPECT_TRUE(f.Cancel_Imp.Visible());
  Scrie(*f.LimMax[1], "5000000x");
  d.UserFocus(*f.ImpFix[1]);
  EXPECT_EQ(f.LimMax[1]->Text(), "5000000");
  EXPECT_EQ(f.LimMin[2]->Caption(), "5000001");
  Scrie(*f.LimMax[3], "");
  d.UserFocus(*f.ImpFix[2]);
  EXPECT_EQ(Rand(3), "|||");
  EXPECT_EQ(Rand(4), "|||");
  Scrie(*f.ImpFix[3], "abc");
  d.UserFocus(*f.ImpFix[2]);
  EXPECT_EQ(f.ImpFix[3]->Text(), "");
  // The lowest bracket's limit starts at 0: emptied, it stays "0".
  Scrie(*f.LimMax[0], "");
  d.UserFocus(*f.ImpFix[0]);
  EXPECT_EQ(f.LimMax[0]->Text(), "0");
  EXPECT_EQ(f.LimMin[1]->Caption(), "1");
  // The last row has no row below it.
  Scrie(*f.LimMax[9], "5");
  d.UserFocus(*f.ImpFix[9]);
  EXPECT_EQ(Fatal(), err::ControlArrayElement);
}

TEST_F(EditorImpozit, EnterRefusesFiguresOutOfOrderAndStays) {
  Modifica();
  Scrie(*f.LimMax[2], "4000000");
  Enter();
  Scrie(*f.ImpFix[0], "1800000");
  Enter();
  Scrie(*f.Procent[3], "100");
  Enter();
  EXPECT_EQ(Focus(), "Procent(3)");
  Scrie(*f.Procent[3], "99.9");
  Enter();
  EXPECT_EQ(Focus(), "Procent(3)");  // 99.9 passes the limit, not the order
  Scrie(*f.Procent[0], "17");
  Enter();
  EXPECT_EQ(Focus(), "LimMax(1)");
  EXPECT_EQ(Mesaje(),
            "warning \"  \" Datele trebuiesc introduse in ordine crescatoare\n"
            "warning \"\" Impozit fix mai mare decat limita maxima\n"
            "warning \"\" Procent mai mare decat 100\n"
            "warning \"  \" Datele trebuiesc introduse in ordine crescatoare\n");
  Scrie(*f.ImpFix[4], "500");
  Enter();
  EXPECT_EQ(Focus(), "Procent(4)");
  Scrie(*f.LimMax[5], "");
  Enter();
  EXPECT_EQ(Focus(), "Ok_Imp");
  EXPECT_EQ(Rand(5), "|||");
}

TEST_F(EditorImpozit, OkNotesEveryFaultOnceAndSendsTheFocusToTheLast) {
  Modifica();
  TabelImpozit inainte = tabel;
  Scrie(*f.LimMax[2], "1000000");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(Mesaje(),
            "none \"\" Limita maxima nu e crescatoare\n"
            "none \"\" Impozitul fix este gresit\n");
  // The fault of row 3 is noted on the row above it.
  EXPECT_EQ(Focus(), "ImpFix(2)");
  EXPECT_EQ(tabel, inainte);
  EXPECT_TRUE(f.Ok_Imp.Visible());

  // Within a leu of what the brackets below make, the fixed tax passes.
  Scrie(*f.LimMax[2], "7300000");
  Scrie(*f.ImpFix[1], "324000.9");
  Scrie(*f.ImpFix[3], "1724000.5");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(dialogs.History().size(), 2u);
  EXPECT_EQ(Focus(), "Timp");
  EXPECT_FALSE(f.ImpFix[1]->Enabled());
  EXPECT_EQ(f.ImpFix[1]->Text(), "324000.9");
  EXPECT_EQ(tabel[8], (RandImpozit{1, 1800001, 4600000, 324000.9, 23}));
}

TEST_F(EditorImpozit, ANewMonthIsCreatedInFrontOfTheTableItFollowed) {
  Modifica(3);
  Scrie(*f.Procent[4], "45");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(dialogs.History().size(), 0u);
  EXPECT_TRUE(f.PrelMod.Enabled());
  EXPECT_FALSE(f.Cancel_Imp.Visible());
  std::vector<double> luni;
  for (const RandImpozit& r : tabel)
    if (r[0]) luni.push_back(*r[0]);
  EXPECT_EQ(luni, (std::vector<double>{13, 13, 13, 13, 13, 4, 4, 4, 4, 4, 1, 1, 1, 1, 1}));
  EXPECT_EQ(tabel[5], (RandImpozit{4, 10200001, 999999999999, 2710000, 45}));
  d.UserSelect(f.Timp, 2);
  EXPECT_EQ(f.Procent[4]->Text(), "40");
}

TEST_F(EditorImpozit, AnEmptyFirstLimitOrCancelLeaveTheTableAsItWas) {
  Modifica();
  TabelImpozit inainte = tabel;
  Scrie(*f.LimMax[1], "2000000");
  d.UserClick(f.Cancel_Imp);
  EXPECT_EQ(tabel, inainte);
  EXPECT_EQ(Rand(1), "|||");
  EXPECT_EQ(Focus(), "Timp");
  EXPECT_FALSE(f.LimMax[1]->Enabled());

  d.UserClick(f.PrelMod);
  Scrie(*f.LimMax[0], "");
  d.UserClick(f.Ok_Imp);
  EXPECT_EQ(tabel, inainte);
  EXPECT_EQ(Rand(0), "|||");
  EXPECT_FALSE(f.Ok_Imp.Visible());
  EXPECT_EQ(Focus(), "Timp");
}

TEST_F(EditorImpozit, ClosingRewritesTheFileEvenAfterViewing) {
  test::WriteBytes(dir / "Impozitar.txt", test::Lines({"1,0,1800000,0,18", "eof", "de mana"}));
  f.Deschide(true);
  d.UserClose(f);
  EXPECT_FALSE(f.Visible());
  std::string inceput = " 1,0,1800000,0,18\r\neof\r\nDaca apar erori in";
  EXPECT_EQ(test::ReadBytes(dir / "Impozitar.txt").substr(0, inceput.size()), inceput);
  // Opened again, the screen starts afresh from the file.
  tabel[0][4] = 50;
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
  EXPECT_EQ(f.prima_zi.Text() + " " + f.Cuanta[12]->Text() + " " + f.Proc_ch.Text(),
            "03 1600000 0.15");
  auto lasa = [&](Control& c, std::string_view text) {
    Scrie(c, text);
    d.UserFocus(f.AnF);
    return c.Text();
  };
  EXPECT_EQ(lasa(f.prima_zi, ""), "01");
  EXPECT_EQ(lasa(f.prima_zi, "0"), "01");
  EXPECT_EQ(lasa(f.prima_zi, "7"), "07");
  EXPECT_EQ(lasa(f.ultima_zi, "31x"), "31");
  EXPECT_EQ(lasa(*f.Copil[3], "abc"), "0");
  EXPECT_EQ(lasa(f.Maxi, "1,5"), "1.5");
  EXPECT_EQ(lasa(*f.Cuanta[4], "1700000,9"), "1700000");
  Scrie(f.AnF, "");
  d.UserFocus(f.Maxi);
  EXPECT_EQ(f.AnF.Text(), "0");
}

TEST_F(EditorCuantum, EnterWalksTheFieldsWithItsOwnSteps) {
  f.Deschide(false);
  std::vector<std::string> drum{Focus()};
  for (int i = 0; i < 22; ++i) {
    Enter();
    drum.push_back(Focus());
  }
  EXPECT_EQ(drum[1], "Cuanta(0)");
  EXPECT_EQ(drum[13], "Cuanta(12)");
  EXPECT_EQ(drum[14], "Copil(0)");
  d.UserFocus(*f.Alta[11]);
  Enter();
  EXPECT_EQ(Focus(), "Maxi");
  for (const char* pas : {"hand1", "hand2", "Proc_ch", "CotaIF", "Command1"}) {
    Enter();
    EXPECT_EQ(Focus(), pas);
  }
  d.UserFocus(f.hand3);
  Enter();
  EXPECT_EQ(Focus(), "hand3");
  d.UserFocus(f.prima_zi);
  Enter();
  EXPECT_EQ(Focus(), "ultima_zi");
  Enter();
  EXPECT_EQ(Focus(), "Cuanta(0)");
}

TEST_F(EditorCuantum, TheButtonClosesAndSavesWhatTheFieldsHold) {
  f.Deschide(false);
  Scrie(f.Maxi, "2,5");
  Scrie(*f.Cuanta[12], "1800000");
  d.UserClick(f.Command1);
  EXPECT_FALSE(f.Visible());
  EXPECT_EQ(par.CoefMaxim, "2.5");
  EXPECT_EQ(par.DedLuna[12], 1800000);
  std::string text = test::ReadBytes(dir / "Cuantum.txt");
  EXPECT_NE(text.find("\r\n13,1800000,2.5,1,0.5,0,0.15,0.1,\r\neof\r\n"), std::string::npos);
}

TEST_F(EditorCuantum, ViewedFromTheSheetNothingCanBeTypedAndTheSameValuesAreSaved) {
  std::string delivered = test::ReadBytes(dir / "Cuantum.txt");
  f.Deschide(true);
  EXPECT_FALSE(f.Command1.Visible());
  EXPECT_FALSE(f.AnF.Enabled());
  EXPECT_FALSE(f.CotaIF.Enabled());
  EXPECT_FALSE(d.UserType("2010"));
  d.UserClose(f);
  EXPECT_EQ(test::ReadBytes(dir / "Cuantum.txt"), delivered);
  // Opened for change next, the screen is whole again.
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
