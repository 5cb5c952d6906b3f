// The whole check pass over working files from another application. The
// input is cut at the byte 0x1E into Repfisc.txt, Ff1.txt, Ff2.txt and
// Deduceri.txt, in that order; a piece that is missing leaves its file
// absent. The parameters are the delivered ones.
#include <filesystem>

#include "fuzz/FuzzSupport.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "verify/Verificare.h"

namespace {

struct Parametri {
  fisc::ParametriAn an;
  fisc::TabelImpozit tabel;
  Parametri() {
    for (const char* nume : {"Cuantum.txt", "Impozitar.txt"})
      fisc::fuzz::ScrieFisier(nume, fisc::fuzz::Livrat(nume));
    fisc::Files files(fisc::fuzz::Director());
    fisc::IncarcaCuantum(files, an);
    fisc::IncarcaImpozitar(files, tabel);
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  static const Parametri parametri;
  static const char* const kNume[] = {"Repfisc.txt", "Ff1.txt", "Ff2.txt", "Deduceri.txt"};
  std::string_view text = fuzz::Text(data, size);
  for (const char* nume : kNume) {
    std::error_code ec;
    std::filesystem::remove(fuzz::Director() / nume, ec);
    if (text.data() == nullptr) continue;
    std::size_t capat = text.find('\x1e');
    fuzz::ScrieFisier(nume, text.substr(0, capat));
    text = capat == std::string_view::npos ? std::string_view() : text.substr(capat + 1);
  }
  Files files(fuzz::Director());
  try {
    but_verif(files, parametri.an, parametri.tabel);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}
