#pragma once
// The state of the verification that outlives one press of a button.

namespace fisc {

struct StareVerificare {
  // 1 stops the run: the intake failed or was refused, or the converter
  // complained. "Lista erori" tests it; the next "VERIFICARE" clears it.
  int VerifAbandonata = 0;
};

}  // namespace fisc
