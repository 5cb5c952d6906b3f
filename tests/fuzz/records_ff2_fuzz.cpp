// The FF2 reader on any line: whole, and the head and body as a load takes them.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "records/Structura.h"
#include "sheets/RecordFF2.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string_view linie = fuzz::Text(data, size);
  // A "?" ends the structure scan, so what follows it is never checked.
  bool forma = StructuraRecord(linie, SablonFF2) && linie.find('?') == std::string_view::npos;
  try {
    FisaFF2 fisa = CitesteFF2(linie);
    if (forma && !StructuraRecord(RecordFF2(fisa), SablonFF2)) __builtin_trap();
  } catch (const RuntimeFailure&) {
  }
  try {
    FisaFF2 fisa;
    std::size_t pozitie = CitesteAntetFF2(linie, fisa);
    CitesteCorpFF2(linie, pozitie, fisa);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
