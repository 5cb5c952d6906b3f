#include "listings/Randuri.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "listings/Cadru.h"
#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {

std::string PeDreapta(std::string_view text, std::size_t latime) {
  std::string s;
  AdaugaDreapta(s, text, latime);
  return s;
}

std::string PeStanga(std::string_view text, std::size_t latime) {
  std::string s;
  AdaugaStanga(s, text, latime);
  return s;
}

std::string Taiat(std::string_view text, std::size_t latime) {
  return PeStanga(text.substr(0, latime), latime);
}

void AdaugaDreapta(std::string& rand, std::string_view text, std::size_t latime) {
  if (text.size() < latime) rand.append(latime - text.size(), ' ');
  rand += text;
}

void AdaugaStanga(std::string& rand, std::string_view text, std::size_t latime) {
  rand += text;
  if (text.size() < latime) rand.append(latime - text.size(), ' ');
}

void AdaugaSuma(std::string& rand, std::string& valoare, int latime) {
  const std::string inainte = valoare;
  std::string masurat = FormatSuma(valoare);
  if (masurat.size() > static_cast<std::size_t>(latime)) Fail(err::InvalidCall);
  rand.append(static_cast<std::size_t>(latime) - masurat.size(), ' ');
  // Only a value the first call changed gives a second text of its own.
  rand += valoare == inainte ? masurat : FormatSuma(valoare);
}

std::string CelulaSuma(std::string& valoare, int latime) {
  std::string celula;
  AdaugaSuma(celula, valoare, latime);
  return celula;
}

double ValoareSuma(std::string_view text) {
  if (text.empty() || text.size() > 15) return Valoare(text);
  long long n = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return Valoare(text);
    n = n * 10 + (c - '0');
  }
  return static_cast<double>(n);
}

std::string TextSuma(double valoare) {
  if (valoare == 0) return "0";
  if (std::fabs(valoare) < 1e15 && valoare == std::trunc(valoare))
    return std::to_string(static_cast<long long>(valoare));
  return TextDin(valoare);
}

namespace {

// Takes a record apart as the field reader does, with the same failure for a
// missing delimiter, but by plain byte loops: the tables read every sheet of
// the file, and the fields are short.
class Cursor {
 public:
  explicit Cursor(std::string_view record) : r_(record) {}

  std::string_view Camp(std::string_view delimitator) {
    const std::size_t n = delimitator.size();
    const char primul = delimitator[0];
    const char* inceput = r_.data() + poz_;
    const char* sfarsit = r_.data() + r_.size();
    for (const char* p = inceput; p + n <= sfarsit; ++p) {
      if (*p != primul) continue;
      std::size_t k = 1;
      while (k < n && p[k] == delimitator[k]) ++k;
      if (k < n) continue;
      poz_ = static_cast<std::size_t>(p - r_.data()) + n;
      return {inceput, static_cast<std::size_t>(p - inceput)};
    }
    Fail(err::InvalidCall);
  }

  // Bare fields hold numbers and dates, never a comma: stepped over by their
  // commas, eight bytes at a time.
  void Sari(int campuri) {
    constexpr std::uint64_t kUnu = 0x0101010101010101ULL, kSus = kUnu * 0x80;
    while (campuri > 0 && poz_ + 8 <= r_.size()) {
      std::uint64_t w;
      std::memcpy(&w, r_.data() + poz_, 8);
      const std::uint64_t x = w ^ (kUnu * ',');
      // The top bit of each byte that is a comma.
      std::uint64_t virgule = ~(((x & (kUnu * 0x7F)) + kUnu * 0x7F) | x) & kSus;
      const int cate = static_cast<int>(((virgule >> 7) * kUnu) >> 56);
      if (cate < campuri) {
        campuri -= cate;
        poz_ += 8;
        continue;
      }
      for (; campuri > 1; --campuri) virgule &= virgule - 1;
      poz_ += static_cast<std::size_t>(std::countr_zero(virgule) / 8) + 1;
      return;
    }
    for (; campuri > 0 && poz_ < r_.size(); ++poz_)
      if (r_[poz_] == ',') --campuri;
    if (campuri > 0) Fail(err::InvalidCall);
  }

  std::string_view Rest() { return poz_ < r_.size() ? r_.substr(poz_) : std::string_view(); }

 private:
  std::string_view r_;
  std::size_t poz_ = 0;
};

// Fields 1 to 14: code, names, address and FlagRectif.
void CitesteCap(Cursor& c, RandFisa& r) {
  r.Cod = c.Camp(delim::BareText);
  r.Nume = c.Camp(delim::Text);
  r.Pren = c.Camp(delim::Text);
  for (int i = 0; i < 3; ++i) c.Camp(delim::Text);
  c.Camp(delim::TextBare);
  c.Camp(delim::BareText);
  for (int i = 0; i < 3; ++i) c.Camp(delim::Text);
  c.Camp(delim::TextBare);
  c.Camp(delim::BareText);
  r.FlagRectif = NormalizeazaMarca(c.Camp(delim::Text));
}

}  // namespace

RandFisa CitesteRandFF1(std::string_view record, int pereche) {
  RandFisa r;
  Cursor c(record);
  CitesteCap(c, r);
  r.FlagReg = NormalizeazaMarca(c.Camp(delim::Text));
  for (int i = 0; i < 4; ++i) c.Camp(delim::Text);
  c.Camp(delim::TextBare);
  // The two dates and the 24 coefficients, then the pairs before ours.
  c.Sari(26 + 2 * pereche);
  r.Venit = c.Camp(delim::Bare);
  r.Impozit = c.Camp(delim::Bare);
  return r;
}

RandFisa CitesteRandFF2(std::string_view record, int pereche) {
  RandFisa r;
  Cursor c(record);
  CitesteCap(c, r);
  for (int i = 0; i < 7; ++i) c.Camp(delim::Text);
  c.Camp(delim::TextBare);
  c.Sari(2 * pereche);
  r.Venit = c.Camp(delim::Bare);
  // The total tax is the last field of the record.
  r.Impozit = pereche == 12 ? c.Rest() : c.Camp(delim::Bare);
  return r;
}

void AdaugaNume(std::string& rand, const RandFisa& r) {
  rand += r.Nume;
  rand += ' ';
  rand += r.Pren;
}

std::string NumeComplet(const RandFisa& r) {
  std::string nume;
  AdaugaNume(nume, r);
  return nume;
}

}  // namespace fisc
