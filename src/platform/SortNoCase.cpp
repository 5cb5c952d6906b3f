#include "platform/SortNoCase.h"

#include <algorithm>

namespace fisc {

namespace {
// Case is folded for A to Z only, whatever the locale of the process.
unsigned char Mica(char c) {
  auto u = static_cast<unsigned char>(c);
  return u >= 'A' && u <= 'Z' ? static_cast<unsigned char>(u + ('a' - 'A')) : u;
}
}  // namespace

bool LessNoCase(std::string_view a, std::string_view b) {
  std::size_t n = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < n; ++i) {
    unsigned char x = Mica(a[i]), y = Mica(b[i]);
    if (x != y) return x < y;
  }
  return a.size() < b.size();
}

void SortNoCase(std::vector<std::string>& items) {
  if (items.size() < 2) return;
  // Each item is folded to lower case once, into one buffer, and the folded
  // forms compare as plain bytes: the order of LessNoCase at a fraction of
  // its cost.
  std::size_t total = 0;
  for (const std::string& item : items) total += item.size();
  std::string mici;
  mici.reserve(total);
  for (const std::string& item : items)
    for (char c : item) mici.push_back(static_cast<char>(Mica(c)));
  struct Cheie {
    std::string_view text;
    std::size_t index;
  };
  std::vector<Cheie> chei;
  chei.reserve(items.size());
  std::size_t at = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    chei.push_back({std::string_view(mici).substr(at, items[i].size()), i});
    at += items[i].size();
  }
  std::stable_sort(chei.begin(), chei.end(),
                   [](const Cheie& a, const Cheie& b) { return a.text < b.text; });
  std::vector<std::string> ordonate;
  ordonate.reserve(items.size());
  for (const Cheie& c : chei) ordonate.push_back(std::move(items[c.index]));
  items.swap(ordonate);
}

}  // namespace fisc
