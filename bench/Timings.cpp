// Timings at scale, each beside the physical floor of the same work: a plain
// copy of the files the operation must read and write.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Generator.h"
#include "app/Aplicatie.h"
#include "app/Schimb.h"
#include "listings/Borderou.h"
#include "listings/Cadru.h"
#include "listings/LisFise1.h"
#include "listings/ListaFF1.h"
#include "listings/ListaFF2.h"
#include "params/Cuantum.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "sheets/FisaInLucru.h"
#include "sheets/RecordDed.h"
#include "sheets/Sortare.h"
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

// The borderou of every sheet reads both sheet files and writes one row a
// sheet; the floor writes a file of the borderou's size, line by line.
void BM_Borderou(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  StareListare s;
  std::string cod;
  CereriBorderou c;
  c.AnFiscal = "2002";
  for (auto _ : state) ScrieBorderou(files, s, cod, c);
  state.counters["Borderou_MB"] = static_cast<double>(files.Length("Borderou.txt")) / 1e6;
  state.counters["Fise_MB"] =
      static_cast<double>(files.Length("Ff1.txt") + files.Length("Ff2.txt")) / 1e6;
}

void BM_Borderou_Scriere(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  StareListare s;
  std::string cod;
  CereriBorderou c;
  ScrieBorderou(files, s, cod, c);
  const std::uintmax_t marime = files.Length("Borderou.txt");
  const std::string rand(120, 'x');
  for (auto _ : state) {
    LineWriter out = files.Write("egal.txt");
    for (std::uintmax_t scris = 0; scris < marime; scris += rand.size() + 2) out.Line(rand);
    out.Close();
  }
}

// Check1: both sheet files through the sorted list into their copies; the
// floor copies the same two files.
void BM_Sortare(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  Desktop desktop;
  Form intro(desktop, "Intro", "");
  Control& lista = intro.Add(ControlKind::ComboBox, "Combo1").SetSorted(true);
  for (auto _ : state) PregatesteSortare(files, lista, true);
}

void BM_Sortare_Copie(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  for (auto _ : state) {
    files.Copy("Ff1.txt", "copie1.txt");
    files.Copy("Ff2.txt", "copie2.txt");
  }
}

// Every FF1 sheet with its dependants into ListF1.txt (two pages a sheet),
// as LisFise1 writes it; the floor writes a file of the same size.
template <typename Lista>
std::uintmax_t Listeaza(Files& files, std::string_view sursa, std::string_view listare) {
  ParametriAn parametri;
  parametri.AnFiscal = "2002";
  parametri.DedLuna[12] = 1600000;
  FisaInLucru fisa;
  StareListare stare;
  stare.Exemplar = "angajat";
  LineReader in = files.Read(sursa);
  files.DeleteIfExists(listare);
  LineWriter out = files.Write(listare);
  auto lista = [&] {
    if constexpr (std::is_same_v<Lista, ListaFF1>)
      return ListaFF1(files, out, parametri, fisa, stare, "POPESCU ION", "DIRECTOR");
    else
      return ListaFF2(files, out, parametri, stare, "POPESCU ION", "DIRECTOR");
  }();
  std::string linie;
  while (in.Next(linie)) {
    fisa.CodCurent = CodulLiniei(linie);
    if constexpr (std::is_same_v<Lista, ListaFF1>)
      lista.ListF1(linie);
    else
      lista.ListF2(linie);
  }
  out.Close();
  return files.Length(listare);
}

void ScrieLaFel(Files& files, std::uintmax_t marime) {
  const std::string rand(78, 'x');
  LineWriter out = files.Write("egal.txt");
  for (std::uintmax_t scris = 0; scris < marime; scris += rand.size() + 2) out.Line(rand);
  out.Close();
}

// A sheet listing of the whole set, and the floor beside it: a file of the
// same size written line by line.
template <typename Lista>
void Listare(benchmark::State& state, const char* sursa, const char* listare, const char* contor) {
  fs::path d = Fresh("fisc-bench-listare");
  Files files(d);
  SchimbLaPornire(files, "2002");
  std::uintmax_t marime = 0;
  for (auto _ : state) marime = Listeaza<Lista>(files, sursa, listare);
  state.counters[contor] = static_cast<double>(marime) / 1e6;
}

template <typename Lista>
void ScriereLaFel(benchmark::State& state, const char* sursa, const char* listare) {
  fs::path d = Fresh("fisc-bench-listare");
  Files files(d);
  SchimbLaPornire(files, "2002");
  std::uintmax_t marime = Listeaza<Lista>(files, sursa, listare);
  files.Delete(listare);
  for (auto _ : state) ScrieLaFel(files, marime);
}

void BM_ListF1(benchmark::State& state) {
  Listare<ListaFF1>(state, "Ff1.txt", "ListF1.txt", "ListF1_MB");
}
void BM_ListF1_Scriere(benchmark::State& state) {
  ScriereLaFel<ListaFF1>(state, "Ff1.txt", "ListF1.txt");
}
void BM_ListF2(benchmark::State& state) {
  Listare<ListaFF2>(state, "Ff2.txt", "ListF2.txt", "ListF2_MB");
}
void BM_ListF2_Scriere(benchmark::State& state) {
  ScriereLaFel<ListaFF2>(state, "Ff2.txt", "ListF2.txt");
}

// The alphabetical list of the employee screen filled from every sheet through
// the screen model, as the clerk's focus on Combo1 fills it; the list is read
// once after, which sorts it. The floor reads both files line by line.
void BM_Combo1_Lista(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  // The year is all the start needs of the parameters.
  LineWriter cuantum = files.Write("Cuantum.txt");
  cuantum.Line("2002,03,31");
  cuantum.Line("eof");
  cuantum.Close();
  HeadlessDialogs dialogs;
  HeadlessClock clock;
  HeadlessLauncher launcher;
  Drive drive(d / "a");
  HeadlessPrinter printer(d);
  Platforma platforma{files, dialogs, clock, launcher, drive, printer};
  Aplicatie app(platforma);
  app.Porneste();
  FisaII& ecran = app.fisaII;
  Desktop& desktop = app.Ecran();
  desktop.Dispatch([&] {
    app.intro.Hide();
    ecran.Show();
  });
  desktop.UserClick(ecran.Option2);
  for (auto _ : state) {
    desktop.UserFocus(ecran.Option1);
    desktop.UserFocus(ecran.Combo1);
    benchmark::DoNotOptimize(ecran.Combo1.Item(0));
  }
  state.counters["fise"] = ecran.Combo1.ListCount();
}

void BM_Combo1_Citire(benchmark::State& state) {
  fs::path d = Fresh("fisc-bench-a");
  Files files(d);
  SchimbLaPornire(files, "2002");
  for (auto _ : state)
    for (const char* fisier : {"Ff1.txt", "Ff2.txt"}) {
      LineReader in = files.Read(fisier);
      std::string linie;
      while (in.Next(linie)) benchmark::DoNotOptimize(linie.data());
    }
}

BENCHMARK(BM_Pornire_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SchimbLaPornire)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SchimbLaSfarsit)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_SalveazaFF1_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_CopieFf1)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_CautaCod_SalveazaFF1)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Borderou)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Borderou_Scriere)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Sortare)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Sortare_Copie)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_ListF1)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ListF1_Scriere)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ListF2)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_ListF2_Scriere)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Combo1_Lista)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_Combo1_Citire)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
}  // namespace fisc::bench

BENCHMARK_MAIN();
