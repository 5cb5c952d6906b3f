#include "platform/headless/HeadlessServices.h"

#include <cstdio>

#include "platform/Converter.h"

namespace fisc {

std::string IconWord(Icon icon) {
  switch (icon) {
    case Icon::None: return "none";
    case Icon::Critical: return "critical";
    case Icon::Question: return "question";
    case Icon::Warning: return "warning";
    case Icon::Information: return "information";
  }
  return "none";
}

std::string AnswerWord(Answer answer) {
  switch (answer) {
    case Answer::Ok: return "ok";
    case Answer::Cancel: return "cancel";
    case Answer::Yes: return "yes";
    case Answer::No: return "no";
  }
  return "ok";
}

std::string Quote(std::string_view text) {
  std::string s = "\"";
  for (char ch : text) {
    unsigned char c = static_cast<unsigned char>(ch);
    switch (c) {
      case '"': s += "\\\""; break;
      case '\\': s += "\\\\"; break;
      case '\n': s += "\\n"; break;
      case '\r': s += "\\r"; break;
      case '\t': s += "\\t"; break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          s += buf;
        } else {
          s += ch;
        }
    }
  }
  return s + "\"";
}

namespace {
bool Allowed(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::Ok: return answer == Answer::Ok;
    case Buttons::OkCancel: return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo: return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel: return answer != Answer::Ok;
  }
  return false;
}
}  // namespace

Answer HeadlessDialogs::Box(std::string_view text, Buttons buttons, Icon icon,
                            std::string_view title) {
  Answer answer = Answer::Ok;
  if (buttons == Buttons::Ok) {
    // A box with only OK needs no answer; a queued "ok" in front is its own.
    if (!answers_.empty() && answers_.front() == Answer::Ok) answers_.pop_front();
  } else {
    if (answers_.empty() || !Allowed(buttons, answers_.front()))
      throw UnansweredBox("no answer for the box " + Quote(title) + " " + Quote(text));
    answer = answers_.front();
    answers_.pop_front();
  }
  shown_.push_back({std::string(text), std::string(title), icon, buttons, answer});
  if (Report)
    Report("box " + IconWord(icon) + " " + Quote(title) + " " + Quote(text) + " -> " +
           AnswerWord(answer));
  return answer;
}

std::optional<std::string> HeadlessDialogs::Input(std::string_view prompt, std::string_view,
                                                  std::string_view) {
  if (inputs_.empty()) throw UnansweredBox("no answer for the input box " + Quote(prompt));
  std::string answer = inputs_.front();
  inputs_.pop_front();
  if (Report) Report("input " + Quote(prompt) + " -> " + Quote(answer));
  return answer;
}

void HeadlessLauncher::Start(std::string_view program, std::string_view argument) {
  started.emplace_back(program, argument);
  if (Report) Report("run " + Quote(program) + " " + Quote(argument));
  if (workdir.empty() || !EsteConvertor(program)) return;
  std::filesystem::path convertor = GasesteConvertor(workdir);
  if (!convertor.empty()) RuleazaConvertor(convertor, workdir);
}

}  // namespace fisc
