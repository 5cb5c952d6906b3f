// Files from another program may be wrong in any way. Whatever they hold, the
// pass ends with its list or with a run-time failure the program names, and
// never in a crash: the lines of the case folders, mutated at random.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <vector>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "support/TestSupport.h"
#include "verify/Verificare.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

const char* const kFisiere[] = {"Repfisc.txt", "Ff1.txt", "Ff2.txt", "Deduceri.txt"};

std::vector<std::string> LiniiDin(const std::string& bytes) {
  std::vector<std::string> linii;
  std::string linie;
  for (char c : bytes) {
    if (c == '\n') {
      if (!linie.empty() && linie.back() == '\r') linie.pop_back();
      linii.push_back(linie);
      linie.clear();
    } else {
      linie += c;
    }
  }
  if (!linie.empty()) linii.push_back(linie);
  return linii;
}

// The sound lines of every case, file by file: the material of the mutations.
std::vector<std::vector<std::string>> LiniiCazuri() {
  std::vector<std::vector<std::string>> linii(4);
  fs::path cazuri = test::DataDir().parent_path() / "tests" / "verify";
  for (const auto& caz : fs::directory_iterator(cazuri))
    for (std::size_t f = 0; f < 4; ++f) {
      fs::path p = caz.path() / "before" / kFisiere[f];
      if (!fs::exists(p)) continue;
      for (std::string& l : LiniiDin(test::ReadBytes(p))) linii[f].push_back(std::move(l));
    }
  return linii;
}

class Mutator {
 public:
  explicit Mutator(unsigned seed) : rng_(seed) {}

  std::size_t Sub(std::size_t n) {
    return n == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_);
  }
  char Octet() { return static_cast<char>(Sub(256)); }

  template <typename T>
  const T& Unul(const std::vector<T>& v) {
    return v[Sub(v.size())];
  }

  // One line changed in one of the ways a foreign file goes wrong.
  void Strica(std::string& linie) {
    static const std::vector<std::string> kDate = {
        "",         "/  /",       "//",        "31/02/2002", "19020315",
        "1.6.2002", "2002-03-15", "15/3/2002", "99/99/9999", "01/13/2002",
        "0",        "1/1/2",      "ab",        "29/02/2002", "31/12/2001"};
    static const std::vector<std::string> kNumere = {
        "", "-5", "1e308", "1.5", "99999999999999999999", "abc", "0.1", "-1e300", "3", ".", "2,5"};
    switch (Sub(9)) {
      case 0:
        if (!linie.empty()) linie[Sub(linie.size())] = Octet();
        break;
      case 1: linie.insert(Sub(linie.size() + 1), 1, Octet()); break;
      case 2:
        if (!linie.empty()) linie.erase(Sub(linie.size()), 1);
        break;
      case 3: linie.resize(Sub(linie.size() + 1)); break;
      case 4: {  // a separator of another kind
        std::size_t at = linie.find_first_of(",#", Sub(linie.size() + 1));
        if (at != std::string::npos) linie[at] = linie[at] == ',' ? '#' : ',';
        break;
      }
      case 5: {  // a date field, behind the seventeenth "#,"
        std::size_t at = 0;
        for (int i = 0; i < 17 && at != std::string::npos; ++i) {
          at = linie.find("#,", at);
          if (at != std::string::npos) at += 2;
        }
        if (at == std::string::npos) break;
        if (Sub(2)) at = linie.find(',', at) == std::string::npos ? at : linie.find(',', at) + 1;
        std::size_t end = linie.find(',', at);
        linie.replace(at, end == std::string::npos ? std::string::npos : end - at, Unul(kDate));
        break;
      }
      default: {  // a bare field made another number
        std::size_t at = linie.find(',', Sub(linie.size() + 1));
        if (at == std::string::npos) break;
        std::size_t end = linie.find(',', at + 1);
        linie.replace(at + 1, end == std::string::npos ? std::string::npos : end - at - 1,
                      Unul(kNumere));
        break;
      }
    }
  }

  std::string Fisier(const std::vector<std::string>& material) {
    std::vector<std::string> linii;
    std::size_t n = Sub(6);
    for (std::size_t i = 0; i < n && !material.empty(); ++i) linii.push_back(Unul(material));
    for (std::size_t k = Sub(5); k > 0 && !linii.empty(); --k) {
      switch (Sub(6)) {
        case 0:
          linii.push_back(linii[Sub(linii.size())]);  // a line twice
          break;
        case 1:
          linii.insert(linii.begin() + static_cast<long>(Sub(linii.size() + 1)),
                       Sub(2) ? std::string() : std::string(Sub(4), ' '));
          break;
        case 2: {  // a line of 100000 characters
          std::string lunga(100000, '0');
          for (char& c : lunga) c = ",#0123456789/"[Sub(13)];
          linii.push_back(lunga);
          break;
        }
        default: Strica(linii[Sub(linii.size())]);
      }
    }
    std::string bytes;
    for (const std::string& l : linii) bytes += l + (Sub(8) ? "\r\n" : Sub(2) ? "\n" : "\r");
    if (Sub(6) == 0 && !bytes.empty()) bytes.resize(Sub(bytes.size()));  // cut short
    return bytes;
  }

 private:
  std::mt19937 rng_;
};

