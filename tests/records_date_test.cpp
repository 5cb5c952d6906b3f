#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

#include "platform/Services.h"
#include "records/Date.h"

namespace fisc {
namespace {

using namespace std::chrono;

TEST(NormalizeazaData, EmptiesTheShortFormsAndWritesADayInFull) {
  for (const char* gol : {"--", "..", "//", "-  -", ".  .", " /  / ", ""})
    EXPECT_EQ(NormalizeazaData(gol, 2002), "") << gol;
  EXPECT_EQ(NormalizeazaData(" 1.3.2002 ", 2002), "01/03/2002");
  EXPECT_EQ(NormalizeazaData("15-07-02", 2002), "15/07/2002");
  EXPECT_EQ(NormalizeazaData("5/7/99", 2024), "05/07/2099");  // the current century
}

TEST(NormalizeazaData, ATextThatNamesNoDayKeepsOnlyItsNewSeparators) {
  EXPECT_EQ(NormalizeazaData("12/31/2002", 2002), "12/31/2002");  // never month first
  EXPECT_EQ(NormalizeazaData("29.02.2002", 2002), "29/02/2002");
  EXPECT_EQ(NormalizeazaData("15-07", 2002), "15/07");
  EXPECT_EQ(NormalizeazaData("azi", 2002), "azi");
}

TEST(CitesteData, TakesOnlyTheFullFormOfARealDay) {
  EXPECT_EQ(CitesteData("29/02/2000"), 2000y / February / 29d);
  EXPECT_FALSE(CitesteData("29/02/2002"));
  EXPECT_FALSE(CitesteData("1/3/2002"));
  EXPECT_FALSE(CitesteData("01-03-2002"));
}

// A machine that writes its short date with `format` over three numbers: day,
// month and the year's last two digits, in the order given.
enum class Ordine { ZiLunaAn, LunaZiAn, AnLunaZi };

class FakeClock : public Clock {
 public:
  FakeClock(sys_days today, const char* format, Ordine ordine = Ordine::ZiLunaAn)
      : today_(today), format_(format), ordine_(ordine) {}
  sys_days Today() const override { return today_; }
  std::string ShortDate(sys_days day) const override {
    year_month_day ymd(day);
    unsigned d = static_cast<unsigned>(ymd.day()), m = static_cast<unsigned>(ymd.month());
    unsigned y = static_cast<unsigned>(static_cast<int>(ymd.year()) % 100);
    if (ordine_ == Ordine::LunaZiAn) std::swap(d, m);
    if (ordine_ == Ordine::AnLunaZi) std::swap(d, y);
    char text[16];
    std::snprintf(text, sizeof text, format_, d, m, y);
    return text;
  }

 private:
  sys_days today_;
  const char* format_;
  Ordine ordine_;
};

// The machine's clock standing on a given day; the short date is the
// platform's own text.
class Ziua : public Clock {
 public:
  explicit Ziua(sys_days today) : today_(today) {}
  sys_days Today() const override { return today_; }

 private:
  sys_days today_;
};

class RecordingDialogs : public Dialogs {
 public:
  Answer Box(std::string_view text, Buttons, Icon icon, std::string_view title) override {
    boxes.push_back(std::string(text) + "|" + std::string(title) + "|" +
                    std::to_string(static_cast<int>(icon)));
    return Answer::Ok;
  }
  std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
    return std::nullopt;
  }
  std::vector<std::string> boxes;
};

constexpr const char* kSlash = "%02u/%02u/%02u";

TEST(VerificaDataRegionala, DayFirstPassesOnThe31stAndMonthFirstFailsWithAWarning) {
  RecordingDialogs dialogs;
  const sys_days day = 2002y / January / 31d;
  EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash), dialogs), 0);
  EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash, Ordine::LunaZiAn), dialogs), 1);
  EXPECT_EQ(dialogs.boxes,
            std::vector<std::string>{
                "Nu aveti setarea 'Short date Style: dd/mm/yy' (la Regional Settings).||" +
                std::to_string(static_cast<int>(Icon::Warning))});
}

TEST(VerificaDataRegionala, DecidesByThePatternOnEveryDayOfTheYear) {
  for (sys_days day = 2002y / January / 1d; day <= sys_days(2002y / December / 31d);
       day += days{1}) {
    RecordingDialogs dialogs;
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash), dialogs), 0);
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash, Ordine::LunaZiAn), dialogs), 1);
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, "%02u.%02u.%02u"), dialogs), 1);  // no "/"
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash, Ordine::AnLunaZi), dialogs), 1);
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, "%02u/%02u", Ordine::LunaZiAn), dialogs), 1);
  }
}

TEST(VerificaDataRegionala, ThePlatformsOwnShortDatePassesOnEveryDayFrom2002To2099) {
  RecordingDialogs dialogs;
  for (sys_days day = 2002y / January / 1d; day <= sys_days(2099y / December / 31d); day += days{1})
    if (VerificaDataRegionala(Ziua(day), dialogs) != 0) ADD_FAILURE() << TextData(day);
  EXPECT_TRUE(dialogs.boxes.empty());
}

// Why the platform's text has no year: the probe reads the year's digits
// 28 to 31 as a day out of its place, in two digits and in four.
TEST(VerificaDataRegionala, ADayFirstDateWithTheYears2028To2031Fails) {
  RecordingDialogs dialogs;
  for (int an : {2028, 2029, 2030, 2031}) {
    const sys_days day = year(an) / June / 15d;
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, kSlash), dialogs), 1) << an;
    EXPECT_EQ(VerificaDataRegionala(FakeClock(day, "%02u/%02u/20%02u"), dialogs), 1) << an;
  }
  EXPECT_EQ(VerificaDataRegionala(FakeClock(2032y / June / 15d, "%02u/%02u/20%02u"), dialogs), 0);
}

}  // namespace
}  // namespace fisc
