#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "support/TestSupport.h"

#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {
namespace {

TEST(Valoare, TakesTheNumericPrefixWithBlanksSkipped) {
  EXPECT_EQ(Valoare("12a"), 12);
  EXPECT_EQ(Valoare(" 5"), 5);
  EXPECT_EQ(Valoare("1 600 000"), 1600000);
  EXPECT_EQ(Valoare("-250"), -250);
  EXPECT_DOUBLE_EQ(Valoare("0.15"), 0.15);
  EXPECT_EQ(Valoare("1,5"), 1);  // the comma is no decimal symbol here
  EXPECT_EQ(Valoare(""), 0);
  EXPECT_EQ(Valoare("X"), 0);
  EXPECT_EQ(Valoare("."), 0);
  EXPECT_EQ(Valoare("1e3"), 1000);
  EXPECT_EQ(Valoare("2e"), 2);
}

TEST(Valoare, PlainNumbersReadExactlyAsTheFullConversion) {
  for (const char* text : {"0.15", "1.5", "0.1", "123456789012345", "1234567890123456",
                           "0.000000000000001", "9.99999999999999", "-0.3", "7.", "00012.50"})
    EXPECT_EQ(Valoare(text), std::strtod(text, nullptr)) << text;
  EXPECT_EQ(Valoare("-0"), 0);
  EXPECT_FALSE(std::signbit(Valoare("-0")));
  EXPECT_EQ(Valoare("12345678901234567890"), 12345678901234567890.0);
  EXPECT_EQ(ValZecimal("1,5"), 1.5);
  EXPECT_EQ(ValZecimal("1.5,3"), 1.5);
  EXPECT_EQ(ValZecimal("2x,5"), 2);
}

TEST(TextDin, WritesTheShortestTextWithoutExponent) {
  EXPECT_EQ(TextDin(1600000), "1600000");
  EXPECT_EQ(TextDin(0.5), "0.5");
  EXPECT_EQ(TextDin(0), "0");
  EXPECT_EQ(TextDin(-0.0), "0");
  EXPECT_EQ(TextDin(-12), "-12");
  EXPECT_EQ(TextDin(0.1 + 0.2), "0.3");
  EXPECT_EQ(TextDin(999999999999), "999999999999");
}

TEST(TextDin, PassesAThirteenDigitCodeUnchangedAndCleansATypedOne) {
  EXPECT_EQ(TextDin(Valoare("1800101123456")), "1800101123456");
  EXPECT_EQ(TextDin(Valoare("0012x5")), "12");
}

TEST(DecimalConversions, FollowTheirOwnCommaRules) {
  EXPECT_EQ(TextZecimal("1,5"), "1.5");
  EXPECT_EQ(TextNumar("1,5"), "1");
  EXPECT_EQ(PunctZecimal("1,5"), "1.5");
  EXPECT_EQ(ValZecimal(""), 0);
  EXPECT_EQ(TextZecimal(""), "0");
}

TEST(Rotunjeste, TiesGoToEven) {
  EXPECT_EQ(Rotunjeste(12345.5), 12346);
  EXPECT_EQ(Rotunjeste(12344.5), 12344);
  EXPECT_EQ(Rotunjeste(0.5), 0);
  EXPECT_EQ(Rotunjeste(-2.5), -2);
}

TEST(CititorCampuri, MovesPastEachDelimiterAndLeavesTheRestToTheLastField) {
  CititorCampuri r("123,#ION#,#  x #,5,,7");
  EXPECT_EQ(r.Camp(delim::BareText), "123");
  EXPECT_EQ(r.Camp(delim::Text), "ION");
  EXPECT_EQ(r.Marca(delim::TextBare), "X");
  EXPECT_EQ(r.Camp(delim::Bare), "5");
  EXPECT_EQ(r.Camp(delim::Bare), "");
  EXPECT_EQ(r.Rest(), "7");
  EXPECT_EQ(r.Rest(), "");
}

TEST(CititorCampuri, AMissingDelimiterFailsTheRead) {
  CititorCampuri r("123");
  EXPECT_EQ(test::FailureOf([&] { r.Camp(delim::Bare); }), 5);
}

}  // namespace
}  // namespace fisc
