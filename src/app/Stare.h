#pragma once
// The shared state of a run: one object, owned by the application and passed
// by reference to every screen that reads or writes it.
#include <string>

#include "listings/Cadru.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "sheets/FisaInLucru.h"
#include "verify/StareVerificare.h"

namespace fisc {

struct Stare {
  ParametriAn Parametri;
  TabelImpozit Impozitar{};
  int DataGresita = 0;  // 1 when the machine's short date is not day first
  // The employer: the code last confirmed on its screen, its type and the
  // county read from its record until the screen shows it.
  std::string CodAngajator, TipAngajator, JudetAngajator;
  FisaInLucru Fisa;
  StareListare Listare;
  StareVerificare Verificare;
};

}  // namespace fisc
