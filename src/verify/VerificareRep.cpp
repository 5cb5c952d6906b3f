// Section 2: the employer's code, and the employer record of the structure
// whose type is still a text field brought to the current one.
#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "records/Structura.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordAngajator.h"
#include "verify/Parcurgere.h"
#include "verify/Verificari.h"

namespace fisc {

std::string ver_rep(Files& files, ListaErori& lista) {
  if (FisierGol(files, fisier::Repfisc)) return {};
  std::string codVerificat, prima;
  {
    LineReader in = files.Read(fisier::Repfisc);
    std::string linie;
    bool primaCitita = false;
    while (in.Next(linie)) {
      if (!primaCitita) {
        prima = linie;
        primaCitita = true;
      }
      codVerificat = Inainte(linie, ",");
      // Both checks run, whatever the first says: a code of eleven digits
      // stops the program in the CF check.
      bool cnp = VerificaCNP(codVerificat);
      bool cf = VerificaCF(codVerificat);
      if (!cnp && !cf) lista.Eroare("CF/CNP " + codVerificat + " eronat. ");
      if (Valoare(codVerificat) == 0) lista.Eroare("CF/CNP lipsa. ");
    }
  }
  if (StructuraRecord(prima, SablonAngajatorTipText)) {
    LineWriter out = files.Write(fisier::Temp1);
    out.Line(AngajatorCuTipNumeric(prima));
    out.Close();
    files.Replace(fisier::Temp1, fisier::Repfisc);
  } else {
    files.DeleteIfExists(fisier::Temp1);
  }
  return codVerificat;
}

}  // namespace fisc
