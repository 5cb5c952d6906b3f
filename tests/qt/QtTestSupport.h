#pragma once
// One QApplication for the whole test binary, and a person's hands: keys and
// mouse clicks sent to real widgets as the window system sends them, and an
// answer to the next message box.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <functional>
#include <memory>

namespace fisc::test {

class QtApplication : public ::testing::Environment {
 public:
  void SetUp() override {
    if (!std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform can't raise a window and says so each time.
    previous_ = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
          if (message.startsWith(QLatin1String("This plugin does not support"))) return;
          if (previous_) previous_(type, context, message);
        });
    app_ = std::make_unique<QApplication>(argc_, argv_);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override { app_.reset(); }

 private:
  inline static QtMessageHandler previous_ = nullptr;
  int argc_ = 1;
  char name_[16] = "fisc_qt_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};

inline ::testing::Environment* const kQtApplication =
    ::testing::AddGlobalTestEnvironment(new QtApplication);

inline void Settle() {
  QApplication::processEvents();
  QApplication::processEvents();
}

inline void Key(QWidget* widget, int key, const QString& text = {},
                Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  ASSERT_NE(widget, nullptr);
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(widget, &release);
}

// Types into the widget that has the keyboard focus, a key at a time.
inline void Type(const QString& text) {
  for (QChar ch : text) {
    int key = ch.isLetter() && ch.unicode() < 0x80 ? ch.toUpper().unicode() : ch.unicode();
    Key(QApplication::focusWidget(), key, QString(ch));
  }
}

inline void Press(int key) { Key(QApplication::focusWidget(), key); }

// At the middle of the widget, or at `at` (a radio button takes clicks on its
// circle and its caption only).
inline void Click(QWidget* widget, QPoint at = {-1, -1}) {
  ASSERT_NE(widget, nullptr);
  if (at.x() < 0) at = widget->rect().center();
  QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &release);
  Settle();
}

// Answers the next message box from inside its own event loop: `answer`
// reads the box and presses one of its buttons. Checks until the box comes.
class BoxAnswer {
 public:
  explicit BoxAnswer(std::function<void(QMessageBox&)> answer) : answer_(std::move(answer)) {
    timer_.setInterval(10);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box || !box->isVisible()) return;
      timer_.stop();
      answered_ = true;
      answer_(*box);
    });
    timer_.start();
  }
  bool Answered() const { return answered_; }

 private:
  std::function<void(QMessageBox&)> answer_;
  QTimer timer_;
  bool answered_ = false;
};

}  // namespace fisc::test
