#pragma once
// What the program asks of the platform besides files: boxes a person must
// answer, the clock, starting other programs, the printer, the removable
// drive. The headless implementations serve the replay and the tests; the Qt
// ones serve the window.
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fisc {

class Files;

enum class Icon { None, Critical, Question, Warning, Information };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // A message box; a box with only OK returns Answer::Ok.
  virtual Answer Box(std::string_view text, Buttons buttons, Icon icon, std::string_view title) = 0;
  // An input box; nullopt when cancelled.
  virtual std::optional<std::string> Input(std::string_view prompt, std::string_view title,
                                           std::string_view initial) = 0;
  // The busy cursor during long work.
  virtual void Busy(bool /*on*/) {}
};

// Shorthands for the boxes the screens show most.
void Warn(Dialogs& dialogs, std::string_view text, std::string_view title = "");
bool AskYesNo(Dialogs& dialogs, std::string_view text, std::string_view title = "  ");

class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::chrono::sys_days Today() const;
  // The machine's short date text of a day: "dd/mm", day first. The year is
  // left out: in 2028 to 2031 its digits, two or four, would read as a day of
  // 28 to 31 out of its place, and the regional-setting probe would refuse a
  // day-first machine for four years.
  virtual std::string ShortDate(std::chrono::sys_days day) const;
  // A pause the behaviour asks for (the diskette's five seconds).
  virtual void Wait(std::chrono::seconds duration);
};

// Starting another program without waiting for it: the text viewer
// ("notepad"), the calculator ("calc.exe"), the DBF converter.
class Launcher {
 public:
  virtual ~Launcher() = default;
  virtual void Start(std::string_view program, std::string_view argument) = 0;
};

// The removable drive of the fiscal unit, a folder on this platform. A
// missing folder is a drive with no medium.
class Drive {
 public:
  explicit Drive(std::filesystem::path root) : root_(std::move(root)) {}
  const std::filesystem::path& Root() const { return root_; }
  bool Ready() const;

 private:
  std::filesystem::path root_;
};

}  // namespace fisc
