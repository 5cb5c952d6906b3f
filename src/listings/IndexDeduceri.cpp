#include "listings/IndexDeduceri.h"

#include <algorithm>
#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "sheets/FisiereSet.h"
#include "sheets/Stocare.h"

namespace fisc {

namespace {

std::uint64_t Hash(std::string_view text) {
  std::uint64_t h = 14695981039346656037ull;
  for (char c : text) {
    h ^= static_cast<unsigned char>(c);
    h *= 1099511628211ull;
  }
  return h;
}

constexpr std::size_t kBucata = 1 << 16;

}  // namespace

IndexDeduceri::IndexDeduceri(const Files& files) : files_(files) {}

IndexDeduceri::~IndexDeduceri() {
  if (file_) std::fclose(file_);
}

void IndexDeduceri::Construieste() {
  construit_ = true;
  if (!files_.Exists(fisier::Deduceri) || files_.Length(fisier::Deduceri) == 0) return;
  file_ = std::fopen(files_.Path(fisier::Deduceri).c_str(), "rb");
  if (!file_) Fail(err::PathFileAccess);

  // Each line whose first field differs from the line before opens a block;
  // a line without a comma belongs to no code and breaks the block in hand.
  std::string camp, anterior;
  bool inCamp = true, areVirgula = false, anteriorAre = false, dupaCR = false;
  std::uint64_t inceput = 0, pozitie = 0;
  auto sfarsitLinie = [&] {
    if (areVirgula) {
      if (!anteriorAre || camp != anterior) blocuri_.emplace_back(Hash(camp), inceput);
      anterior.swap(camp);
    }
    anteriorAre = areVirgula;
    camp.clear();
    inCamp = true;
    areVirgula = false;
  };
  std::vector<char> buffer(kBucata);
  std::size_t citit;
  while ((citit = std::fread(buffer.data(), 1, buffer.size(), file_)) > 0) {
    for (std::size_t i = 0; i < citit; ++i, ++pozitie) {
      char c = buffer[i];
      if (dupaCR) {
        dupaCR = false;
        if (c == '\n') {
          inceput = pozitie + 1;
          continue;
        }
      }
      if (c == '\r' || c == '\n') {
        sfarsitLinie();
        inceput = pozitie + 1;
        dupaCR = c == '\r';
      } else if (inCamp) {
        if (c == ',') {
          inCamp = false;
          areVirgula = true;
        } else {
          camp += c;
        }
      }
    }
  }
  if (inceput < pozitie) sfarsitLinie();
  std::sort(blocuri_.begin(), blocuri_.end());
}

void IndexDeduceri::Umple(std::uint64_t offset, std::size_t marime) {
  buffer_.resize(marime);
  if (fseeko(file_, static_cast<off_t>(offset), SEEK_SET) != 0) Fail(err::PathFileAccess);
  std::size_t citit = std::fread(buffer_.data(), 1, marime, file_);
  buffer_.resize(citit);
  bufferStart_ = offset;
  sfarsit_ = citit < marime;
}

bool IndexDeduceri::Linia(std::uint64_t& offset, std::string& linie) {
  std::size_t marime = kBucata;
  if (offset < bufferStart_ || offset > bufferStart_ + buffer_.size()) Umple(offset, marime);
  for (;;) {
    // The line must stand whole in the buffer, and after a closing CR the
    // character that may be its LF, unless the file ends first.
    const char* b = buffer_.data() + (offset - bufferStart_);
    const char* e = buffer_.data() + buffer_.size();
    const char* end = std::find_if(b, e, [](char c) { return c == '\r' || c == '\n'; });
    if (end != e && (*end == '\n' || end + 1 != e || sfarsit_)) {
      linie.assign(b, end);
      offset += static_cast<std::uint64_t>(end - b) + 1;
      if (*end == '\r' && end + 1 != e && end[1] == '\n') ++offset;
      return true;
    }
    if (end == e && sfarsit_) {
      linie.assign(b, e);
      offset += static_cast<std::uint64_t>(e - b);
      return b != e;
    }
    marime *= 2;
    Umple(offset, marime);
  }
}

void IndexDeduceri::Incarca(std::string_view cod, TabelDed& tabel, short& nrPersoane) {
  tabel.Goleste();
  if (!construit_) Construieste();
  if (!file_) return;
  std::string cautat(cod);
  cautat += ',';
  nrPersoane = 0;
  std::uint64_t h = Hash(cod);
  auto it = std::lower_bound(blocuri_.begin(), blocuri_.end(), std::make_pair(h, std::uint64_t{0}));
  std::string linie;
  for (; it != blocuri_.end() && it->first == h; ++it) {
    std::uint64_t offset = it->second;
    if (!Linia(offset, linie) || !LiniaCodului(linie, cautat)) continue;  // another code, same hash
    do {
      nrPersoane = CheckedShort(nrPersoane + 1);
      CitesteRandDed(linie, tabel, nrPersoane);
    } while (Linia(offset, linie) && LiniaCodului(linie, cautat));
    return;
  }
}

}  // namespace fisc
