// Section 4: the FF2 sheets hold no interval; only the code and the two
// totals are tested.
#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "verify/Parcurgere.h"
#include "verify/Verificari.h"

namespace fisc {

void ver_ff2(Files& files, ListaErori& lista) {
  if (FisierGol(files, fisier::Ff2)) return;
  LineReader in = files.Read(fisier::Ff2);
  std::string linie;
  while (in.Next(linie)) {
    std::string cod(Inainte(linie, ","));
    Parcurgere p(linie);
    // Text fields 2 to 22 end in nineteen "#,": field 23 follows.
    p.Sari("#,", 19);
    double sumaVenit = 0, sumaImpozit = 0;
    for (int i = 0; i < 12; ++i) {
      sumaVenit += Valoare(p.Pana(","));
      sumaImpozit += Valoare(p.Pana(","));
    }
    std::string venitTotal(p.Pana(","));
    std::string impozitTotal(p.Rest());
    if (!VerificaCNP(cod)) lista.Eroare("CNP " + cod + " eronat.");
    if (Valoare(venitTotal) != sumaVenit)
      lista.Eroare(cod + " Total venit net gresit = " + venitTotal + " # " + TextDin(sumaVenit) +
                   "(cel corect).");
    if (Valoare(impozitTotal) != sumaImpozit)
      lista.Eroare(cod + " Total impozit calculat si retinut gresit = " + impozitTotal + " # " +
                   TextDin(sumaImpozit) + "(cel corect).");
  }
}

}  // namespace fisc
