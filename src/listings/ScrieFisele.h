#pragma once
// The run of a sheet listing, common to the FF1 and FF2 listings: the listing
// file is written from the records of a source file, then shown in the viewer
// and offered to the printer side by side.
#include <string>
#include <string_view>

#include "listings/LisFise1.h"
#include "listings/Tiparire.h"
#include "platform/Platforma.h"
#include "sheets/FisaInLucru.h"
#include "sheets/Stocare.h"

namespace fisc {

// Every record of `sursa`, or only those of `cod` when it is given, go through
// `scrie` of the listing that `facLista` makes for the listing file `fisier`.
template <typename FacLista, typename Lista>
void ScrieFisele(Platforma& p, FisaInLucru& fisa, StareListare& listare, std::string_view sursa,
                 std::string_view cod, std::string_view fisier, std::string_view vizualizat,
                 FacLista facLista, void (Lista::*scrie)(std::string_view)) {
  LineReader in = p.files.Read(sursa);
  p.files.DeleteIfExists(fisier);
  {
    LineWriter out = p.files.Write(fisier);
    Lista lista = facLista(out);
    std::string cautat = std::string(cod) + ",";
    std::string linie;
    while (in.Next(linie)) {
      if (cod.empty())
        fisa.CodCurent = CodulLiniei(linie);
      else if (!LiniaCodului(linie, cautat))
        continue;
      (lista.*scrie)(linie);
    }
    out.Close();
  }
  ArataSiListeaza(p.launcher, p.files, p.printer, listare.LiniePagina, vizualizat, ListeazaFise);
}

}  // namespace fisc