// Three hundred passes sync their files three hundred times: in memory where
// the machine has a file system there, so that the test takes seconds.
class DirectorInMemorie {
 public:
  DirectorInMemorie() {
    std::error_code ec;
    if (fs::is_directory("/dev/shm", ec)) {
      path_ = fs::path("/dev/shm") / ("fisc-mutatii-" + std::to_string(std::random_device()()));
      if (fs::create_directory(path_, ec)) return;
    }
    path_ = rezerva_.path();
  }
  ~DirectorInMemorie() {
    std::error_code ec;
    if (path_ != rezerva_.path()) fs::remove_all(path_, ec);
  }
  fs::path operator/(const char* nume) const { return path_ / nume; }
  fs::path operator/(const std::string& nume) const { return path_ / nume; }
  const fs::path& path() const { return path_; }

 private:
  test::TempDir rezerva_;
  fs::path path_;
};

TEST(VerificareMutatii, AnyFileEndsInTheListOrAFailureNeverACrash) {
  const auto material = LiniiCazuri();
  ASSERT_FALSE(material[1].empty());
  DirectorInMemorie dir;
  for (const char* parametru : {"Cuantum.txt", "Impozitar.txt"})
    fs::copy_file(test::DataDir() / parametru, dir / parametru);
  Files files(dir.path());
  ParametriAn p;
  IncarcaCuantum(files, p);
  TabelImpozit tabel;
  IncarcaImpozitar(files, tabel);

  Mutator m(20021231);
  int liste = 0;
  for (int runda = 0; runda < 300; ++runda) {
    for (std::size_t f = 0; f < 4; ++f) {
      fs::remove(dir / kFisiere[f]);
      if (m.Sub(10) != 0) test::WriteBytes(dir / kFisiere[f], m.Fisier(material[f]));
    }
    try {
      RezultatVerificare r = but_verif(files, p, tabel);
      ++liste;
      EXPECT_TRUE(fs::exists(dir / "erori.txt"));
      EXPECT_EQ(r.ExistaErori, fs::exists(dir / r.NumeCopie)) << "round " << runda;
    } catch (const RuntimeFailure&) {
    }
  }
  // Most rounds reach the end of the list: the failures are the exception.
  EXPECT_GT(liste, 200);
}

TEST(VerificareMutatii, AnElevenDigitEmployerCodeStopsTheProgram) {
  test::TempDir dir;
  for (const char* parametru : {"Cuantum.txt", "Impozitar.txt"})
    fs::copy_file(test::DataDir() / parametru, dir / parametru);
  test::WriteBytes(dir / "Repfisc.txt",
                   test::Lines({"12345678901,1,#SC X#,##,##,#BRASOV#,#BRASOV#,#STR#,#1#,500100,"
                                "##,##,##,##,,##,##"}));
  Files files(dir.path());
  ParametriAn p;
  IncarcaCuantum(files, p);
  TabelImpozit tabel;
  IncarcaImpozitar(files, tabel);
  EXPECT_EQ(test::FailureOf([&] { but_verif(files, p, tabel); }), err::InvalidCall);
}

}  // namespace
}  // namespace fisc
