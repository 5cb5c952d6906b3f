#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Services.h"
#include "records/Date.h"

namespace fisc {
namespace {

// CTest runs this under faketime with the day it set: the program's clock is
// the system's, so the replays under faketime run on the days they name.
TEST(Clock, TodayIsTheDayOfTheSystemClock) {
  const char* asteptata = std::getenv("FISC_ZIUA_ASTEPTATA");
  if (!asteptata) GTEST_SKIP() << "only under faketime";
  EXPECT_EQ(TextData(std::chrono::year_month_day(Clock().Today())), asteptata);
  EXPECT_EQ(AnulCurent(), std::atoi(asteptata + 6));
}

}  // namespace
}  // namespace fisc
