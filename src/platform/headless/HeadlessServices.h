#pragma once
// Services without a window: boxes are answered from a queue and every box,
// input and started program is reported as a line, for the replay and tests.
#include <deque>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Services.h"

namespace fisc {

// A question came with no answer queued: the run can't go on.
class UnansweredBox : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::string IconWord(Icon icon);
std::string AnswerWord(Answer answer);
// A text written as a JSON string: quotes, backslashes and control bytes escaped.
std::string Quote(std::string_view text);

class HeadlessDialogs : public Dialogs {
 public:
  struct Shown {
    std::string text, title;
    Icon icon;
    Buttons buttons;
    Answer answer;
  };

  // The answers to the next boxes, in order ("yes", "no", "ok", "cancel"),
  // and to the next input boxes.
  void QueueAnswer(Answer answer) { answers_.push_back(answer); }
  void QueueInput(std::string text) { inputs_.push_back(std::move(text)); }
  bool HasQueuedAnswers() const { return !answers_.empty() || !inputs_.empty(); }

  Answer Box(std::string_view text, Buttons buttons, Icon icon, std::string_view title) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title,
                                   std::string_view initial) override;

  const std::vector<Shown>& History() const { return shown_; }
  // Receives one transcript line per box or input.
  std::function<void(const std::string&)> Report;

 private:
  std::deque<Answer> answers_;
  std::deque<std::string> inputs_;
  std::vector<Shown> shown_;
};

// Programs are only recorded, except the converter when `workdir` is set:
// it runs there and is waited for, as a person waits for its window to close
// before going on.
class HeadlessLauncher : public Launcher {
 public:
  void Start(std::string_view program, std::string_view argument) override;
  std::vector<std::pair<std::string, std::string>> started;
  std::function<void(const std::string&)> Report;
  std::filesystem::path workdir;
};

// A clock whose pauses pass at once; the replay and the tests don't wait.
class HeadlessClock : public Clock {
 public:
  void Wait(std::chrono::seconds duration) override { waited += duration; }
  std::chrono::seconds waited{0};
};

}  // namespace fisc
