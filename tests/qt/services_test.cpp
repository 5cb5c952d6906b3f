// The services of the window: what a message box shows and what it answers.
#include <QAbstractButton>

#include "platform/qt/QtServices.h"
#include "qt/QtTestSupport.h"

namespace fisc {
namespace {

struct Seen {
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
};

Answer AskAndPress(Buttons buttons, Icon icon, std::string_view title,
                   QMessageBox::StandardButton press, Seen& seen) {
  test::BoxAnswer answer([&](QMessageBox& box) {
    seen = {box.windowTitle(), box.text(), box.icon(), box.standardButtons()};
    box.button(press)->click();
  });
  QtDialogs dialogs;
  Answer a = dialogs.Box("Stergeti fisa \xaa?", buttons, icon, title);
  EXPECT_TRUE(answer.Answered());
  return a;
}

TEST(QtDialogsTest, QuestionShowsItsTextTitleAndButtonsAndReportsThePress) {
  Seen seen;
  EXPECT_EQ(AskAndPress(Buttons::YesNo, Icon::Question, "  ", QMessageBox::No, seen), Answer::No);
  EXPECT_EQ(seen.title, "  ");
  EXPECT_EQ(seen.text, QString::fromUtf8("Stergeti fisa \xc5\x9e?"));
  EXPECT_EQ(seen.icon, QMessageBox::Question);
  EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No);
}

TEST(QtDialogsTest, EachButtonGivesItsOwnAnswer) {
  Seen seen;
  EXPECT_EQ(AskAndPress(Buttons::YesNoCancel, Icon::Warning, "", QMessageBox::Cancel, seen),
            Answer::Cancel);
  EXPECT_EQ(seen.title, "");
  EXPECT_EQ(seen.icon, QMessageBox::Warning);
  EXPECT_EQ(AskAndPress(Buttons::YesNoCancel, Icon::None, "x", QMessageBox::Yes, seen),
            Answer::Yes);
  EXPECT_EQ(seen.icon, QMessageBox::NoIcon);
  EXPECT_EQ(AskAndPress(Buttons::OkCancel, Icon::Critical, "x", QMessageBox::Ok, seen), Answer::Ok);
  EXPECT_EQ(seen.icon, QMessageBox::Critical);
  EXPECT_EQ(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
}

}  // namespace
}  // namespace fisc
