#pragma once
// The state of a run: one object, owned by the application, made of the
// pieces that belong to their subsystems. Each screen is handed the pieces it
// reads or writes, never the whole.
#include "listings/Cadru.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "sheets/Angajator.h"
#include "sheets/FisaInLucru.h"
#include "verify/StareVerificare.h"

namespace fisc {

struct Stare {
  ParametriAn Parametri;
  TabelImpozit Impozitar{};
  int DataGresita = 0;  // 1 when the machine's short date is not day first
  StareAngajator Angajator;
  FisaInLucru Fisa;
  StareListare Listare;
  StareVerificare Verificare;
};

}  // namespace fisc
