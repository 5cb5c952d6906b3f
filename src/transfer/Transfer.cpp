#include "transfer/Transfer.h"

#include <array>
#include <memory>

#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "transfer/Dbf.h"
#include "transfer/Inregistrare.h"
#include "transfer/ValoriDbf.h"

namespace fisc {

namespace {

constexpr std::string_view kFerr = "ferr.txt";

// The work file through which `nume` is written.
std::string Lucru(std::string_view nume) { return "transfer_" + std::string(nume); }

void ScrieFerr(Files& files, const std::vector<std::string>& erori) {
  const std::string lucru = Lucru(kFerr);
  LineWriter scriitor = files.Write(lucru);
  for (const std::string& eroare : erori) scriitor.Line(eroare);
  scriitor.Close();
  files.Replace(lucru, kFerr);
}

// The dBase reader looks for the name with ".dbf" or ".DBF" only; a file
// spelled otherwise (".Dbf") is read through a copy of that spelling.
class CopieCitire {
 public:
  CopieCitire(Files& files, const std::string& nume) : files_(files) {
    std::filesystem::path cale = files.Path(nume);
    std::string extensie = cale.extension().string();
    if (extensie == ".dbf" || extensie == ".DBF") {
      cale_ = cale;
      return;
    }
    copie_ = Lucru("citire_" + nume);
    files.Copy(nume, copie_);
    cale_ = files.Path(copie_);
  }
  ~CopieCitire() {
    if (!copie_.empty()) files_.DeleteIfExists(copie_);
  }
  CopieCitire(const CopieCitire&) = delete;
  CopieCitire& operator=(const CopieCitire&) = delete;
  const std::filesystem::path& Cale() const { return cale_; }

