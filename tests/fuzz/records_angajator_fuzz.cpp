// The employer reader on any line, and the structure check against every
// template of the employer record.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "records/Numere.h"
#include "records/Structura.h"
#include "sheets/RecordAngajator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string_view linie = fuzz::Text(data, size);
  for (std::string_view sablon : {SablonAngajatorTipText, SablonAngajatorAnAnterior})
    StructuraRecord(linie, sablon);
  // A "?" ends the structure scan, so what follows it is never checked.
  bool forma = StructuraRecord(linie, SablonAngajator) && linie.find('?') == std::string_view::npos;
  try {
    RecordAngajator r = CitesteAngajator(linie);
    if (forma && !StructuraRecord(ScrieAngajator(r), SablonAngajator)) __builtin_trap();
  } catch (const RuntimeFailure&) {
  }
  // The conversions every reader ends in.
  TextDin(Valoare(linie));
  TextZecimal(linie);
  TextNumar(linie);
  return 0;
}
