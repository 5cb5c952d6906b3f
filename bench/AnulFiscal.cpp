// Timings of the year operations at the scale of a large employer, each
// beside a plain copy of the files it reads and writes.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "Generator.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "yearops/PreluareAnPrecedent.h"
#include "yearops/RegularizareAnuala.h"

namespace fs = std::filesystem;

namespace fisc::bench {
namespace {

constexpr std::size_t kAngajati = 200000;

fs::path Director(const char* nume) {
  fs::path d = fs::temp_directory_path() / nume;
  fs::remove_all(d);
  fs::create_directories(d);
  return d;
}

// The delivered tables, beside the sources.
void IncarcaTabele(ParametriAn& p, TabelImpozit& tabel) {
  Files data(fs::path(__FILE__).parent_path().parent_path() / "data");
  IncarcaCuantum(data, p);
  IncarcaImpozitar(data, tabel);
}

// Last year's files in last year's structures: one in ten left during the
// year, a third have one to three dependants, one in five an FF2 too.
void GenereazaAnPrecedent(const fs::path& dir) {
  Files files(dir);
  std::mt19937 rng(20010101);
  auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
  LineWriter rep = files.Write("Rep_2001.txt");
  rep.Line(
      "12345674,#0268000000#,#OFFICE@GENERAT.RO#,#SC GENERAT SA#,##,##,#BRASOV#,#BRASOV#,"
      "#STR. FABRICII#,#1#,500100,##,##,##,##,");
  rep.Close();
  LineWriter ff1 = files.Write("FF1_2001.txt");
  LineWriter ff2 = files.Write("FF2_2001.txt");
  LineWriter ded = files.Write("Ded_2001.txt");
  std::string l;
  for (std::size_t i = 0; i < kAngajati; ++i) {
    std::string cod = CodAngajat(i);
    std::string antet = cod + ",#POPESCU#,#ION#,#BRASOV#,#BRASOV#,#STR. LUNGA#,#" +
                        std::to_string(1 + pick(200)) + "#,500" + std::to_string(100 + pick(800)) +
                        ",#B3#,##,##,##,";
    int plecat = pick(10);
    l = antet + ",#X#,##,," + (plecat == 0 ? "30/06/2001" : plecat == 1 ? "31/12/2001" : "");
    for (int m = 0; m < 12; ++m) l += ",1.5";
    l += ",##,##";
    for (int m = 0; m < 88; ++m) l += "," + std::to_string(3000000 + pick(9000) * 1000);
    ff1.Line(l);
    if (pick(5) == 0) {
      l = antet + ",,,#X#,##,##,##,##,##,##";
      for (int m = 0; m < 26; ++m) l += "," + std::to_string(500000 + pick(2000) * 1000);
      ff2.Line(l);
    }
    int persoane = pick(3) == 0 ? 1 + pick(3) : 0;
    for (int p = 1; p <= persoane; ++p) {
      l = cod + "," + std::to_string(5000000000000 + i * 7 + static_cast<std::size_t>(p)) +
          ",#POPESCU#,#ANA#,##,#X#,##,##,##";
      for (int m = 0; m < 12; ++m) l += ",0.5";
      ded.Line(l);
    }
  }
  ff1.Close();
  ff2.Close();
  ded.Close();
}

const fs::path& AnPrecedent() {
  static fs::path d = [] {
    fs::path dir = Director("fisc-bench-an-precedent");
    GenereazaAnPrecedent(dir);
    return dir;
  }();
  return d;
}

const fs::path& AnCurent() {
  static fs::path d = [] {
    fs::path dir = Director("fisc-bench-an-curent");
    Genereaza(dir, kAngajati, "2002");
    CopyFileAtomic(dir / "FF1_2002.txt", dir / "Ff1.txt");
    return dir;
  }();
  return d;
}

void BM_RegularizeazaToate(benchmark::State& state) {
  ParametriAn p;
  TabelImpozit tabel{};
  IncarcaTabele(p, tabel);
  Files files(AnCurent());
  for (auto _ : state) RegularizeazaToate(files, p, tabel);
  state.counters["MB"] = static_cast<double>(files.Length("Ff1.txt")) / 1e6;
}

// The floor: the same file read and written whole, durably.
void BM_RegularizeazaToate_Copie(benchmark::State& state) {
  const fs::path& d = AnCurent();
  for (auto _ : state) CopyFileAtomic(d / "Ff1.txt", d / "Copie.txt");
}

void BM_PreiaAnPrecedent(benchmark::State& state) {
  Files files(AnPrecedent());
  ContoarePreluare n;
  for (auto _ : state) n = PreiaAnPrecedent(files, "2002");
  state.counters["FF1"] = static_cast<double>(n.FF1Scrise);
}

// The floor: each of last year's files copied over its working name.
void BM_PreiaAnPrecedent_Copie(benchmark::State& state) {
  const fs::path& d = AnPrecedent();
  for (auto _ : state)
    for (auto [sursa, tinta] : {std::pair{"Rep_2001.txt", "Copie_Rep.txt"},
                                {"FF1_2001.txt", "Copie_Ff1.txt"},
                                {"FF2_2001.txt", "Copie_Ff2.txt"},
                                {"Ded_2001.txt", "Copie_Ded.txt"}})
      CopyFileAtomic(d / sursa, d / tinta);
}

}  // namespace

BENCHMARK(BM_RegularizeazaToate)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_RegularizeazaToate_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_PreiaAnPrecedent)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_PreiaAnPrecedent_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace fisc::bench
