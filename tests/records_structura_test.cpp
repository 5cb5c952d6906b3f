#include <gtest/gtest.h>

#include <string>

#include "records/Structura.h"

namespace fisc {
namespace {

// An FF1 line as the sheet writer makes it: the head up to the empty field 20,
// then fields 21 to 86, all empty here but the start date.
std::string Ff1(const std::string& strada) {
  return "1800101123450,#POPESCU#,#ION#,#CLUJ-NAPOCA#,#CLUJ#,#" + strada +
         "#,#5#,400000,#A#,#1#,#2#,#3#,,##,#X#,##,##,##,##,##,01/03/2002" + std::string(65, ',');
}

TEST(StructuraRecord, CommasInsideATextFieldDisappear) {
  EXPECT_TRUE(StructuraRecord("123,#POP, ION,,#,#X#", ",##,##"));
  EXPECT_TRUE(StructuraRecord("5,#,#,7", ",##,"));
  EXPECT_TRUE(StructuraRecord("1,##,2", ",##,"));
  EXPECT_TRUE(StructuraRecord("1,#X#,2", ",##,"));
  EXPECT_TRUE(StructuraRecord(Ff1("STR. MICA, NR. 5, ,"), SablonFF1));
}

TEST(StructuraRecord, RecordsOfEachKindMatchTheirTemplate) {
  EXPECT_TRUE(StructuraRecord(Ff1("STR. MICA"), SablonFF1));
  EXPECT_FALSE(StructuraRecord(Ff1("STR. MICA") + ",", SablonFF1));
  std::string ff2 =
      "1800101123450,#POP#,#ION#,#CLUJ#,#CLUJ#,#STR#,#5#,400000,##,##,##,##,,##"
      ",#X#,##,##,##,##,##,##,##,1000,180" +
      std::string(23, ',') + "1000,180";
  EXPECT_TRUE(StructuraRecord(ff2, SablonFF2));
  EXPECT_TRUE(StructuraRecord(
      "1800101123450,2950101123454,#POP#,#ANA#,##,#X#,##,##,##,##,0.5,0.5,0.5,,,,,,,,,",
      SablonDeducere));
  EXPECT_FALSE(StructuraRecord(
      "1800101123450,2950101123454,#POP#,#ANA#,##,#X#,##,##,##,##,0.5,0.5,0.5,,,,,,,,,",
      SablonFF2));
}

TEST(StructuraRecord, RefusesAQuestionMarkACommaInABareFieldAndTheEmptyRecord) {
  EXPECT_FALSE(StructuraRecord(Ff1("STR. MICA?"), SablonFF1));
  EXPECT_FALSE(StructuraRecord("1,5,#X#", ",##"));
  EXPECT_FALSE(StructuraRecord("", SablonDeducere));
  EXPECT_FALSE(StructuraRecord("1,#A#B#,2", ",##,"));  // a "#" inside a text field
}

}  // namespace
}  // namespace fisc
