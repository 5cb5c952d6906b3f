#include "params/Impozitar.h"

#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr const char* kFisier = "Impozitar.txt";
constexpr const char* kTemporar = "Temporar.txt";

// What a person reads behind the data; rewritten whole at every save.
constexpr const char* kComentariu[] = {
    "Daca apar erori in acest fisier (nu se mai respecta structura",
    "detaliata mai jos), regasiti impozitarul de baza (luna ianuarie",
    "si anul) in fisierul Impozitar_copie.txt.",
    "*************************************************************",
    "* Structurarea fisierului Impozitar este urmatoarea :       *",
    "* - primele doua cifre reprezinta luna de la care este      *",
    "*   valabil impozitarul (de forma ' x' sau ' xx' 13 pentru  *",
    "*   impozitul anual), limita inferioara a intervalului,     *",
    "*   limita superioara a intervalului, valoarea fixa a       *",
    "*   impozitului, procentul de impozitare.                   *",
    "* - informatiile sunt inregistrate in ordine descendenta    *",
    "*   a lunii si limitei inferioare.                          *",
    "* - partea de date este despartita de acest comentariu      *",
    "*   prin linia continand cuvantul eof                       *",
    "*************************************************************",
};

// A row of the table as the platform indexes the array: past row 129 is 9.
const RandImpozit& Rand(const TabelImpozit& tabel, std::size_t r) {
  if (r >= tabel.size()) Fail(err::SubscriptOutOfRange);
  return tabel[r];
}

double Luna(const RandImpozit& rand) { return rand[0].value_or(0); }

}  // namespace

std::string TextCelula(const std::optional<double>& cell) { return cell ? TextDin(*cell) : ""; }

std::size_t RandulLunii(const TabelImpozit& tabel, double luna) {
  std::size_t r = 0;
  while (Luna(Rand(tabel, r)) > luna) ++r;
  return r;
}

std::optional<GrupaImpozit> GrupaInVigoare(const TabelImpozit& tabel, double luna) {
  std::size_t prim = RandulLunii(tabel, luna);
  double mo = Luna(tabel[prim]);
  if (mo == 0) return std::nullopt;
  std::size_t r = prim;
  while (Luna(Rand(tabel, r)) == mo) ++r;
  return GrupaImpozit{prim, r - 1};
}

void InlocuiesteGrupa(TabelImpozit& tabel, double luna, const std::vector<RandImpozit>& grupa) {
  TabelImpozit nou{};
  std::size_t r = 0;
  // The later months' groups stand above; the year's group stands first.
  if (luna < 13)
    for (; luna < Luna(Rand(tabel, r)); ++r) nou[r] = tabel[r];
  std::size_t s = r;
  for (const RandImpozit& rand : grupa) {
    if (r >= nou.size()) Fail(err::SubscriptOutOfRange);
    nou[r++] = rand;
  }
  std::size_t t = s;
  while (Luna(Rand(tabel, t)) == luna) ++t;
  // The end of the copy is counted from where the group began, not from
  // where it ends: the tail gives up as many rows as the new group holds.
  std::size_t sfarsit = static_cast<std::size_t>(MaxRandImpozit) - t + s;
  for (; r <= sfarsit; ++r, ++t) nou[r] = tabel[t];
  tabel = nou;
}

void IncarcaImpozitar(Files& files, TabelImpozit& tabel) {
  for (RandImpozit& rand : tabel) rand.fill(std::nullopt);
  LineReader in = files.Read(kFisier);
  std::string line = in.Line();
  for (std::size_t r = 0; line != "eof"; ++r) {
    if (r > static_cast<std::size_t>(MaxRandImpozit)) Fail(err::SubscriptOutOfRange);
    // Each of the first four fields ends at its comma; a missing comma asks
    // for a negative length, as the platform would see it.
    std::size_t p = 0;
    for (std::size_t c = 0; c < 4; ++c) {
      std::size_t comma = line.find(',', p);
      if (comma == std::string::npos) Fail(err::InvalidCall);
      tabel[r][c] = Valoare(std::string_view(line).substr(p, comma - p));
      p = comma + 1;
    }
    tabel[r][4] = Valoare(std::string_view(line).substr(p));
    line = in.Line();
  }
}

void SalvImpozit(Files& files, const TabelImpozit& tabel) {
  files.DeleteIfExists(kTemporar);
  LineWriter out = files.Append(kTemporar);
  for (const RandImpozit& rand : tabel) {
    if (!rand[0]) break;
    std::string luna = TextDin(*rand[0]);
    if (luna.size() < 2) luna.insert(0, 2 - luna.size(), ' ');
    out.Line(luna + "," + TextCelula(rand[1]) + "," + TextCelula(rand[2]) + "," +
             TextCelula(rand[3]) + "," + TextCelula(rand[4]));
  }
  out.Line("eof");
  for (const char* line : kComentariu) out.Line(line);
  out.Close();
  // The old table is deleted before the new one takes its name: a table that
  // is gone by then leaves the new one in the work file.
  if (!files.Exists(kFisier)) Fail(err::FileNotFound);
  files.Replace(kTemporar, kFisier);
}

}  // namespace fisc
