#include "platform/SortNoCase.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace fisc {

namespace {

// Case is folded for A to Z only, whatever the locale of the process.
constexpr std::array<unsigned char, 256> kMici = [] {
  std::array<unsigned char, 256> t{};
  for (int c = 0; c < 256; ++c)
    t[static_cast<std::size_t>(c)] = static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
  return t;
}();

unsigned char Mica(char c) { return kMici[static_cast<unsigned char>(c)]; }

// The first bytes of an item folded into whole numbers that compare as the
// bytes do, the rest as zeros. Most comparisons end in them, without going to
// the text, which a sort of a whole file would find anywhere in memory. Two
// prefixes that differ order their items; two equal ones leave it to the text.
constexpr std::size_t kPrefix = 24;

struct Cheie {
  std::array<std::uint64_t, kPrefix / 8> prefix;
  std::uint32_t index;
};

Cheie CheieDin(std::string_view text, std::uint32_t index) {
  Cheie k{{}, index};
  std::size_t n = std::min(text.size(), kPrefix);
  for (std::size_t i = 0; i < n; ++i)
    k.prefix[i / 8] |= std::uint64_t{Mica(text[i])} << (8 * (7 - i % 8));
  return k;
}

// The order of a permutation of `items`, stable.
template <typename Text>
std::vector<Cheie> Ordine(const std::vector<Text>& items) {
  std::vector<Cheie> chei;
  chei.reserve(items.size());
  for (std::size_t i = 0; i < items.size(); ++i)
    chei.push_back(CheieDin(items[i], static_cast<std::uint32_t>(i)));
  std::sort(chei.begin(), chei.end(), [&](const Cheie& a, const Cheie& b) {
    if (a.prefix != b.prefix) return a.prefix < b.prefix;
    std::string_view x = items[a.index], y = items[b.index];
    if (x.size() > kPrefix && y.size() > kPrefix) {
      // The prefixes hold the first bytes whole: compare from behind them.
      std::size_t n = std::min(x.size(), y.size());
      for (std::size_t i = kPrefix; i < n; ++i) {
        unsigned char p = Mica(x[i]), q = Mica(y[i]);
        if (p != q) return p < q;
      }
      if (x.size() != y.size()) return x.size() < y.size();
    } else if (x.size() != y.size()) {
      return LessNoCase(x, y);
    }
    // Equal texts keep the order they came in.
    return a.index < b.index;
  });
  return chei;
}

template <typename Text>
void Sorteaza(std::vector<Text>& items) {
  if (items.size() < 2) return;
  std::vector<Cheie> chei = Ordine(items);
  std::vector<Text> ordonate;
  ordonate.reserve(items.size());
  for (const Cheie& c : chei) ordonate.push_back(std::move(items[c.index]));
  items.swap(ordonate);
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

void SortNoCase(std::vector<std::string>& items) { Sorteaza(items); }

void SortNoCase(std::vector<std::string_view>& items) { Sorteaza(items); }

}  // namespace fisc
