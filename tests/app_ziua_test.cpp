#include <gtest/gtest.h>

#include "support/Ecrane.h"

namespace fisc {
namespace {

using namespace std::chrono;
using test::Program;

// Days whose year, written in digits, holds 28 to 31, and the last day the
// program is kept for.
constexpr year_month_day kZile[] = {2028y / January / 1d, 2029y / February / 28d,
                                    2030y / June / 15d, 2031y / December / 31d,
                                    2099y / December / 31d};

TEST(ZiuaMasinii, TheButtonsThatProbeTheDateGoOnInTheYearsAfter2027) {
  for (year_month_day zi : kZile) {
    Program p;
    p.clock.zi = zi;
    p.Click(p.app->intro.Command6);
    p.Click(p.app->intro.Command9);
    EXPECT_TRUE(p.files.Exists("tr12.txt"));
    p.Click(p.app->intro.Command1);
    EXPECT_TRUE(p.app->fisaI.Visible());
    EXPECT_EQ(p.app->StareComuna().DataGresita, 0);
    EXPECT_EQ(p.Mesaje(), 0u) << (p.Mesaje() ? p.UltimulMesaj() : "");
  }
}

// A two-digit year typed on the employee screen counts in the century of
// today: 2002 on every day to the end of 2099. The age of a dependant counts
// from the fiscal year, whatever the day.
TEST(ZiuaMasinii, DatesTypedWithTwoDigitsAndAgesKeepToTheFiscalYear) {
  for (year_month_day zi : kZile) {
    Program p;
    p.clock.zi = zi;
    p.FisaNoua("1700315123458", "1.3.02", "30-11-02");
    EXPECT_EQ(p.Fisa().DataAngajarii, "01/03/2002");
    EXPECT_EQ(p.Fisa().DataIncetarii, "30/11/2002");
    EXPECT_EQ(p.Fisa().LunaPrima, 2);
    EXPECT_EQ(p.Mesaje(), 0u) << (p.Mesaje() ? p.UltimulMesaj() : "");

    Fisa1F& f = p.F1();
    p.Click(f.Command2);
    p.Click(f.Ok_PersU);
    p.Scrie(f.CodI, "5010101123455");
    p.D().UserFocus(f.NumeI);
    EXPECT_EQ(f.Label34.Caption(), "(Varsta = 1 ani)");
    EXPECT_EQ(f.Copil.Value(), 1);
  }
}

}  // namespace
}  // namespace fisc
