// Timings at scale, each beside the physical floor of the same work: a plain
// copy of the files the operation must read and write.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Generator.h"
#include "app/Schimb.h"
#include "platform/Files.h"
#include "sheets/RecordDed.h"
#include "sheets/Stocare.h"

namespace fs = std::filesystem;

namespace fisc::bench {
namespace {

constexpr std::size_t kAngajati = 100000;

// One generated employer for the whole run, kept as a pristine copy.
const fs::path& Original() {
  static fs::path dir = [] {
    fs::path d = fs::temp_directory_path() / "fisc-bench-original";
    fs::remove_all(d);
    fs::create_directories(d);
    Genereaza(d, kAngajati, "2002");
    return d;
  }();
  return dir;
}

fs::path Fresh(const char* name) {
  fs::path d = fs::temp_directory_path() / name;
  fs::remove_all(d);
  fs::copy(Original(), d);
  return d;
}

void CopyAll(const fs::path& from, const fs::path& to) {
  for (const auto& e : fs::directory_iterator(from))
    CopyFileAtomic(e.path(), to / e.path().filename());
}

std::uintmax_t Bytes(const fs::path& d) {
  std::uintmax_t n = 0;
  for (const auto& e : fs::directory_iterator(d)) n += e.file_size();
  return n;
}

// The start copies each working file to the previous year's name and each
// per-year file to the working name: the floor copies the same bytes.
void BM_Pornire_Copie(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a"), out = Fresh("fisc-bench-b");
  for (auto _ : state) CopyAll(d, out);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Bytes(d)));
}

void BM_SchimbLaPornire(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  for (auto _ : state) {
    SchimbLaPornire(files, "2002");
    state.PauseTiming();
    SchimbLaSfarsit(files, "2002");
    state.ResumeTiming();
  }
}

void BM_SchimbLaSfarsit(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  for (auto _ : state) {
    SchimbLaSfarsit(files, "2002");
    state.PauseTiming();
    SchimbLaPornire(files, "2002");
    state.ResumeTiming();
  }
}

// A save rewrites Ff1.txt and Deduceri.txt and copies both over their
// per-year files: the floor is two plain copies of each.
void BM_SalveazaFF1_Copie(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  for (auto _ : state) {
    files.Copy("Ff1.txt", "copie1.txt");
    files.Copy("Ff1.txt", "copie2.txt");
    files.Copy("Deduceri.txt", "copie3.txt");
    files.Copy("Deduceri.txt", "copie4.txt");
  }
  state.counters["Ff1_MB"] = static_cast<double>(files.Length("Ff1.txt")) / 1e6;
}

// The issue's own yardstick: one plain copy of Ff1.txt.
void BM_CopieFf1(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  for (auto _ : state) files.Copy("Ff1.txt", "copie1.txt");
}

void BM_CautaCod_SalveazaFF1(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  // The employee in the middle of the file, saved in place with his dependants.
  std::string cod = CodAngajat(kAngajati / 2);
  Pozitii pozitii{};
  LinieGasita linie = GasesteLinia(files, "Ff1.txt", cod);
  TabelDed ded;
  short nr = 0;
  IncarcaDeduceri(files, cod, ded, nr, pozitii);
  for (auto _ : state) {
    std::string gasit = CautaCod(files, cod, pozitii);
    benchmark::DoNotOptimize(gasit);
    SalveazaFF1(files, "2002", cod, linie.Text, linie.Numar, ded, nr);
  }
}

BENCHMARK(BM_Pornire_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SchimbLaPornire)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SchimbLaSfarsit)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SalveazaFF1_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_CopieFf1)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_CautaCod_SalveazaFF1)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
}  // namespace fisc::bench

BENCHMARK_MAIN();
