#include "transfer/ValoriDbf.h"

#include <cstdio>
#include <cstdlib>

#include "records/CititorCampuri.h"
#include "records/Date.h"
#include "records/Numere.h"

namespace fisc {

namespace {

bool Cifra(char c) { return c >= '0' && c <= '9'; }

bool Numai(std::string_view text, char c) {
  return !text.empty() && text.find_first_not_of(c) == std::string_view::npos;
}

// A number as a dBase numeric field holds it: a sign, digits, a point and
// decimals. Returns the number of decimals that aren't trailing zeros, or -1
// when the text isn't such a number.
int ZecimaleNumar(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  bool cifre = false;
  while (i < text.size() && Cifra(text[i])) ++i, cifre = true;
  int zecimale = 0;
  if (i < text.size() && text[i] == '.') {
    for (int pozitie = 1; ++i < text.size() && Cifra(text[i]); ++pozitie) {
      cifre = true;
      if (text[i] != '0') zecimale = pozitie;
    }
  }
  return cifre && i == text.size() ? zecimale : -1;
}

double Numar(std::string_view text) { return std::strtod(std::string(text).c_str(), nullptr); }

}  // namespace

std::optional<std::string> TextDinDbf(const CampDbf& camp, std::string_view stocat) {
  switch (camp.tip) {
    case 'N':
      // An empty number is blank, or stars as some writers leave it.
      if (stocat.empty() || Numai(stocat, '*')) return std::string(camp.gol);
      if (ZecimaleNumar(stocat) < 0) return std::nullopt;
      return TextDin(Numar(stocat));
    case 'D':
      if (stocat.empty() || Numai(stocat, '0')) return std::string(camp.gol);
      return std::string(stocat);
    default:
      if (stocat.empty()) return std::string(camp.gol);
      return std::string(stocat);
  }
}

ValoareDbf DbfDinText(const CampDbf& camp, std::string_view text, int an) {
  const std::string tip = DescriereTip(camp.tip, camp.latime, camp.zecimale);
  switch (camp.tip) {
    case 'N': {
      std::string_view numar = Trim(text);
      if (numar.empty()) return {};
      int zecimale = ZecimaleNumar(numar);
      if (zecimale < 0) return {{}, "se astepta un numar, s-a gasit \"" + std::string(text) + "\""};
      if (zecimale > camp.zecimale)
        return {{},
                "se astepta un numar cu cel mult " + std::to_string(camp.zecimale) +
                    " zecimale, s-a gasit \"" + std::string(text) + "\""};
      char scris[64];
      int lungime =
          std::snprintf(scris, sizeof scris, "%*.*f", camp.latime, camp.zecimale, Numar(numar));
      if (lungime > camp.latime)
        return {{},
                "se astepta un numar care incape in " + tip + ", s-a gasit \"" + std::string(text) +
                    "\""};
      return {scris, {}};
    }
    case 'D': {
      std::string_view data = Trim(text);
      if (data.empty()) return {};
      if (data.size() == 8 && data.find_first_not_of("0123456789") == std::string_view::npos)
        return {std::string(data), {}};
      std::string normala = NormalizeazaData(data, an);
      if (normala.empty()) return {};
      if (CitesteData(normala))
        return {normala.substr(6, 4) + normala.substr(3, 2) + normala.substr(0, 2), {}};
      return {{},
              "se astepta o data zz/ll/aaaa sau aaaallzz, s-a gasit \"" + std::string(text) + "\""};
    }
    default:
      if (text.size() > static_cast<std::size_t>(camp.latime))
        return {{},
                "se astepta un text care incape in " + tip + ", s-a gasit \"" + std::string(text) +
                    "\""};
      return {std::string(text), {}};
  }
}

}  // namespace fisc
