// Section 5: each dependant line against itself, its codes, marks,
// coefficients and the age its code tells.
#include <array>

#include "records/CititorCampuri.h"
#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "tax/Conditii.h"
#include "verify/Parcurgere.h"
#include "verify/Verificari.h"

namespace fisc {

void ver_ded(Files& files, ListaErori& lista, std::string_view an) {
  if (FisierGol(files, fisier::Deduceri)) return;
  const int anFiscal = static_cast<int>(Valoare(an));
  LineReader in = files.Read(fisier::Deduceri);
  std::string linie, codAngajat, codI, copil, inv1, inv2;
  while (in.Next(linie)) {
    // Read by its separators: a line that passed the structure check reads
    // whole, whatever blanks stand next to them.
    const std::string_view cheie = CheieDeducere(linie);
    Parcurgere p(linie);
    codAngajat = p.Camp();
    codI = p.Camp();
    p.Sari(3);  // the names, the mark of the wife
    copil = NormalizeazaMarca(p.Camp());
    p.Sari(1);  // the mark of another person
    inv1 = NormalizeazaMarca(p.Camp());
    inv2 = NormalizeazaMarca(p.Camp());
    p.Sari(1);  // inv3
    std::array<std::string_view, 12> coef;
    for (std::size_t i = 0; i < 11; ++i) coef[i] = p.Camp();
    coef[11] = p.Rest();
    const Nastere nastere = NastereDinCod(codI);

    bool are1 = false, are15 = false, coefGresit = false, copilGresit = false;
    for (int i = 0; i < 12; ++i) {
      double c = ValZecimal(coef[static_cast<std::size_t>(i)]);
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

    if ((inv1 == "X") != are15 || (inv2 == "X") != are1)
      lista.Eroare(std::string(cheie) +
                   " coef.de deducere necorelati cu marcajul pentru handicap.");
    if (coefGresit)
      lista.Eroare(std::string(cheie) + " coef.de deducere diferiti de 0, 0.5, 1, 1.5.");
    if (copilGresit)
      lista.Eroare(std::string(cheie) +
                   " coef.de deducere pentru copil de 1 an nenuli pe lunile pana la nastere.");
    if (copil == "X" && anFiscal - nastere.An > 18)
      lista.Eroare(std::string(cheie) +
                   " Calitate - COPIL - pentru persoana intretinuta in varsta de peste 18 ani.");
  }
}

}  // namespace fisc
