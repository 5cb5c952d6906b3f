#pragma once
// The platform services for a person at the screen: message and input boxes,
// the wait cursor, and the programs the screens start (the text viewer, the
// calculator, the converter).
#include <QPointer>
#include <QWidget>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Services.h"

class QPlainTextEdit;

namespace fisc {

class Files;

class QtDialogs : public Dialogs {
 public:
  ~QtDialogs() override;
  Answer Box(std::string_view text, Buttons buttons, Icon icon, std::string_view title) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title,
                                   std::string_view initial) override;
  void Busy(bool on) override;

 private:
  int busy_ = 0;
};

// The run-time report that ends the program: the platform's own box.
void ShowFatal(int number, std::string_view description);

class QtLauncher : public Launcher {
 public:
  explicit QtLauncher(const Files& files) : files_(files) {}
  ~QtLauncher() override;
  // "notepad" and "help" open our read-only viewer on a file of the working
  // directory; "calc.exe" starts the calculator of the system, when it has
  // one; "transfer.exe" starts the converter in the working directory
  // without waiting; any other program is started when it can be found.
  void Start(std::string_view program, std::string_view argument) override;

  // The viewers still open, newest last.
  std::vector<QPlainTextEdit*> Viewers() const;

 private:
  void View(std::string_view name);

  const Files& files_;
  std::vector<QPointer<QPlainTextEdit>> viewers_;
};

}  // namespace fisc
