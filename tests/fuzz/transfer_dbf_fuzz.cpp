// The dBase reader of the converter. The first byte of the input chooses
// which of the four <x>_2002.dbf the rest becomes; the other three are the
// empty templates. A list of faults in ferr.txt is an outcome, as is a
// run-time failure.
#include "fuzz/FuzzSupport.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "transfer/Transfer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  static const char* const kTipuri[] = {"Rep", "FF1", "FF2", "Ded"};
  static const std::string kSabloane[] = {fuzz::Livrat("Rep.dbf"), fuzz::Livrat("FF1.dbf"),
                                          fuzz::Livrat("FF2.dbf"), fuzz::Livrat("Ded.dbf")};
  if (size == 0) return 0;
  const int ales = data[0] % 4;
  for (int i = 0; i < 4; ++i) {
    const std::string nume = std::string(kTipuri[i]) + "_2002.dbf";
    if (i == ales) {
      fuzz::ScrieFisier(nume, fuzz::Text(data + 1, size - 1));
    } else {
      fuzz::ScrieFisier(nume, kSabloane[i]);
    }
  }
  Files files(fuzz::Director());
  try {
    DbfInText(files, "2002");
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
