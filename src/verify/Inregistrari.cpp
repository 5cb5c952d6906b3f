// The record pass: what is left of each file after its empty and malformed
// lines, in the order of the sorted list, one record a code.
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

// One file through the sorted list: every line that is neither empty nor of a
// wrong structure goes to the sort file, FF1 sheets as their sort lines.
void Sorteaza(Files& files, ListaErori& lista, const FisierDeSortat& f) {
  std::vector<std::string> combo1;
  {
    LineReader in = files.Read(f.lucru);
    std::string linie;
    while (in.Next(linie)) {
      if (Trim(linie).empty()) {
        lista.Eroare(f.nume + " - Inregistrare goala eliminata. ");
      } else if (!StructuraRecord(linie, f.sablon) &&
                 (f.sablonAlt.empty() || !StructuraRecord(linie, f.sablonAlt))) {
        lista.Eroare(f.nume + " - " + linie.substr(0, 13) +
                     " structura inregistrare eronata (inregistrare eliminata). ");
      } else {
        combo1.push_back(f.ff1 ? ver_data(linie) : std::move(linie));
      }
    }
  }
  SortNoCase(combo1);
  LineWriter out = files.Write(f.sortat);
  for (const std::string& item : combo1) out.Line(item);
  out.Close();
}

std::string Numar(long n) { return std::to_string(n); }

// Only the lowest employer record stays; a record of another code is reported
// by its code, a repeated one by its count.
void RescrieRep(Files& files, ListaErori& lista, const std::string& an) {
  if (!files.Exists(fisier::RepSort)) return;
  if (files.Length(fisier::RepSort) == 0) {
    files.Replace(fisier::RepSort, fisier::Repfisc);
    return;
  }
  const std::string p = "Rep_" + an + ".txt: ";
  {
    LineReader in = files.Read(fisier::RepSort);
    std::string linie = in.Line();
    LineWriter out = files.Write(fisier::Temporar);
    out.Line(linie);
    out.Close();
    std::string cod(Inainte(linie, ","));
    long numar = 1;
    while (in.Next(linie)) {
      std::string_view codNou = Inainte(linie, ",");
      if (codNou == cod) {
        ++numar;
        if (in.Eof()) lista.Eroare(p + cod + " - " + Numar(numar) + " aparitii.");
      } else {
        lista.Eroare(p + std::string(codNou) + " - alt cod angajator (inregistrare eliminata).");
        if (numar > 1) lista.Eroare(p + cod + " - " + Numar(numar) + " aparitii.");
        numar = 1;
        cod = codNou;
      }
    }
  }
  files.Replace(fisier::Temporar, fisier::Repfisc);
}

// The first line of each key stays; the others are counted and reported once.
template <typename Cheie, typename Mesaj>
void RescrieFaraDuble(Files& files, ListaErori& lista, std::string_view sortat,
                      std::string_view lucru, Cheie cheieDin, Mesaj mesaj) {
  if (!files.Exists(sortat)) return;
  if (files.Length(sortat) == 0) {
    files.Replace(sortat, lucru);
    return;
  }
  {
    LineReader in = files.Read(sortat);
    LineWriter out = files.Write(fisier::Temporar);
    std::string linie = in.Line();
    out.Line(linie);
    std::string cheie(cheieDin(linie));
    long numar = 1;
    while (in.Next(linie)) {
      std::string_view cheieNoua = cheieDin(linie);
      if (cheieNoua == cheie) {
        ++numar;
        if (in.Eof()) lista.Eroare(mesaj(cheie, numar));
      } else {
        out.Line(linie);
        if (numar > 1) lista.Eroare(mesaj(cheie, numar));
        cheie = cheieNoua;
        numar = 1;
      }
    }
    out.Close();
  }
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
  for (const FisierDeSortat& f : fisiere) {
    if (FisierGol(files, f.lucru))
      lista.Nota(f.avertisment);
    else
      Sorteaza(files, lista, f);
    // Every FF1 line was wrong: the file is left empty and ver_ff1 skips it.
    if (f.ff1 && files.Exists(fisier::Ff1Sort) && files.Length(fisier::Ff1Sort) == 0)
      files.Copy(fisier::Ff1Sort, fisier::Ff1);
  }

  RescrieRep(files, lista, an);
  RescrieFaraDuble(
      files, lista, fisier::Ff2Sort, fisier::Ff2,
      [](std::string_view linie) { return Inainte(linie, ","); },
      [&](const std::string& cheie, long numar) {
        return "FF2_" + an + ".txt - " + cheie + " : " + Numar(numar) +
               " aparitii (ramane doar una).";
      });
  RescrieFaraDuble(
      files, lista, fisier::DeduSort, fisier::Deduceri,
      [](std::string_view linie) { return Inainte(linie, ",#"); },
      [&](const std::string& cheie, long numar) {
        return "Ded_" + an + ".txt - " + cheie + ": " + Numar(numar) +
               " aparitii (ramane doar una).";
      });
  for (std::string_view sortat : {fisier::Ff2Sort, fisier::RepSort, fisier::DeduSort})
    files.DeleteIfExists(sortat);
}

}  // namespace fisc
