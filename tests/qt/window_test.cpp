// The program in its windows: real widgets driven by keys and clicks, on a
// working directory of its own.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>

#include "app/Aplicatie.h"
#include "platform/Layout.h"
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

class WindowTest : public test::ProgramInWindows {
 protected:
  QString Shown(Control& c) { return static_cast<QLineEdit*>(W(c))->text(); }

  // The first button of the main window, then the employer's code and Enter.
  void OpenEmployer(const QString& code) {
    Click(W(app_.intro.Command1));
    ASSERT_TRUE(windows_.WindowOf(app_.fisaI)->isVisible());
    ASSERT_FALSE(windows_.WindowOf(app_.intro)->isVisible());
    ASSERT_EQ(QApplication::focusWidget(), W(app_.fisaI.CodP));
    Type(code);
    Press(Qt::Key_Return);
    Settle();
  }
};

TEST_F(WindowTest, EmployerTypedInTheWindowIsSavedAsTheReplayWritesIt) {
  FisaI& f = app_.fisaI;
  OpenEmployer("12345674");
  EXPECT_EQ(QApplication::focusWidget(), W(f.DenP));
  EXPECT_EQ(static_cast<QLabel*>(W(f.TipAng))->text(), "1 - CF/cod unic de inregistrare");

  // A letter of the code page, typed as Unicode.
  Type(
      QString::fromUtf8("\xc5\x9e"
                        "tefan impex"));
  Press(Qt::Key_Return);
  Settle();
  EXPECT_EQ(QApplication::focusWidget(), W(*f.AdrP[0]));
  // The lost-focus handler wrote the name in capitals: the field shows it.
  EXPECT_EQ(Shown(f.DenP), QString::fromUtf8("\xc5\x9e"
                                             "TEFAN IMPEX"));

  Type("Cluj-Napoca");
  Press(Qt::Key_Return);
  Settle();
  auto* county = static_cast<QComboBox*>(W(f.JudP));
  ASSERT_EQ(QApplication::focusWidget(), county);
  EXPECT_EQ(county->count(), f.JudP.ListCount());
  EXPECT_EQ(county->currentIndex(), 0);
  Press(Qt::Key_Return);
  Type("Lunga");
  Press(Qt::Key_Return);
  Type("12");
  Press(Qt::Key_Return);
  Settle();
  EXPECT_EQ(QApplication::focusWidget(), W(*f.AdrP[3]));

  auto* ok = static_cast<QPushButton*>(W(f.Ok_Fisa_II));
  EXPECT_EQ(ok->text(), "Date identificare &angajat");
  Click(ok);
  EXPECT_FALSE(windows_.WindowOf(f)->isVisible());
  EXPECT_TRUE(windows_.WindowOf(app_.fisaII)->isVisible());
  EXPECT_EQ(test::ReadBytes(dir_ / "Repfisc.txt"),
            "12345674,1,#\xaaTEFAN IMPEX#,##,##,#CLUJ-NAPOCA#,# #,#LUNGA#,#12#,0,##,##,##,##,,##,"
            "##\r\n");
}

TEST_F(WindowTest, WrongCodeWarnsAndKeepsTheFocusInTheCode) {
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  test::BoxAnswer answer([&](QMessageBox& box) {
    title = box.windowTitle();
    text = box.text();
    icon = box.icon();
    box.button(QMessageBox::Ok)->click();
  });
  OpenEmployer("123");
  EXPECT_TRUE(answer.Answered());
  EXPECT_EQ(text, "Cod incorect");
  EXPECT_EQ(title, "  ");
  EXPECT_EQ(icon, QMessageBox::Warning);
  EXPECT_EQ(app_.Ecran().Focused(), &app_.fisaI.CodP);
  EXPECT_EQ(QApplication::focusWidget(), W(app_.fisaI.CodP));
  EXPECT_EQ(Shown(app_.fisaI.CodP), "123");
}

class SavedEmployerTest : public WindowTest {
 protected:
  void SetUp() override {
    test::WriteBytes(dir_ / "Rep_2002.txt",
                     "12345674,1,#ACME#,##,##,#CLUJ#,# #,#LUNGA#,#12#,0,##,##,##,##,,##,##\r\n");
    WindowTest::SetUp();
  }
};

TEST_F(SavedEmployerTest, TypingReplacesTheLoadedCode) {
  Click(W(app_.intro.Command1));
  auto* code = static_cast<QLineEdit*>(W(app_.fisaI.CodP));
  ASSERT_EQ(QApplication::focusWidget(), code);
  EXPECT_EQ(code->selectedText(), "12345674");
  Type("5");
  EXPECT_EQ(app_.fisaI.CodP.Text(), "5");
}

TEST_F(WindowTest, TabFollowsTheModelsOrderAndItsHandlers) {
  FisaI& f = app_.fisaI;
  OpenEmployer("12345674");
  ASSERT_EQ(QApplication::focusWidget(), W(f.DenP));
  Press(Qt::Key_Tab);
  Settle();
  EXPECT_EQ(QApplication::focusWidget(), W(f.NumeP));
  // The names belong to a person, not to a company: leaving them sends the
  // focus back to the denomination.
  Type("x");
  Press(Qt::Key_Tab);
  Settle();
  EXPECT_EQ(app_.Ecran().Focused(), &f.DenP);
  EXPECT_EQ(QApplication::focusWidget(), W(f.DenP));
  EXPECT_EQ(Shown(f.NumeP), "");
}

TEST_F(WindowTest, OptionButtonsShowTheModelsChoice) {
  OpenEmployer("12345674");
  Click(W(app_.fisaI.Ok_Fisa_II));
  FisaII& f = app_.fisaII;
  auto* newSheets = static_cast<QRadioButton*>(W(f.Option1));
  auto* loaded = static_cast<QRadioButton*>(W(f.Option2));
  const QPoint circle(8, 11);
  Click(loaded, circle);
  EXPECT_TRUE(loaded->isChecked());
  Click(newSheets, circle);
  EXPECT_TRUE(newSheets->isChecked());
  EXPECT_FALSE(loaded->isChecked());
  // A click on the chosen option leaves it chosen, as the model does.
  Click(newSheets, circle);
  EXPECT_TRUE(newSheets->isChecked());
}

// A screen made for the test: a failure in a handler ends the run.
class FailingScreen : public Form {
 public:
  explicit FailingScreen(Desktop& desktop) : Form(desktop, "Test", "Test") {
    SetSize(200, 100);
    Field.Click = [] { Fail(err::SubscriptOutOfRange); };
  }
  Control& Field = Button(*this, "Field", "Fail", 10, 10, 80);
};

TEST(WindowFailureTest, RunTimeFailureInAHandlerEndsTheRun) {
  Desktop desktop;
  FailingScreen screen(desktop);
  int reported = 0, ended = 0;
  desktop.OnFatal = [&](const RuntimeFailure& f) { reported = f.number(); };
  desktop.Dispatch([&] { screen.Show(); });
  ScreenWindows windows(desktop);
  windows.OnEnded = [&] { ++ended; };
  windows.Redraw();
  Click(windows.WidgetOf(screen.Field));
  EXPECT_EQ(reported, err::SubscriptOutOfRange);
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace fisc
