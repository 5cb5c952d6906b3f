#include "transfer/Dbf.h"

#include <shapefil.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "platform/Failure.h"
#include "records/CititorCampuri.h"

namespace fisc {

namespace {

// A closed file is synced first, so that the rename that ends a rewrite
// leaves the old file or the whole new one. Errors are ours to report.
int InchideSincron(SAFile fisier) {
  std::FILE* f = reinterpret_cast<std::FILE*>(fisier);
  std::fflush(f);
  ::fsync(::fileno(f));
  return std::fclose(f);
}
void Tacut(const char*) {}

SAHooks* Hooks() {
  static SAHooks hooks = [] {
    SAHooks h;
    SASetupDefaultHooks(&h);
    h.FClose = InchideSincron;
    h.Error = Tacut;
    return h;
  }();
  return &hooks;
}

bool AcelasiNume(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    auto litera = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
    if (litera(a[i]) != litera(b[i])) return false;
  }
  return true;
}

}  // namespace

TabelaDbf TabelaDbf::Deschide(const std::filesystem::path& cale) {
  TabelaDbf tabela(DBFOpenLL(cale.c_str(), "rb", Hooks()));
  if (!tabela.Valida()) return tabela;
  // A header whose fields don't add up to its record length isn't dBase,
  // whatever its first bytes say.
  const int campuri = DBFGetFieldCount(tabela.handle_);
  long lungime = 1;
  for (int i = 0; i < campuri; ++i) {
    int latime = 0;
    DBFGetFieldInfo(tabela.handle_, i, nullptr, &latime, nullptr);
    lungime += latime;
  }
  if (campuri == 0 || lungime != tabela.handle_->nRecordLength ||
      tabela.handle_->nHeaderLength < 32 * (campuri + 1) + 1)
    tabela.Inchide();
  return tabela;
}

TabelaDbf TabelaDbf::Creeaza(const std::filesystem::path& cale, const FisierDbf& fisier, int an,
                             int luna, int zi) {
  // Language driver 200: the Windows code page of Central Europe, that of the texts.
  TabelaDbf tabela(DBFCreateLL(cale.c_str(), "LDID/200", Hooks()));
  if (!tabela.Valida()) Fail(err::PathFileAccess);
  for (const CampDbf& camp : fisier.campuri)
    if (camp.Stocat() && DBFAddNativeFieldType(tabela.handle_, camp.nume.c_str(), camp.tip,
                                               camp.latime, camp.zecimale) < 0)
      Fail(err::InvalidCall);
  DBFSetLastModifiedDate(tabela.handle_, an - 1900, luna, zi);
  return tabela;
}

TabelaDbf::TabelaDbf(TabelaDbf&& alta) noexcept : handle_(std::exchange(alta.handle_, nullptr)) {}

TabelaDbf& TabelaDbf::operator=(TabelaDbf&& alta) noexcept {
  if (this != &alta) {
    Inchide();
    handle_ = std::exchange(alta.handle_, nullptr);
  }
  return *this;
}

TabelaDbf::~TabelaDbf() { Inchide(); }

void TabelaDbf::Inchide() {
  if (handle_) DBFClose(std::exchange(handle_, nullptr));
}

int TabelaDbf::Inregistrari() const { return DBFGetRecordCount(handle_); }

bool TabelaDbf::Stearsa(int inregistrare) const {
  return DBFIsRecordDeleted(handle_, inregistrare) != 0;
}

bool TabelaDbf::Citeste(int inregistrare, int coloana, std::string& valoare) const {
  const char* stocat = DBFReadStringAttribute(handle_, inregistrare, coloana);
  if (!stocat) return false;
  valoare = Trim(stocat);
  return true;
}

void TabelaDbf::Adauga(const std::vector<std::string>& valori) {
  int inregistrare = DBFGetRecordCount(handle_);
  for (std::size_t coloana = 0; coloana < valori.size(); ++coloana)
    if (!DBFWriteAttributeDirectly(handle_, inregistrare, static_cast<int>(coloana),
                                   const_cast<char*>(valori[coloana].c_str())))
      Fail(err::DiskFull);
}

std::vector<int> TabelaDbf::Coloane(const FisierDbf& fisier, std::string_view numeFisier,
                                    std::vector<std::string>& erori) const {
  const int numar = DBFGetFieldCount(handle_);
  std::vector<int> coloane;
  coloane.reserve(fisier.campuri.size());
  for (const CampDbf& camp : fisier.campuri) {
    if (!camp.Stocat()) {
      coloane.push_back(-1);
      continue;
    }
    const std::string asteptat = DescriereTip(camp.tip, camp.latime, camp.zecimale);
    const std::string inceput = std::string(numeFisier) + ", campul " + camp.nume + ": ";
    int gasita = -1, aparitii = 0;
    for (int i = 0; i < numar; ++i) {
      char nume[XBASE_FLDNAME_LEN_READ + 1] = {};
      DBFGetFieldInfo(handle_, i, nume, nullptr, nullptr);
      if (!AcelasiNume(Trim(nume), camp.nume)) continue;
      if (++aparitii == 1) gasita = i;
    }
    coloane.push_back(gasita);
    if (aparitii == 0) {
      erori.push_back(inceput + "se astepta " + asteptat + ", campul lipseste.");
      continue;
    }
    if (aparitii > 1) {
      erori.push_back(inceput + "se astepta o singura data, s-a gasit de " +
                      std::to_string(aparitii) + " ori.");
      continue;
    }
    int latime = 0, zecimale = 0;
    DBFGetFieldInfo(handle_, gasita, nullptr, &latime, &zecimale);
    char tip = DBFGetNativeFieldType(handle_, gasita);
    if (tip < ' ' || tip > '~') tip = '?';
    // The decimals of a text field are no concern of ours: some writers keep
    // the high byte of a long width there.
    if (tip == 'C' && camp.tip == 'C') zecimale = 0;
    if (tip != camp.tip || latime != camp.latime || zecimale != camp.zecimale)
      erori.push_back(inceput + "se astepta " + asteptat + ", s-a gasit " +
                      DescriereTip(tip, latime, zecimale) + ".");
  }
  return coloane;
}

}  // namespace fisc
