#include "sheets/Adresa.h"

#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {

void IesireDinAdresa(Control& camp, bool numeric, const Control& localitate, Control& sector) {
  camp.SetText(numeric ? TextDin(Valoare(camp.Text())) : Majuscule(camp.Text()));
  double v = Valoare(sector.Text());
  if (v != 0 && v > 6) sector.SetText("");
  if (localitate.Text() != "BUCURESTI") sector.SetText("");
}

}  // namespace fisc
