// Section 5: each dependant line against itself, its codes, marks,
// coefficients and the age its code tells.
#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordDed.h"
#include "tax/Conditii.h"
#include "verify/Parcurgere.h"
#include "verify/Verificari.h"

namespace fisc {

void ver_ded(Files& files, ListaErori& lista, std::string_view an) {
  if (FisierGol(files, fisier::Deduceri)) return;
  const int anFiscal = static_cast<int>(Valoare(an));
  LineReader in = files.Read(fisier::Deduceri);
  std::string linie;
  TabelDed ded;
  while (in.Next(linie)) {
    const std::string cheie(Inainte(linie, ",#"));
    const std::string codAngajat(CitesteRandDed(linie, ded, 1));
    const std::string& codI = ded(1, ded::CodI);
    const Nastere nastere = NastereDinCod(codI);

    bool are1 = false, are15 = false, coefGresit = false, copilGresit = false;
    for (int i = 0; i < 12; ++i) {
      double c = ValZecimal(ded(1, ded::CoefI + i));
      if (c == 1) are1 = true;
      if (c == 1.5) are15 = true;
      if (!CoefIPermis(c)) coefGresit = true;
      // The month before the birth month passes: i counts from 0.
      if (nastere.An == anFiscal && i < nastere.Luna - 2 && c != 0) copilGresit = true;
    }

    std::string cnp;
    if (!VerificaCNP(codAngajat)) cnp += "CNP angajat " + codAngajat + " eronat ; ";
    if (!VerificaCNP(codI))
      cnp += "CNP pers.intretinuta " + codI + " eronat (la CNP angajat " + codAngajat + ").";
    if (!cnp.empty()) lista.Eroare(cnp);

    const bool inv1 = ded(1, ded::Inv1) == "X", inv2 = ded(1, ded::Inv2) == "X";
    if (inv1 != are15 || inv2 != are1)
      lista.Eroare(cheie + " coef.de deducere necorelati cu marcajul pentru handicap.");
    if (coefGresit) lista.Eroare(cheie + " coef.de deducere diferiti de 0, 0.5, 1, 1.5.");
    if (copilGresit)
      lista.Eroare(cheie +
                   " coef.de deducere pentru copil de 1 an nenuli pe lunile pana la nastere.");
    if (ded(1, ded::Copil) == "X" && anFiscal - nastere.An > 18)
      lista.Eroare(cheie +
                   " Calitate - COPIL - pentru persoana intretinuta in varsta de peste 18 ani.");
  }
}

}  // namespace fisc
