#include "records/Date.h"

#include <array>
#include <cstdio>

#include "platform/Services.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {

namespace {

bool AllDigits(std::string_view text) {
  if (text.empty()) return false;
  for (char c : text)
    if (c < '0' || c > '9') return false;
  return true;
}

int Number(std::string_view digits) {
  int n = 0;
  for (char c : digits) n = n * 10 + (c - '0');
  return n;
}

// Characters `from` (1-based) to `from + length - 1`, as much of them as exists.
std::string_view Mid(std::string_view text, std::size_t from, std::size_t length) {
  if (from > text.size()) return {};
  return text.substr(from - 1, length);
}

// The 1-based position of the first occurrence, 0 when absent.
std::size_t InStr(std::string_view text, std::string_view what) {
  std::size_t at = text.find(what);
  return at == std::string_view::npos ? 0 : at + 1;
}

std::optional<std::chrono::year_month_day> DayOf(int d, int m, int y) {
  std::chrono::year_month_day day{std::chrono::year(y),
                                  std::chrono::month(static_cast<unsigned>(m)),
                                  std::chrono::day(static_cast<unsigned>(d))};
  if (!day.ok()) return std::nullopt;
  return day;
}

}  // namespace

int AnulCurent(const Clock& clock) {
  return static_cast<int>(std::chrono::year_month_day(clock.Today()).year());
}

int AnulCurent() { return AnulCurent(Clock()); }

std::string NormalizeazaData(std::string_view text, int anCurent) {
  std::string_view trimmed = Trim(text);
  static constexpr std::array<std::string_view, 6> kEmpty = {"--",   "..",   "//",
                                                             "-  -", ".  .", "/  /"};
  for (std::string_view e : kEmpty)
    if (trimmed == e) return {};

  std::string s(trimmed);
  for (char& c : s)
    if (c == '.' || c == '-') c = '/';

  // Day, month and year, each of digits; the year of one or two digits falls
  // in the current century, the way the platform's date reader takes it.
  std::array<std::string_view, 3> parts;
  std::string_view rest = s;
  for (std::size_t i = 0; i < 3; ++i) {
    std::size_t slash = rest.find('/');
    if (i < 2 && slash == std::string_view::npos) return s;
    parts[i] = Trim(i < 2 ? rest.substr(0, slash) : rest);
    if (i < 2) rest.remove_prefix(slash + 1);
  }
  if (!AllDigits(parts[0]) || parts[0].size() > 2 || !AllDigits(parts[1]) || parts[1].size() > 2 ||
      !AllDigits(parts[2]) || (parts[2].size() > 2 && parts[2].size() != 4))
    return s;
  int year = Number(parts[2]);
  if (parts[2].size() <= 2) year += anCurent / 100 * 100;
  auto day = DayOf(Number(parts[0]), Number(parts[1]), year);
  return day ? TextData(*day) : s;
}

std::optional<std::chrono::year_month_day> CitesteData(std::string_view text) {
  if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
  std::string_view d = text.substr(0, 2), m = text.substr(3, 2), y = text.substr(6, 4);
  if (!AllDigits(d) || !AllDigits(m) || !AllDigits(y)) return std::nullopt;
  return DayOf(Number(d), Number(m), Number(y));
}

std::string TextData(std::chrono::year_month_day day) {
  char text[32];
  std::snprintf(text, sizeof text, "%02u/%02u/%04d", static_cast<unsigned>(day.day()),
                static_cast<unsigned>(day.month()), static_cast<int>(day.year()));
  return text;
}

int VerificaDataRegionala(const Clock& clock, Dialogs& dialogs) {
  using std::chrono::days;
  const auto today = clock.Today();
  const std::string azi = clock.ShortDate(today);
  const std::string maine = clock.ShortDate(today + days{1});
  const std::string pesteOLuna = clock.ShortDate(today + days{31});

  std::string_view d1 = Mid(azi, 1, 2), d2 = Mid(azi, 4, 2);
  // A day of 28 to 31 can only stand first: any other place makes a sum above 1.
  std::size_t p = InStr(azi, "28") + InStr(azi, "29") + InStr(azi, "30") + InStr(azi, "31");
  bool doubtful = p > 1;
  if (Valoare(d1) == 31 && Valoare(d2) >= 20) doubtful = true;
  std::string_view n1 = Mid(maine, 1, 2), n2 = Mid(pesteOLuna, 4, 2);

  bool gresit =
      doubtful || d1 == n1 || d2 == n2 || Valoare(d2) == 0 || azi.find('/') == std::string::npos;
  if (!gresit) return 0;
  Warn(dialogs, "Nu aveti setarea 'Short date Style: dd/mm/yy' (la Regional Settings).", "");
  return 1;
}

}  // namespace fisc
