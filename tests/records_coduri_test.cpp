#include <gtest/gtest.h>

#include "support/TestSupport.h"

#include "platform/Failure.h"
#include "records/CoduriFiscale.h"

namespace fisc {
namespace {

TEST(VerificaCNP, AcceptsAPlausibleDateWithItsControlDigit) {
  EXPECT_TRUE(VerificaCNP("1800101123450"));
  EXPECT_TRUE(VerificaCNP("1800229123457"));  // 29 February of any year
  EXPECT_TRUE(VerificaCNP("0000101123458"));  // the first digit isn't checked
  EXPECT_FALSE(VerificaCNP("1800101123451"));
  EXPECT_FALSE(VerificaCNP("180010112345"));
  EXPECT_FALSE(VerificaCNP("1800101123450 "));
  // Right control digits on days that don't exist.
  for (const char* cod : {"1801301123459", "1800001123457", "1800100123458", "1800132123451",
                          "1800431123458", "1800230123458"})
    EXPECT_FALSE(VerificaCNP(cod)) << cod;
}

TEST(VerificaCNP, AForeignPersonsCodeSkipsTheDateButNotTheDigits) {
  EXPECT_TRUE(VerificaCNP("9000000123458"));
  EXPECT_FALSE(VerificaCNP("90000A0123458"));
  // A letter in place 5 passes the month test as "1" and fails on the digits.
  EXPECT_FALSE(VerificaCNP("1801A01123450"));
}

TEST(VerificaCNP, ARemainderOfTenAsksForAOne) {
  EXPECT_TRUE(VerificaCNP("1900101123491"));
  EXPECT_FALSE(VerificaCNP("1900101123490"));
}

TEST(VerificaCF, ChecksTheControlDigitOfTheCodePaddedToTenPlaces) {
  EXPECT_TRUE(VerificaCF("1234565"));
  EXPECT_FALSE(VerificaCF("1234567"));
  EXPECT_TRUE(VerificaCF("0001234565"));
  EXPECT_TRUE(VerificaCF("0000000000"));
  EXPECT_TRUE(VerificaCF(""));
  EXPECT_TRUE(VerificaCF("6000000"));  // remainder 10: control digit 0
  EXPECT_FALSE(VerificaCF("6000001"));
  EXPECT_FALSE(VerificaCF("123456 "));
  EXPECT_FALSE(VerificaCF("123456789012"));
}

TEST(VerificaCF, AnElevenDigitCodeIsARunTimeFailure) {
  EXPECT_EQ(test::FailureOf([&] { VerificaCF("12345678901"); }), err::InvalidCall);
  // The digit test comes first: eleven characters with a letter are just refused.
  EXPECT_FALSE(VerificaCF("1234567890A"));
}

}  // namespace
}  // namespace fisc
