// Every folder under tests/verify/ is one run of the check pass: the files
// before/ laid over the delivered parameter files, then every file of after/
// compared byte for byte, nothing else left behind, the names of `absent`
// gone, and the result of the run as `rezultat` states it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "support/TestSupport.h"
#include "verify/Verificare.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

fs::path Cazuri() { return test::DataDir().parent_path() / "tests" / "verify"; }

std::vector<std::string> NumeCazuri() {
  std::vector<std::string> nume;
  for (const auto& e : fs::directory_iterator(Cazuri()))
    if (e.is_directory()) nume.push_back(e.path().filename().string());
  std::sort(nume.begin(), nume.end());
  return nume;
}

std::set<std::string> Fisiere(const fs::path& dir) {
  std::set<std::string> nume;
  if (fs::is_directory(dir))
    for (const auto& e : fs::directory_iterator(dir)) nume.insert(e.path().filename().string());
  return nume;
}

std::vector<std::string> Linii(const fs::path& fisier) {
  std::vector<std::string> linii;
  std::istringstream in(test::ReadBytes(fisier));
  std::string linie;
  while (std::getline(in, linie)) {
    if (!linie.empty() && linie.back() == '\r') linie.pop_back();
    if (!linie.empty()) linii.push_back(linie);
  }
  return linii;
}

std::string Rezultat(const RezultatVerificare& r) {
  std::string linii;
  for (long n : r.LiniiSectiune) linii += (linii.empty() ? "" : " ") + std::to_string(n);
  return "ExistaErori=" + std::to_string(r.ExistaErori) +
         "\nCorelareAbandonata=" + std::to_string(r.CorelareAbandonata) +
         "\nCodVerificat=" + r.CodVerificat + "\nNumeCopie=" + r.NumeCopie + "\nMesaj=" + r.Mesaj +
         "\nLiniiSectiune=" + linii + "\n";
}

class Caz : public ::testing::TestWithParam<std::string> {};

TEST_P(Caz, LeavesTheFilesOfAfter) {
  const fs::path caz = Cazuri() / GetParam();
  test::TempDir dir;
  for (const char* parametru : {"Cuantum.txt", "Impozitar.txt"})
    fs::copy_file(test::DataDir() / parametru, dir / parametru);
  for (const std::string& nume : Fisiere(caz / "before"))
    fs::copy_file(caz / "before" / nume, dir / nume, fs::copy_options::overwrite_existing);

  Files files(dir.path());
  ParametriAn p;
  IncarcaCuantum(files, p);
  TabelImpozit tabel;
  IncarcaImpozitar(files, tabel);
  RezultatVerificare r = but_verif(files, p, tabel);

  std::set<std::string> asteptate = Fisiere(caz / "after");
  for (const std::string& nume : asteptate) {
    ASSERT_TRUE(fs::exists(dir / nume)) << nume;
    EXPECT_EQ(test::ReadBytes(dir / nume), test::ReadBytes(caz / "after" / nume)) << nume;
  }
  for (const std::string& nume : Fisiere(dir.path())) {
    if (nume != "Cuantum.txt" && nume != "Impozitar.txt") {
      EXPECT_TRUE(asteptate.count(nume)) << "left behind: " << nume;
    }
  }
  if (fs::exists(caz / "absent")) {
    for (const std::string& nume : Linii(caz / "absent"))
      EXPECT_FALSE(fs::exists(dir / nume)) << nume;
  }
  if (fs::exists(caz / "rezultat")) {
    std::string rezultat = Rezultat(r);
    for (const std::string& linie : Linii(caz / "rezultat")) {
      EXPECT_NE(rezultat.find(linie + "\n"), std::string::npos) << linie << " in\n" << rezultat;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Verificare, Caz, ::testing::ValuesIn(NumeCazuri()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                           return info.param;
                         });

}  // namespace
}  // namespace fisc