 private:
  Files& files_;
  std::filesystem::path cale_;
  std::string copie_;
};

std::string Inregistrarea(std::string_view nume, int numar) {
  return std::string(nume) + ", inregistrarea " + std::to_string(numar);
}

// Converts one checked file to its work text file; faults go to `erori`.
void ConvertesteInText(Files& files, const FisierDbf& fisier, const TabelaDbf& tabela,
                       const std::vector<int>& coloane, std::string_view nume,
                       std::vector<std::string>& erori) {
  LineWriter scriitor = files.Write(Lucru(fisier.text));
  std::vector<std::string> valori(fisier.campuri.size());
  std::string stocat;
  const int inregistrari = tabela.Inregistrari();
  for (int r = 0; r < inregistrari; ++r) {
    if (tabela.Stearsa(r)) continue;
    bool buna = true;
    for (std::size_t i = 0; i < fisier.campuri.size(); ++i) {
      const CampDbf& camp = fisier.campuri[i];
      if (!camp.Stocat()) continue;
      if (!tabela.Citeste(r, coloane[i], stocat)) {
        // The rest of a file cut short can't be read either.
        erori.push_back(Inregistrarea(nume, r + 1) +
                        ": se astepta o inregistrare intreaga, nu poate fi citita.");
        scriitor.Close();
        return;
      }
      if (auto text = TextDinDbf(camp, stocat)) {
        valori[i] = std::move(*text);
      } else {
        erori.push_back(Inregistrarea(nume, r + 1) + ", campul " + camp.nume +
                        ": se astepta un numar, s-a gasit \"" + stocat + "\".");
        buna = false;
      }
    }
    if (buna && erori.empty()) scriitor.Line(ScrieInregistrare(fisier, valori));
  }
  scriitor.Close();
}

// Reads one working file into the dBase work file `tabela`; faults go to `erori`.
void ConvertesteInDbf(Files& files, const FisierDbf& fisier, TabelaDbf& tabela, int an,
                      std::vector<std::string>& erori) {
  if (!files.Exists(fisier.text)) return;
  LineReader cititor = files.Read(fisier.text);
  std::vector<std::string> valori, stocate;
  std::string linie;
  for (int rand = 1; cititor.Next(linie); ++rand) {
    if (Trim(linie).empty()) continue;
    const std::string inceput = std::string(fisier.text) + ", randul " + std::to_string(rand);
    if (!CitesteInregistrare(fisier, linie, valori)) {
      erori.push_back(inceput + ": se astepta structura \"" + std::string(fisier.sablon) +
                      "\", s-a gasit \"" + linie.substr(0, 40) +
                      (linie.size() > 40 ? "...\"." : "\"."));
      continue;
    }
    stocate.clear();
    bool buna = true;
    for (std::size_t i = 0; i < fisier.campuri.size(); ++i) {
      const CampDbf& camp = fisier.campuri[i];
      if (!camp.Stocat()) continue;
      ValoareDbf v = DbfDinText(camp, valori[i], an);
      if (!v.eroare.empty()) {
        erori.push_back(inceput + ", campul " + camp.nume + ": " + v.eroare + ".");
        buna = false;
      }
      stocate.push_back(std::move(v.valoare));
    }
    if (buna && erori.empty()) tabela.Adauga(stocate);
  }
}

}  // namespace

std::optional<std::string> AnDinTr12(const Files& files) {
  if (!files.Exists("tr12.txt")) return std::nullopt;
  LineReader cititor = files.Read("tr12.txt");
  std::string linie;
  cititor.Next(linie);
  std::string an(Trim(linie));
  if (an.empty() || an.size() > 4 || an.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  return an;
}

std::vector<std::string> DbfInText(Files& files, std::string_view an) {
  const auto& fisiere = FisiereDbf();
  std::vector<std::string> erori;
  std::array<TabelaDbf, 4> tabele;
  std::array<std::vector<int>, 4> coloane;
  std::vector<std::unique_ptr<CopieCitire>> copii;
  for (std::size_t k = 0; k < fisiere.size(); ++k) {
    const std::string nume = NumeDbf(fisiere[k], an);
    if (!files.Exists(nume)) {
      erori.push_back(nume + ": se astepta fisierul in directorul de lucru, nu s-a gasit.");
      continue;
    }
    copii.push_back(std::make_unique<CopieCitire>(files, nume));
    tabele[k] = TabelaDbf::Deschide(copii.back()->Cale());
    if (!tabele[k].Valida())
      erori.push_back(nume +
                      ": se astepta un fisier dBase, s-a gasit un fisier care nu poate fi citit.");
    else
      coloane[k] = tabele[k].Coloane(fisiere[k], nume, erori);
  }
  if (erori.empty()) {
    for (std::size_t k = 0; k < fisiere.size() && erori.empty(); ++k)
      ConvertesteInText(files, fisiere[k], tabele[k], coloane[k], NumeDbf(fisiere[k], an), erori);
  }
  for (TabelaDbf& tabela : tabele) tabela.Inchide();
  copii.clear();
  if (!erori.empty()) {
    for (const FisierDbf& fisier : fisiere) files.DeleteIfExists(Lucru(fisier.text));
    ScrieFerr(files, erori);
    return erori;
  }
  files.DeleteIfExists(kFerr);
  for (const FisierDbf& fisier : fisiere) files.Replace(Lucru(fisier.text), fisier.text);
  return erori;
}

std::vector<std::string> TextInDbf(Files& files, std::string_view an,
                                   std::chrono::year_month_day ziua) {
  const auto& fisiere = FisiereDbf();
  const int anFiscal = static_cast<int>(Valoare(an));
  std::vector<std::string> erori;
  for (const FisierDbf& fisier : fisiere) {
    const std::string lucru = Lucru(NumeDbf(fisier, an));
    TabelaDbf tabela = TabelaDbf::Creeaza(files.Path(lucru), fisier, static_cast<int>(ziua.year()),
                                          static_cast<int>(static_cast<unsigned>(ziua.month())),
                                          static_cast<int>(static_cast<unsigned>(ziua.day())));
    ConvertesteInDbf(files, fisier, tabela, anFiscal, erori);
    tabela.Inchide();
  }
  for (const FisierDbf& fisier : fisiere) {
    const std::string nume = NumeDbf(fisier, an);
    if (erori.empty())
      files.Replace(Lucru(nume), nume);
    else
      files.DeleteIfExists(Lucru(nume));
  }
  return erori;
}

void ScrieSabloane(Files& files) {
  for (const FisierDbf& fisier : FisiereDbf()) {
    const std::string nume = NumeDbf(fisier, "");
    TabelaDbf::Creeaza(files.Path(Lucru(nume)), fisier, 2002, 1, 1).Inchide();
    files.Replace(Lucru(nume), nume);
  }
}

}  // namespace fisc
