// The sorted list's order: whatever fast path the sort takes, it must give
// the order of LessNoCase, equal texts in the order they came.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/SortNoCase.h"

namespace fisc {
namespace {

// Texts around the length of the sort's fast prefix, of a few letters in both
// cases, the characters between the two alphabets and a zero byte, so that
// long common beginnings, prefixes of each other and case-equal texts abound.
std::vector<std::string> Texte(unsigned seed, std::size_t n) {
  std::mt19937 rng(seed);
  const std::string litere = std::string("aAbBzZ[`_,#1") + '\0';
  std::vector<std::string> texte;
  for (std::size_t i = 0; i < n; ++i) {
    std::string t = std::string(rng() % 30, 'K');  // a common beginning, 0 to 29 long
    for (std::size_t k = rng() % 6; k > 0; --k) t += litere[rng() % litere.size()];
    texte.push_back(t);
  }
  return texte;
}

std::vector<std::string> Asteptat(std::vector<std::string> texte) {
  std::stable_sort(texte.begin(), texte.end(), LessNoCase);
  return texte;
}

TEST(SortNoCase, GivesTheOrderOfTheComparisonAndKeepsEqualTextsInTheirOrder) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::vector<std::string> texte = Texte(seed, 400);
    std::vector<std::string> asteptat = Asteptat(texte);

    std::vector<std::string> sortate = texte;
    SortNoCase(sortate);
    EXPECT_EQ(sortate, asteptat) << "seed " << seed;

    // The views keep pointing at their own texts: equal texts in their order.
    std::vector<std::string_view> vederi(texte.begin(), texte.end());
    SortNoCase(vederi);
    ASSERT_EQ(vederi.size(), asteptat.size());
    for (std::size_t i = 0; i < vederi.size(); ++i) EXPECT_EQ(vederi[i], asteptat[i]);
    std::map<const char*, std::size_t> locul;
    for (std::size_t i = 0; i < texte.size(); ++i) locul[texte[i].data()] = i;
    for (std::size_t i = 1; i < vederi.size(); ++i) {
      if (LessNoCase(vederi[i - 1], vederi[i])) continue;
      EXPECT_LT(locul[vederi[i - 1].data()], locul[vederi[i].data()]) << "seed " << seed;
    }
  }
}

}  // namespace
}  // namespace fisc
