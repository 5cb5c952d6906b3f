// The bytes of the program shown as Unicode and typed back.
#include <gtest/gtest.h>

#include "platform/qt/Cp1250.h"

namespace fisc {
namespace {

TEST(Cp1250Test, EveryByteSurvivesTheWayToTheScreenAndBack) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  QString shown = FromCp1250(all);
  ASSERT_EQ(shown.size(), 256);
  EXPECT_EQ(ToCp1250(shown), all);
}

TEST(Cp1250Test, RomanianAndCentralEuropeanLettersHaveTheirBytes) {
  // A breve, A circumflex, I circumflex, S and T cedilla, small and capital.
  EXPECT_EQ(FromCp1250("\xc3\xe3\xc2\xe2\xce\xee\xaa\xba\xde\xfe"),
            QString::fromUtf8("\xc4\x82\xc4\x83\xc3\x82\xc3\xa2\xc3\x8e\xc3\xae\xc5\x9e\xc5\x9f"
                              "\xc5\xa2\xc5\xa3"));
  EXPECT_EQ(FromCp1250("\x80\x8a\x9a\xff"),
            QString::fromUtf8("\xe2\x82\xac\xc5\xa0\xc5\xa1\xcb\x99"));
}

TEST(Cp1250Test, TypedCharactersOutsideTheCodePageBecomeQuestionMarks) {
  // Cyrillic, a Chinese character, an emoji (two halves, one character).
  EXPECT_EQ(ToCp1250(QString::fromUtf8("a\xd0\x96"
                                       "b\xe4\xb8\xad"
                                       "c\xf0\x9f\x98\x80"
                                       "d")),
            "a?b?c?d");
  // The comma-below letters of a modern Romanian keyboard are the cedilla ones.
  EXPECT_EQ(ToCp1250(QString::fromUtf8("\xc8\x98\xc8\x99\xc8\x9a\xc8\x9b")), "\xaa\xba\xde\xfe");
}

}  // namespace
}  // namespace fisc
