// The loader of Impozitar.txt on any file; what it loads, the writer writes
// and the loader reads again.
#include "fuzz/FuzzSupport.h"
#include "params/Impozitar.h"
#include "platform/Failure.h"
#include "platform/Files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  fuzz::ScrieFisier("Impozitar.txt", fuzz::Text(data, size));
  Files files(fuzz::Director());
  TabelImpozit tabel{};
  try {
    IncarcaImpozitar(files, tabel);
  } catch (const RuntimeFailure&) {
    return 0;
  }
  try {
    SalvImpozit(files, tabel);
    TabelImpozit inapoi{};
    IncarcaImpozitar(files, inapoi);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
