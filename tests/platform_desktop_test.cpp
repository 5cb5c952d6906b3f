#include <gtest/gtest.h>

#include "support/TestSupport.h"

#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Layout.h"

namespace fisc {
namespace {

// A small screen: two text boxes, a check box, an option group and a button.
struct Screen : Form {
  explicit Screen(Desktop& d)
      : Form(d, "S", "S"),
        A(TextBox(*this, "A", 5, 0, 0, 10)),
        B(TextBox(*this, "B", 5, 0, 0, 10)),
        C(Add(ControlKind::CheckBox, "C")),
        O1(Add(ControlKind::OptionButton, "O", 0)),
        O2(Add(ControlKind::OptionButton, "O", 1)),
        L(Add(ControlKind::ComboBox, "L").SetListOnly(true)),
        Ok(Button(*this, "Ok", "Ok", 0, 0, 10)) {}
  Control &A, &B, &C, &O1, &O2, &L, &Ok;
};

struct DesktopTest : ::testing::Test {
  Desktop desk;
  Screen s{desk};
  std::vector<std::string> log;
  void SetUp() override {
    s.Show();
    for (Control* c : {&s.A, &s.B, &s.Ok}) {
      c->LostFocus = [this, c] { log.push_back("lost " + c->Name()); };
      c->GotFocus = [this, c] { log.push_back("got " + c->Name()); };
    }
  }
};

TEST_F(DesktopTest, ShowingAFormFocusesItsFirstControl) { EXPECT_EQ(desk.Focused(), &s.A); }

TEST_F(DesktopTest, ALostFocusHandlerThatMovesTheFocusWins) {
  s.A.LostFocus = [this] { s.A.SetFocus(); };
  desk.UserFocus(s.B);
  EXPECT_EQ(desk.Focused(), &s.A);
  EXPECT_TRUE(log.empty());
}

TEST_F(DesktopTest, AClickOnAButtonRunsEvenWhenTheFocusWasKept) {
  bool clicked = false;
  s.Ok.Click = [&] { clicked = true; };
  s.A.LostFocus = [this] { s.A.SetFocus(); };
  desk.UserClick(s.Ok);
  EXPECT_TRUE(clicked);
  EXPECT_EQ(desk.Focused(), &s.A);
}

TEST_F(DesktopTest, SettingValuesFromCodeFiresHandlersOnlyOnChange) {
  int clicks = 0, changes = 0;
  s.C.Click = [&] { ++clicks; };
  s.A.Change = [&] { ++changes; };
  s.C.SetValue(1);
  s.C.SetValue(1);
  s.C.SetValue(0);
  s.A.SetText("x");
  s.A.SetText("x");
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(changes, 1);
}

TEST_F(DesktopTest, ChoosingAnOptionClearsTheOthersOfItsGroup) {
  int clicks = 0;
  s.O2.Click = [&] { ++clicks; };
  desk.UserClick(s.O1);
  desk.UserClick(s.O2);
  EXPECT_EQ(s.O1.Value(), 0);
  EXPECT_EQ(s.O2.Value(), 1);
  EXPECT_EQ(clicks, 1);
  // Tab reaches the group through its chosen option only.
  auto order = s.TabOrder();
  EXPECT_EQ(std::count(order.begin(), order.end(), &s.O1), 0);
}

TEST_F(DesktopTest, TypingStopsAtTheMaximumLength) {
  ASSERT_TRUE(desk.UserType("1234567"));
  EXPECT_EQ(s.A.Text(), "12345");
}

TEST_F(DesktopTest, AFieldDisabledUnderTheFocusTakesNoKeys) {
  int enters = 0;
  s.A.KeyPress = [&](int&) { ++enters; };
  s.A.SetEnabled(false);
  EXPECT_FALSE(desk.UserType("12"));
  desk.UserEnter();
  EXPECT_EQ(s.A.Text(), "");
  EXPECT_EQ(enters, 0);
}

TEST_F(DesktopTest, FocusOnAHiddenOrDisabledControlIsFailure5) {
  s.B.SetEnabled(false);
  EXPECT_EQ(test::FailureOf([&] { s.B.SetFocus(); }), err::InvalidCall);
  desk.UserTab();  // the disabled box is passed over
  EXPECT_EQ(desk.Focused(), &s.C);
  desk.UserBackTab();
  EXPECT_EQ(desk.Focused(), &s.A);
  desk.UserBackTab();  // round to the last control
  EXPECT_EQ(desk.Focused(), &s.Ok);
}

TEST_F(DesktopTest, AListOnlyComboRefusesATextNotInTheList) {
  s.L.AddItem("ALBA");
  s.L.AddItem("ARAD");
  s.L.SetText("arad");
  EXPECT_EQ(s.L.ListIndex(), 1);
  EXPECT_EQ(s.L.Text(), "ARAD");
  EXPECT_EQ(test::FailureOf([&] { s.L.SetText("NOWHERE"); }), err::TextReadOnly);
}

TEST_F(DesktopTest, SelectRunsTheClickHandlerEvenForTheChosenEntry) {
  int clicks = 0;
  s.L.AddItem("ALBA");
  s.L.Click = [&] { ++clicks; };
  desk.UserSelect(s.L, 0);
  desk.UserSelect(s.L, 0);
  EXPECT_EQ(clicks, 2);
}

TEST_F(DesktopTest, ASortedListOrdersWithoutRegardToCaseAndKeepsEqualsInOrder) {
  s.L.SetSorted(true);
  for (const char* item : {"pop 2", "Ana", "POP 1", "bob", "ana"}) s.L.AddItem(item);
  EXPECT_EQ(s.L.Items(), (std::vector<std::string>{"Ana", "ana", "bob", "POP 1", "pop 2"}));
}

TEST_F(DesktopTest, AnUncaughtFailureEndsTheProgramAndNothingRunsAfterIt) {
  int fatal = 0;
  desk.OnFatal = [&](const RuntimeFailure& f) { fatal = f.number(); };
  s.Ok.Click = [] { Fail(err::SubscriptOutOfRange); };
  desk.UserClick(s.Ok);
  EXPECT_EQ(fatal, 9);
  EXPECT_TRUE(desk.Ended());
  bool ran = false;
  desk.Dispatch([&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(DesktopTest, CloseRunsTheClosingHandlerWithoutMovingTheFocus) {
  bool keep = true;
  s.Closing = [&](bool& cancel) { cancel = keep; };
  desk.UserClose(s);
  EXPECT_TRUE(s.Visible());
  keep = false;
  desk.UserClose(s);
  EXPECT_FALSE(s.Visible());
  EXPECT_TRUE(log.empty());
}

TEST_F(DesktopTest, AFormThatMustBeAnsweredTakesTheFocusBackFromAnyOther) {
  Screen other(desk);
  other.Deactivate = [&] { other.Ok.SetFocus(); };
  other.Show();
  bool clicked = false;
  s.Ok.Click = [&] { clicked = true; };
  desk.UserClick(s.Ok);
  desk.UserFocus(s.B);
  desk.UserClose(s);
  EXPECT_FALSE(clicked);
  EXPECT_TRUE(s.Visible());
  EXPECT_EQ(desk.Focused(), &other.Ok);
  // Its own controls work as ever; hidden, it holds nothing back.
  desk.UserFocus(other.A);
  EXPECT_EQ(desk.Focused(), &other.A);
  other.Hide();
  desk.UserClick(s.Ok);
  EXPECT_TRUE(clicked);
}

}  // namespace
}  // namespace fisc
