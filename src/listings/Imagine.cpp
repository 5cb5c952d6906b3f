#include "listings/Imagine.h"

#include "app/Stare.h"
#include "listings/ListaFF1.h"
#include "listings/ListaFF2.h"
#include "records/CititorCampuri.h"

namespace fisc {

void ImagineFF1(Platforma& p, Stare& s, FisaFF1 fisa) {
  for (std::string* marca : {&fisa.FlagRectif, &fisa.FlagReg, &fisa.FlagDedu, &fisa.FlagAlteS,
                             &fisa.FlagInv1, &fisa.FlagInv2})
    *marca = NormalizeazaMarca(*marca);
  p.files.DeleteIfExists(listare::ListF1);
  {
    LineWriter out = p.files.Write(listare::ListF1);
    ListaFF1 lista(p.files, out, s, s.Listare.SemnatarNume, s.Listare.SemnatarFunctie);
    lista.Imagine(fisa, s.Fisa.Ded, s.Fisa.NrPersoane);
    out.Close();
  }
  ArataSiListeaza(p.launcher, p.files, p.printer, s.Listare.LiniePagina, "Listf1.txt",
                  ListeazaFise);
}

void ImagineFF2(Platforma& p, Stare& s, FisaFF2 fisa) {
  fisa.FlagRectif = NormalizeazaMarca(fisa.FlagRectif);
  for (std::string& tip : fisa.TAS) tip = NormalizeazaMarca(tip);
  p.files.DeleteIfExists(listare::ListF2);
  {
    LineWriter out = p.files.Write(listare::ListF2);
    ListaFF2 lista(p.files, out, s, s.Listare.SemnatarNume, s.Listare.SemnatarFunctie);
    lista.Imagine(fisa);
    out.Close();
  }
  ArataSiListeaza(p.launcher, p.files, p.printer, s.Listare.LiniePagina, "Listf2.txt",
                  ListeazaFise);
}

}  // namespace fisc
