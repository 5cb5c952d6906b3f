// The FF1 reader on any line: whole, and the head and body as a load takes them.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "records/Structura.h"
#include "sheets/RecordFF1.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string_view linie = fuzz::Text(data, size);
  // A "?" ends the structure scan, so what follows it is never checked.
  bool forma = StructuraRecord(linie, SablonFF1) && linie.find('?') == std::string_view::npos;
  try {
    FisaFF1 fisa = CitesteFF1(linie);
    // What the reader accepts, the writer writes back in the same shape.
    if (forma && !StructuraRecord(RecordFF1(fisa), SablonFF1)) __builtin_trap();
  } catch (const RuntimeFailure&) {
  }
  try {
    FisaFF1 fisa;
    std::size_t pozitie = CitesteAntetFF1(linie, fisa);
    CitesteCorpFF1(linie, pozitie, fisa);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
