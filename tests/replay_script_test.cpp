#include <gtest/gtest.h>

#include "replay/ScriptLine.h"

namespace fisc {
namespace {

TEST(ScriptLine, SplitsWordsAndJsonStrings) {
  auto t = Tokenize(R"(expect Fisa_I.AdrP(3).text "a \"b\" \u00e2\n")");
  ASSERT_EQ(t.size(), 3u);
  EXPECT_EQ(t[1].text, "Fisa_I.AdrP(3).text");
  EXPECT_FALSE(t[1].quoted);
  EXPECT_EQ(t[2].text, "a \"b\" \xe2\n");
  EXPECT_TRUE(t[2].quoted);
  EXPECT_THROW(Tokenize(R"(type "open)"), ScriptError);
}

TEST(ScriptLine, TakesControlReferencesApart) {
  ControlRef r = ParseRef("Fisa_I.AdrP(3).item(2)", true);
  EXPECT_EQ(r.form, "Fisa_I");
  EXPECT_EQ(r.name, "AdrP");
  EXPECT_EQ(r.index, 3);
  EXPECT_EQ(r.property, "item(2)");
  ControlRef form = ParseRef("Intro.caption", true);
  EXPECT_TRUE(form.name.empty());
  EXPECT_EQ(form.property, "caption");
  ControlRef plain = ParseRef("Intro.Command1", false);
  EXPECT_EQ(plain.name, "Command1");
  EXPECT_EQ(plain.index, -1);
  EXPECT_THROW(ParseRef("Intro", false), ScriptError);
}

TEST(ScriptLine, AUnicodeEscapeTakesExactlyFourHexDigits) {
  EXPECT_EQ(Tokenize(R"(type "\u00e9")")[1].text, "\xe9");
  for (const char* bad : {R"(type "\u12zz")", R"(type "\u-001")", R"(type "\u12")"})
    EXPECT_THROW(Tokenize(bad), ScriptError) << bad;
}

TEST(ScriptLine, AnIndexThatIsNoNumberIsAScriptError) {
  for (const char* bad :
       {"Fisa_I.AdrP(x)", "Fisa_I.AdrP()", "Fisa_I.AdrP(99999999999)", "Fisa_I.AdrP(3x)"})
    EXPECT_THROW(ParseRef(bad, false), ScriptError) << bad;
}

}  // namespace
}  // namespace fisc
