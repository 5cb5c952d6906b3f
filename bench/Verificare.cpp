// The whole check pass over an employer of 200000 employees, beside the
// floor of its one sort: the system's sort, case folded, of the same four files.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "Generator.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "verify/Verificare.h"

namespace fs = std::filesystem;

namespace fisc::bench {
namespace {

constexpr std::size_t kAngajati = 200000;
const char* const kLucru[] = {"Repfisc.txt", "Ff1.txt", "Ff2.txt", "Deduceri.txt"};

// The generated year under the working names, as another program hands it in.
const fs::path& Intrare() {
  static fs::path dir = [] {
    fs::path d = fs::temp_directory_path() / "fisc-bench-verificare";
    fs::remove_all(d);
    fs::create_directories(d);
    Genereaza(d, kAngajati, "2002");
    const char* anuale[] = {"Rep_2002.txt", "FF1_2002.txt", "FF2_2002.txt", "Ded_2002.txt"};
    for (int i = 0; i < 4; ++i) fs::rename(d / anuale[i], d / kLucru[i]);
    for (const char* parametru : {"Cuantum.txt", "Impozitar.txt"})
      fs::copy_file(fs::path(FISC_DATA_DIR) / parametru, d / parametru,
                    fs::copy_options::overwrite_existing);
    return d;
  }();
  return dir;
}

fs::path Copie() {
  fs::path d = fs::temp_directory_path() / "fisc-bench-verificare-lucru";
  fs::remove_all(d);
  fs::copy(Intrare(), d);
  return d;
}

void BM_Verificare(benchmark::State& state) {
  fs::path d = Copie();
  Files files(d);
  ParametriAn p;
  IncarcaCuantum(files, p);
  TabelImpozit tabel;
  IncarcaImpozitar(files, tabel);
  std::uintmax_t intrare = 0;
  for (const char* f : kLucru) intrare += files.Length(f);
  RezultatVerificare r;
  for (auto _ : state) {
    state.PauseTiming();
    for (const char* f : kLucru) files.Copy((Intrare() / f).string(), f);
    state.ResumeTiming();
    r = but_verif(files, p, tabel);
  }
  state.counters["intrare_MB"] = static_cast<double>(intrare) / 1e6;
  state.counters["erori_MB"] = static_cast<double>(files.Length("erori.txt")) / 1e6;
  state.counters["linii_ff1"] = static_cast<double>(r.LiniiSectiune[2]);
}

// The floor: each of the four files through `LC_ALL=C sort -f` into a file.
void BM_Verificare_SortF(benchmark::State& state) {
  fs::path d = Copie();
  std::string comanda = "cd '" + d.string() + "' && for f in";
  for (const char* f : kLucru) comanda += std::string(" ") + f;
  comanda += "; do LC_ALL=C sort -f \"$f\" > \"sortat_$f\"; done";
  for (auto _ : state)
    if (std::system(comanda.c_str()) != 0) state.SkipWithError("sort failed");
}

BENCHMARK(BM_Verificare)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_Verificare_SortF)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace fisc::bench
