// The record pass: what is left of each file after its empty and malformed
// lines, in the order of the sorted list, one record a code.
#include <optional>
#include <utility>
#include <vector>

#include "platform/SortNoCase.h"
#include "records/CititorCampuri.h"
#include "records/Structura.h"
#include "sheets/FisiereSet.h"
#include "verify/Parcurgere.h"
#include "verify/TamponFF1.h"
#include "verify/Verificari.h"

namespace fisc {

bool FisierGol(const Files& files, std::string_view nume) {
  return !files.Exists(nume) || files.Length(nume) == 0;
}

namespace {

struct FisierDeSortat {
  std::string_view lucru, sortat;
  std::string nume;         // the per-year name the user knows the file by
  std::string avertisment;  // the warning of an empty file
  std::string_view sablon, sablonAlt;
  bool ff1 = false;
};

// The lines of a file that passed, in the order of the sorted list: one
// buffer holds them all, and the list is of views into it.
struct Sortate {
  std::string text;
  std::vector<std::string_view> linii;
};

// One file through the sorted list: every line that is neither empty nor of a
// wrong structure, FF1 sheets as their sort lines. `s` is filled in place:
// its views point into its own buffer.
void Sorteaza(Files& files, ListaErori& lista, const FisierDeSortat& f, Sortate& s) {
  // A sort line holds its record and the two dates again.
  s.text.reserve(static_cast<std::size_t>(files.Length(f.lucru)) * (f.ff1 ? 2 : 1));
  std::vector<std::pair<std::size_t, std::size_t>> locuri;
  {
    LineReader in = files.Read(f.lucru);
    std::string linie, sortare;
    while (in.Next(linie)) {
      if (Trim(linie).empty()) {
        lista.Eroare(f.nume + " - Inregistrare goala eliminata. ");
      } else if (!StructuraRecord(linie, f.sablon) &&
                 (f.sablonAlt.empty() || !StructuraRecord(linie, f.sablonAlt))) {
        lista.Eroare(f.nume + " - " + linie.substr(0, 13) +
                     " structura inregistrare eronata (inregistrare eliminata). ");
      } else {
        std::size_t at = s.text.size();
        if (f.ff1) {
          ver_data(linie, sortare);
          s.text += sortare;
        } else {
          s.text += linie;
        }
        locuri.emplace_back(at, s.text.size() - at);
      }
    }
  }
  s.linii.reserve(locuri.size());
  for (auto [at, lungime] : locuri) s.linii.push_back(std::string_view(s.text).substr(at, lungime));
  SortNoCase(s.linii);
}

std::string Numar(long n) { return std::to_string(n); }

// Only the lowest employer record stays; a record of another code is reported
// by its code, a repeated one by its count.
void RescrieRep(Files& files, ListaErori& lista, const std::string& an, const Sortate& s) {
  LineWriter out = files.Write(fisier::Temporar);
  if (!s.linii.empty()) {
    const std::string p = "Rep_" + an + ".txt: ";
    out.Line(s.linii.front());
    std::string cod(Inainte(s.linii.front(), ","));
    long numar = 1;
    for (std::size_t i = 1; i < s.linii.size(); ++i) {
      std::string_view codNou = Inainte(s.linii[i], ",");
      if (codNou == cod) {
        ++numar;
        if (i + 1 == s.linii.size()) lista.Eroare(p + cod + " - " + Numar(numar) + " aparitii.");
      } else {
        lista.Eroare(p + std::string(codNou) + " - alt cod angajator (inregistrare eliminata).");
        if (numar > 1) lista.Eroare(p + cod + " - " + Numar(numar) + " aparitii.");
        numar = 1;
        cod = codNou;
      }
    }
  }
  out.Close();
  files.Replace(fisier::Temporar, fisier::Repfisc);
}

// The first line of each key stays; the others are counted and reported once.
template <typename Cheie, typename Mesaj>
void RescrieFaraDuble(Files& files, ListaErori& lista, const Sortate& s, std::string_view lucru,
                      Cheie cheieDin, Mesaj mesaj) {
  LineWriter out = files.Write(fisier::Temporar);
  if (!s.linii.empty()) {
    out.Line(s.linii.front());
    std::string cheie(cheieDin(s.linii.front()));
    long numar = 1;
    for (std::size_t i = 1; i < s.linii.size(); ++i) {
      std::string_view cheieNoua = cheieDin(s.linii[i]);
      if (cheieNoua == cheie) {
        ++numar;
        if (i + 1 == s.linii.size()) lista.Eroare(mesaj(cheie, numar));
      } else {
        out.Line(s.linii[i]);
        if (numar > 1) lista.Eroare(mesaj(cheie, numar));
        cheie = cheieNoua;
        numar = 1;
      }
    }
  }
  out.Close();
  files.Replace(fisier::Temporar, lucru);
}

}  // namespace

void ver_duble(Files& files, ListaErori& lista, std::string_view anFiscal) {
  const std::string an(anFiscal);
  for (std::string_view sortat :
       {fisier::RepSort, fisier::Ff1Sort, fisier::Ff2Sort, fisier::DeduSort})
    files.DeleteIfExists(sortat);

  const FisierDeSortat fisiere[] = {
      {fisier::Repfisc, fisier::RepSort, "Rep_" + an + ".txt",
       "Avertisment : Fisierul Rep_" + an + ".txt nu exista sau e gol.", SablonAngajator,
       SablonAngajatorTipText, false},
      {fisier::Ff1,
       fisier::Ff1Sort,
       "Ff1_" + an + ".txt",
       "Avertisment : Fisierul FF1_" + an + ".txt nu exista sau e gol.",
       SablonFF1,
       {},
       true},
      {fisier::Ff2,
       fisier::Ff2Sort,
       "Ff2_" + an + ".txt",
       "Avertisment : Fisierul Ff2_" + an + ".txt nu exista sau e gol.",
       SablonFF2,
       {},
       false},
      {fisier::Deduceri,
       fisier::DeduSort,
       "Ded_" + an + ".txt",
       "Avertisment : Fisierul Ded_" + an + ".txt nu exista sau e gol.",
       SablonDeducere,
       {},
       false},
  };
  // The sorted lists of Repfisc.txt, Ff2.txt and Deduceri.txt wait in memory
  // for their rewrite; only the FF1 one is a file, which ver_ff1 reads.
  std::optional<Sortate> rep, ff2, ded;
  std::optional<Sortate>* memorie[] = {&rep, nullptr, &ff2, &ded};
  for (std::size_t k = 0; k < 4; ++k) {
    const FisierDeSortat& f = fisiere[k];
    if (FisierGol(files, f.lucru)) {
      lista.Nota(f.avertisment);
    } else if (memorie[k]) {
      Sorteaza(files, lista, f, memorie[k]->emplace());
    } else {
      Sortate s;
      Sorteaza(files, lista, f, s);
      LineWriter out = files.Write(f.sortat);
      for (std::string_view linie : s.linii) out.Line(linie);
      out.Close();
    }
    // Every FF1 line was wrong: the file is left empty and ver_ff1 skips it.
    if (f.ff1 && files.Exists(fisier::Ff1Sort) && files.Length(fisier::Ff1Sort) == 0)
      files.Copy(fisier::Ff1Sort, fisier::Ff1);
  }

  if (rep) RescrieRep(files, lista, an, *rep);
  if (ff2)
    RescrieFaraDuble(
        files, lista, *ff2, fisier::Ff2, [](std::string_view linie) { return Inainte(linie, ","); },
        [&](const std::string& cheie, long numar) {
          return "FF2_" + an + ".txt - " + cheie + " : " + Numar(numar) +
                 " aparitii (ramane doar una).";
        });
  if (ded)
    RescrieFaraDuble(
        files, lista, *ded, fisier::Deduceri,
        [](std::string_view linie) { return CheieDeducere(linie); },
        [&](const std::string& cheie, long numar) {
          return "Ded_" + an + ".txt - " + cheie + ": " + Numar(numar) +
                 " aparitii (ramane doar una).";
        });
  for (std::string_view sortat : {fisier::Ff2Sort, fisier::RepSort, fisier::DeduSort})
    files.DeleteIfExists(sortat);
}

}  // namespace fisc
