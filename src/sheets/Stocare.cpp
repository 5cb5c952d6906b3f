#include "sheets/Stocare.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Failure.h"
#include "sheets/FisiereSet.h"

namespace fisc {

namespace {

bool AreLinii(const Files& files, std::string_view fisier) {
  return files.Exists(fisier) && files.Length(fisier) > 0;
}

// Where a code occurs in a line. The rewrites scan every line of a file that
// may hold 100000 sheets of mostly digits, so the search skips ahead instead
// of stopping at each digit the code starts with.
class CautareCod {
 public:
  explicit CautareCod(std::string_view cod) : cod_(cod), searcher_(cod_.begin(), cod_.end()) {}
  std::size_t In(std::string_view linie) const {
    auto at = std::search(linie.begin(), linie.end(), searcher_);
    return at == linie.end() ? std::string_view::npos
                             : static_cast<std::size_t>(at - linie.begin());
  }

 private:
  std::string_view cod_;
  std::boyer_moore_horspool_searcher<std::string_view::const_iterator> searcher_;
};

// Rewrites a working file through Temporar.txt, and its per-year copy in the
// same pass: the lines in which the code occurs nowhere stay, the line that
// starts with it becomes `inlocuire` (when given), a line holding it further
// on is dropped, and `adaugate` go at the end. Each file is then replaced in
// one rename, so either stays whole.
// No `cod` keeps every line: the append of a new record, which a crash or a
// full disk must not leave half written either.
void Rescrie(Files& files, Familie familie, std::string_view an,
             std::optional<std::string_view> cod, const std::string_view* inlocuire,
             const std::vector<std::string>& adaugate = {}) {
  std::string_view fisier = NumeLucru(familie);
  std::string anual = NumeAnual(familie, an);
  constexpr std::string_view kCopieAnuala = "Temporar_anual.txt";
  files.DeleteIfExists(fisier::Temporar);
  LineWriter out = files.Write(fisier::Temporar);
  LineWriter copie = files.Write(kCopieAnuala);
  auto scrie = [&](std::string_view linie) {
    out.Line(linie);
    copie.Line(linie);
  };
  if (files.Exists(fisier) && !cod) {
    LineReader in = files.Read(fisier);
    std::string linie;
    while (in.Next(linie)) scrie(linie);
  } else if (files.Exists(fisier)) {
    CautareCod cautare(*cod);
    LineReader in = files.Read(fisier);
    std::string linie;
    while (in.Next(linie)) {
      std::size_t at = cautare.In(linie);
      if (at == std::string_view::npos)
        scrie(linie);
      else if (at == 0 && inlocuire)
        scrie(*inlocuire);
    }
  }
  for (const std::string& linie : adaugate) scrie(linie);
  out.Close();
  copie.Close();
  files.Replace(fisier::Temporar, fisier);
  files.Replace(kCopieAnuala, anual);
}

bool Contine(const Files& files, std::string_view fisier, std::string_view cod) {
  if (!files.Exists(fisier)) return false;
  LineReader in = files.Read(fisier);
  std::string linie;
  while (in.Next(linie))
    if (LiniaCodului(linie, cod)) return true;
  return false;
}

}  // namespace

bool LiniaCodului(std::string_view linie, std::string_view cod) { return linie.starts_with(cod); }

std::string CautaCod(const Files& files, std::string_view codCurent, Pozitii& pozitii) {
  std::string gasit;
  pozitii[1] = 0;
  if (Contine(files, fisier::Ff1, codCurent)) {
    gasit = "F1";
    pozitii[1] = 1;
  }
  pozitii[0] = 0;
  if (Contine(files, fisier::Ff2, codCurent)) {
    gasit += "F2";
    pozitii[0] = 1;
  }
  return gasit;
}

LinieGasita GasesteLinia(const Files& files, std::string_view fisier, std::string_view cod) {
  LinieGasita gasita;
  if (!files.Exists(fisier)) return gasita;
  LineReader in = files.Read(fisier);
  long numar = 0;
  while (in.Next(gasita.Text)) {
    ++numar;
    if (LiniaCodului(gasita.Text, cod)) {
      gasita.Numar = numar;
      return gasita;
    }
  }
  gasita.Text.clear();
  return gasita;
}

void IncarcaDeduceri(const Files& files, std::string_view codCurent, TabelDed& tabel,
                     short& nrPersoane, Pozitii& pozitii) {
  tabel.Goleste();
  if (!AreLinii(files, fisier::Deduceri)) return;
  std::string cautat(codCurent);
  cautat += ',';
  LineReader in = files.Read(fisier::Deduceri);
  std::string linie;
  long numar = 0;
  while (in.Next(linie)) {
    ++numar;
    if (LiniaCodului(linie, cautat)) break;
  }
  nrPersoane = 0;
  pozitii[2] = 0;
  // Only an unbroken block is read: the rows of a save are written together.
  while (LiniaCodului(linie, cautat)) {
    nrPersoane = CheckedShort(nrPersoane + 1);
    pozitii[2] = numar;
    CitesteRandDed(linie, tabel, nrPersoane);
    if (!in.Next(linie)) break;
    ++numar;
  }
}

void SalveazaFF1(Files& files, std::string_view an, std::string_view codCurent,
                 std::string_view recordFF1, long pozitieFF1, const TabelDed& tabel,
                 short nrPersoane) {
  if (pozitieFF1 == 0) {
    Rescrie(files, Familie::FF1, an, std::nullopt, nullptr, {std::string(recordFF1)});
  } else {
    Rescrie(files, Familie::FF1, an, codCurent, &recordFF1);
  }
  // The employee's rows go out wherever the code occurs, even as another
  // employee's dependant, and his block comes back whole at the end.
  std::vector<std::string> randuri;
  for (int rand = 1; rand <= nrPersoane; ++rand)
    randuri.push_back(RecordDed(codCurent, tabel, rand));
  Rescrie(files, Familie::Ded, an, codCurent, nullptr, randuri);
}

void SalveazaFF2(Files& files, std::string_view an, std::string_view codCurent,
                 std::string_view recordFF2, long pozitieFF2) {
  if (pozitieFF2 == 0) {
    Rescrie(files, Familie::FF2, an, std::nullopt, nullptr, {std::string(recordFF2)});
  } else {
    Rescrie(files, Familie::FF2, an, codCurent, &recordFF2);
  }
}

void StergeFF1(Files& files, std::string_view an, std::string_view codCurent) {
  Rescrie(files, Familie::FF1, an, codCurent, nullptr);
  Rescrie(files, Familie::Ded, an, codCurent, nullptr);
}

void StergeFF2(Files& files, std::string_view an, std::string_view codCurent) {
  Rescrie(files, Familie::FF2, an, codCurent, nullptr);
}

}  // namespace fisc
