#include "transfer/Inregistrare.h"

#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Structura.h"

namespace fisc {

namespace {

// The sequence between a field of form `a` and the next one of form `b`.
std::string_view Delimitator(FormaText a, FormaText b) {
  if (a == FormaText::Bare) return b == FormaText::Bare ? delim::Bare : delim::BareText;
  return b == FormaText::Bare ? delim::TextBare : delim::Text;
}

}  // namespace

std::string ScrieInregistrare(const FisierDbf& fisier, const std::vector<std::string>& valori) {
  const std::vector<CampDbf>& campuri = fisier.campuri;
  std::string linie;
  linie.reserve(512);
  if (campuri.front().forma == FormaText::Text) linie += '#';
  for (std::size_t i = 0; i < campuri.size(); ++i) {
    linie += valori[i];
    if (i + 1 < campuri.size())
      linie += Delimitator(campuri[i].forma, campuri[i + 1].forma);
    else if (campuri[i].forma == FormaText::Text)
      linie += '#';
  }
  return linie;
}

bool CitesteInregistrare(const FisierDbf& fisier, std::string_view linie,
                         std::vector<std::string>& valori) {
  if (!StructuraRecord(linie, fisier.sablon)) return false;
  const std::vector<CampDbf>& campuri = fisier.campuri;
  valori.resize(campuri.size());
  try {
    CititorCampuri cititor(linie);
    if (campuri.front().forma == FormaText::Text) cititor.Sari(1);
    for (std::size_t i = 0; i + 1 < campuri.size(); ++i)
      valori[i] = cititor.Camp(Delimitator(campuri[i].forma, campuri[i + 1].forma));
    std::string_view rest = cititor.Rest();
    if (campuri.back().forma == FormaText::Text) {
      if (rest.empty() || rest.back() != '#') return false;
      rest.remove_suffix(1);
    }
    valori.back() = rest;
  } catch (const RuntimeFailure&) {
    // A text field holding a delimiter of its own passes the template but not the reader.
    return false;
  }
  return true;
}

}  // namespace fisc
