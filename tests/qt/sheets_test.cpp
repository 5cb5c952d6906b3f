// An FF1 sheet typed through the windows, Enter by Enter, and closed with the
// question answered in its message box: the record is the replay's own.
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <filesystem>

#include "app/Aplicatie.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "platform/qt/QtServices.h"
#include "platform/qt/ScreenWindows.h"
#include "qt/ProgramInWindows.h"
#include "qt/QtTestSupport.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

using test::Click;
using test::Press;
using test::Settle;
using test::Type;

class SheetWindowTest : public test::ProgramInWindows {
 protected:
  SheetWindowTest()
      : ProgramInWindows(
            {{test::ReplayCase("ff1_part_year/before/Rep_2002.txt"), "Rep_2002.txt"}}) {}

  // Enter in the focused widget, then the text of the next field.
  void Enter(const QString& text = {}) {
    Press(Qt::Key_Return);
    Settle();
    if (!text.isEmpty()) Type(text);
  }

  void SelectAll() { test::Key(QApplication::focusWidget(), Qt::Key_A, {}, Qt::ControlModifier); }
};

TEST_F(SheetWindowTest, APartYearSheetTypedInTheWindowsIsStoredAsTheReplayStoresIt) {
  FisaII& e = app_.fisaII;
  Fisa1F& f = app_.fisa1F;
  Click(W(app_.intro.Command1));
  Click(W(app_.fisaI.Ok_Fisa_II));
  ASSERT_TRUE(windows_.WindowOf(e)->isVisible());

  Click(W(e.CodS));
  Type("2650404123451");
  Enter("ionescu");
  Enter("elena");
  Enter("bucuresti");
  Enter("calea victoriei");
  ASSERT_EQ(Focus(), e.AdrS[1]);
  EXPECT_EQ(static_cast<QLineEdit*>(W(*e.AdrS[0]))->text(), "BUCURESTI");
  Enter("10");
  for (int i = 0; i < 7; ++i) Enter();
  ASSERT_EQ(Focus(), &e.Ok_Fisa1);
  // The sector left empty became "0": it is typed over.
  Click(W(*e.AdrS[8]));
  SelectAll();
  Type("3");
  Click(W(e.Ok_Fisa1));
  Click(W(e.Job0));
  Type("15.3.02");
  Enter("20-10-2002");
  Enter();
  ASSERT_EQ(Focus(), &e.Command1);
  EXPECT_EQ(static_cast<QLineEdit*>(W(e.Job0))->text(), "15/03/2002");
  Enter();
  ASSERT_TRUE(windows_.WindowOf(f)->isVisible());
  EXPECT_FALSE(W(*f.CoefProp[1])->isVisible());

  Click(W(f.Command3));
  ASSERT_EQ(Focus(), f.VenitN[2]);
  EXPECT_EQ(QApplication::focusWidget(), W(*f.VenitN[2]));
  for (int luna = 2; luna <= 9; ++luna) {
    Type("2000000");
    Enter();
  }
  ASSERT_EQ(Focus(), f.VenitN[12]);
  Enter();
  Enter();
  ASSERT_EQ(Focus(), f.Bif[2]);
  Click(W(f.Command12));
  Click(W(*f.ImpC[9]));
  SelectAll();
  Type("71000");
  Enter();
  ASSERT_EQ(Focus(), f.ImpC[12]);
  EXPECT_EQ(static_cast<QLineEdit*>(W(*f.ImpC[13]))->text(), "575000");
  Click(W(f.Command4));

  QString question;
  test::BoxAnswer answer([&](QMessageBox& box) {
    question = box.text();
    box.button(QMessageBox::Yes)->click();
  });
  windows_.WindowOf(f)->close();
  Settle();
  EXPECT_TRUE(answer.Answered());
  EXPECT_EQ(question, "Salvati modificarile?");
  EXPECT_FALSE(windows_.WindowOf(f)->isVisible());
  EXPECT_TRUE(windows_.WindowOf(e)->isVisible());
  EXPECT_EQ(test::ReadBytes(dir_ / "Ff1.txt"),
            test::ReadBytes(test::ReplayCase("ff1_part_year/after/FF1_2002.txt")));
  EXPECT_EQ(test::ReadBytes(dir_ / "FF1_2002.txt"), test::ReadBytes(dir_ / "Ff1.txt"));
}

TEST_F(SheetWindowTest, TheSpaceBarOnTheCorrectionMarkMovesToTheCodeWithoutMarking) {
  FisaII& e = app_.fisaII;
  Click(W(app_.intro.Command1));
  Click(W(app_.fisaI.Ok_Fisa_II));
  ASSERT_EQ(Focus(), &e.Option1);
  Enter();
  ASSERT_EQ(QApplication::focusWidget(), W(e.Xrectif));
  test::Key(QApplication::focusWidget(), Qt::Key_Space, " ");
  Settle();
  EXPECT_EQ(Focus(), &e.CodS);
  EXPECT_EQ(QApplication::focusWidget(), W(e.CodS));
  EXPECT_EQ(e.Xrectif.Value(), 0);
  EXPECT_FALSE(static_cast<QCheckBox*>(W(e.Xrectif))->isChecked());
  // In a text box the typed characters still land in the field.
  Type("17");
  EXPECT_EQ(e.CodS.Text(), "17");
}

}  // namespace
}  // namespace fisc
