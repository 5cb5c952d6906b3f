#pragma once
// The dependants of each sheet of a listing, found in Deduceri.txt as the
// sheet load finds them: the first unbroken block of lines that begin with
// the code and a comma. A listing of 200000 sheets can't read the file from
// its start for each of them, so one pass notes where every block begins
// (a hash of its code and its byte offset, 16 bytes a block) and each look-up
// reads its block alone.
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sheets/RecordDed.h"

namespace fisc {

class Files;

class IndexDeduceri {
 public:
  explicit IndexDeduceri(const Files& files);
  ~IndexDeduceri();
  IndexDeduceri(const IndexDeduceri&) = delete;
  IndexDeduceri& operator=(const IndexDeduceri&) = delete;

  // As IncarcaDeduceri: empties the table, and with an empty or missing file
  // stops there, keeping nrPersoane; else reads the code's block into rows
  // 1.., a 21st row failing with 9.
  void Incarca(std::string_view cod, TabelDed& tabel, short& nrPersoane);

 private:
  void Construieste();
  // The line at `offset` into `linie`; the offset moves past its end.
  bool Linia(std::uint64_t& offset, std::string& linie);
  // Reads `marime` bytes of the file from `offset` into the buffer.
  void Umple(std::uint64_t offset, std::size_t marime);

  const Files& files_;
  bool construit_ = false;
  std::FILE* file_ = nullptr;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> blocuri_;  // hash of the code, offset
  std::vector<char> buffer_;
  std::uint64_t bufferStart_ = 0;
  bool sfarsit_ = false;  // the buffer reaches the end of the file
};

}  // namespace fisc
