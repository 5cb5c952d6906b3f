// The two parameter editors in real windows, at the keyboard: the files they
// write are the replay's own.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <filesystem>

#include "qt/ProgramInWindows.h"

namespace fisc {
namespace {

using test::Click;
using test::Press;
using test::Settle;
using test::Type;

class EditorsWindowTest : public test::ProgramInWindows {
 protected:
  void Enter() {
    Press(Qt::Key_Return);
    Settle();
  }
  // The focused field's text typed over.
  void Over(const QString& text) {
    test::Key(QApplication::focusWidget(), Qt::Key_A, {}, Qt::ControlModifier);
    if (text.isEmpty())
      Press(Qt::Key_Backspace);
    else
      Type(text);
  }
  QString Text(Control& c) { return static_cast<QLineEdit*>(W(c))->text(); }
};

TEST_F(EditorsWindowTest, JanuarysTableChangedWithEnterAloneIsWrittenAsTheReplayWritesIt) {
  ImpozitFrm& f = app_.impozitFrm;
  Click(W(app_.intro.Command8));
  ASSERT_TRUE(windows_.WindowOf(f)->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), W(f.Timp));
  // Amounts stand right-aligned, the lower limits too.
  EXPECT_TRUE(static_cast<QLineEdit*>(W(*f.LimMax[0]))->alignment() & Qt::AlignRight);
  EXPECT_TRUE(static_cast<QLabel*>(W(*f.LimMin[1]))->alignment() & Qt::AlignRight);
  EXPECT_EQ(static_cast<QLabel*>(W(*f.LimMin[1]))->text(), "1800001");
  EXPECT_FALSE(W(f.Ok_Imp)->isVisible());

  Enter();
  ASSERT_EQ(Focus(), &f.PrelMod);
  Enter();
  ASSERT_EQ(Focus(), f.LimMax[0]);
  EXPECT_EQ(QApplication::focusWidget(), W(*f.LimMax[0]));
  EXPECT_TRUE(W(f.Ok_Imp)->isVisible());
  EXPECT_FALSE(W(f.Timp)->isEnabled());
  Enter();
  Enter();
  ASSERT_EQ(Focus(), f.Procent[0]);
  Over("20");
  Enter();
  Enter();
  Over("360000");
  Enter();
  Enter();
  Enter();
  Over("1004000");
  Enter();
  Enter();
  Enter();
  Over("1760000");
  Enter();
  Enter();
  Enter();
  ASSERT_EQ(Focus(), f.ImpFix[4]);
  Over("2746000");
  Enter();
  Enter();
  ASSERT_EQ(Focus(), f.LimMax[5]);
  Enter();
  ASSERT_EQ(Focus(), &f.Ok_Imp);
  Enter();
  ASSERT_EQ(Focus(), &f.Timp);
  EXPECT_FALSE(W(*f.ImpFix[1])->isEnabled());
  EXPECT_FALSE(W(f.Cancel_Imp)->isVisible());

  // The year's table, last in the list.
  Press(Qt::Key_End);
  Settle();
  EXPECT_EQ(static_cast<QComboBox*>(W(f.Timp))->currentText(), "An");
  EXPECT_EQ(Text(*f.LimMax[0]), "21600000");

  windows_.WindowOf(f)->close();
  Settle();
  EXPECT_FALSE(windows_.WindowOf(f)->isVisible());
  EXPECT_EQ(test::ReadBytes(dir_ / "Impozitar.txt"),
            test::ReadBytes(test::ReplayCase("impozitar_month_changed/after/Impozitar.txt")));
}

TEST_F(EditorsWindowTest, TheDeductionsTypedAtTheKeyboardAreSavedAsTheReplaySavesThem) {
  CuantumFrm& f = app_.cuantumFrm;
  Click(W(app_.intro.Command10));
  ASSERT_TRUE(windows_.WindowOf(f)->isVisible());
  ASSERT_EQ(QApplication::focusWidget(), W(f.AnF));
  EXPECT_TRUE(static_cast<QLineEdit*>(W(*f.Cuanta[0]))->alignment() & Qt::AlignRight);

  Press(Qt::Key_Tab);
  Settle();
  ASSERT_EQ(Focus(), &f.prima_zi);
  Over("");
  Enter();
  EXPECT_EQ(Text(f.prima_zi), "01");
  ASSERT_EQ(Focus(), &f.ultima_zi);
  Over("30 dec");
  Enter();
  ASSERT_EQ(Focus(), f.Cuanta[0]);
  Over("1700000,50");
  Enter();
  EXPECT_EQ(Text(*f.Cuanta[0]), "1700000");
  Click(W(*f.Copil[3]));
  Over("abc");
  Press(Qt::Key_Tab);
  Settle();
  EXPECT_EQ(Text(*f.Copil[3]), "0");
  ASSERT_EQ(Focus(), f.Copil[4]);
  Click(W(*f.Alta[11]));
  Enter();
  ASSERT_EQ(Focus(), &f.Maxi);
  Over("2,5");
  Enter();
  Enter();
  Enter();
  ASSERT_EQ(Focus(), &f.Proc_ch);
  Enter();
  Enter();
  ASSERT_EQ(Focus(), &f.Command1);
  Enter();
  EXPECT_FALSE(windows_.WindowOf(f)->isVisible());
  EXPECT_EQ(test::ReadBytes(dir_ / "Cuantum.txt"),
            test::ReadBytes(test::ReplayCase("cuantum_edited_and_read_back/after/Cuantum.txt")));
  EXPECT_EQ(app_.StareComuna().Parametri.CoefMaxim, "2.5");
}

}  // namespace
}  // namespace fisc
