// The dependant reader on any line, into the last row of the table.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "records/Structura.h"
#include "sheets/RecordDed.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string_view linie = fuzz::Text(data, size);
  // A "?" ends the structure scan, so what follows it is never checked.
  bool forma = StructuraRecord(linie, SablonDeducere) && linie.find('?') == std::string_view::npos;
  try {
    TabelDed tabel;
    std::string cod(CitesteRandDed(linie, tabel, ded::Randuri));
    if (forma && !StructuraRecord(RecordDed(cod, tabel, ded::Randuri), SablonDeducere))
      __builtin_trap();
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
