// The loader of Cuantum.txt on any file.
#include "fuzz/FuzzSupport.h"
#include "params/Cuantum.h"
#include "platform/Failure.h"
#include "platform/Files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  fuzz::ScrieFisier("Cuantum.txt", fuzz::Text(data, size));
  Files files(fuzz::Director());
  ParametriAn p;
  try {
    IncarcaCuantum(files, p);
  } catch (const RuntimeFailure&) {
  }
  CampuriDin(p);
  return 0;
}
