// The reader of replay script lines on any line.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "replay/ScriptLine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string_view linie = fuzz::Text(data, size);
  try {
    for (const Token& t : Tokenize(linie)) {
      if (t.quoted) continue;
      for (bool proprietate : {false, true}) {
        try {
          ParseRef(t.text, proprietate);
        } catch (const ScriptError&) {
        }
      }
    }
  } catch (const ScriptError&) {
  }
  return 0;
}
