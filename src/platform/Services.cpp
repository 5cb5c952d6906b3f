#include "platform/Services.h"

#include <cstdio>
#include <thread>

namespace fisc {

void Warn(Dialogs& dialogs, std::string_view text, std::string_view title) {
  dialogs.Box(text, Buttons::Ok, Icon::Warning, title);
}

bool AskYesNo(Dialogs& dialogs, std::string_view text, std::string_view title) {
  return dialogs.Box(text, Buttons::YesNo, Icon::Question, title) == Answer::Yes;
}

std::chrono::sys_days Clock::Today() const {
  auto now = std::chrono::system_clock::now();
  std::time_t t = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&t, &local);
  return std::chrono::sys_days(std::chrono::year(local.tm_year + 1900) /
                               std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)) /
                               std::chrono::day(static_cast<unsigned>(local.tm_mday)));
}

std::string Clock::ShortDate(std::chrono::sys_days day) const {
  std::chrono::year_month_day ymd(day);
  char text[16];
  std::snprintf(text, sizeof text, "%02u/%02u", static_cast<unsigned>(ymd.day()),
                static_cast<unsigned>(ymd.month()));
  return text;
}

void Clock::Wait(std::chrono::seconds duration) { std::this_thread::sleep_for(duration); }

bool Drive::Ready() const {
  std::error_code ec;
  return std::filesystem::is_directory(root_, ec);
}

}  // namespace fisc
