#include "listings/Imagine.h"

#include "listings/ListaFF1.h"
#include "listings/ListaFF2.h"
#include "records/CititorCampuri.h"
#include "sheets/FisaInLucru.h"

namespace fisc {

void ImagineFF1(Platforma& p, const ParametriAn& parametri, FisaInLucru& inLucru,
                StareListare& listare, FisaFF1 fisa) {
  for (std::string* marca : {&fisa.FlagRectif, &fisa.FlagReg, &fisa.FlagDedu, &fisa.FlagAlteS,
                             &fisa.FlagInv1, &fisa.FlagInv2})
    *marca = NormalizeazaMarca(*marca);
  p.files.DeleteIfExists(listare::ListF1);
  {
    LineWriter out = p.files.Write(listare::ListF1);
    ListaFF1 lista(p.files, out, parametri, inLucru, listare, listare.SemnatarNume,
                   listare.SemnatarFunctie);
    lista.Imagine(fisa, inLucru.Ded, inLucru.NrPersoane);
    out.Close();
  }
  ArataSiListeaza(p.launcher, p.files, p.printer, listare.LiniePagina, "Listf1.txt", ListeazaFise);
}

void ImagineFF2(Platforma& p, const ParametriAn& parametri, StareListare& listare, FisaFF2 fisa) {
  fisa.FlagRectif = NormalizeazaMarca(fisa.FlagRectif);
  for (std::string& tip : fisa.TAS) tip = NormalizeazaMarca(tip);
  p.files.DeleteIfExists(listare::ListF2);
  {
    LineWriter out = p.files.Write(listare::ListF2);
    ListaFF2 lista(p.files, out, parametri, listare, listare.SemnatarNume, listare.SemnatarFunctie);
    lista.Imagine(fisa);
    out.Close();
  }
  ArataSiListeaza(p.launcher, p.files, p.printer, listare.LiniePagina, "Listf2.txt", ListeazaFise);
}

}  // namespace fisc
