#include "listings/EcranListare.h"

#include "listings/Cadru.h"
#include "records/CititorCampuri.h"
#include "sheets/FisaInLucru.h"
#include "sheets/ListaFise.h"

namespace fisc {

namespace {
// The selection letter of a listing of one sheet.
const std::string kOFisa = "S";
}  // namespace

void LeagaSemnatarul(Control& Dnupren, Control& Dfunc) {
  Dnupren.LostFocus = [&Dnupren] { Dnupren.SetText(Majuscule(Dnupren.Text())); };
  Dnupren.KeyPress = [&Dfunc](int& key) {
    if (key == kKeyEnter) Dfunc.SetFocus();
  };
  Dfunc.LostFocus = [&Dfunc] { Dfunc.SetText(Majuscule(Dfunc.Text())); };
}

void LeagaAlegereaFisei(Control& Combo3, FisaInLucru& fisa, StareListare& listare,
                        std::function<void(const std::string& cod)> listeaza) {
  Combo3.Click = [&Combo3, &fisa, &listare, listeaza = std::move(listeaza)] {
    if (Combo3.ListIndex() == -1) {
      Combo3.SetListIndex(0);
      return;
    }
    fisa.CodCurent = CodulDinLista(Combo3.Text()).value_or("");
    listare.CondListare = kOFisa;
    if (fisa.CodCurent.empty()) return;
    listeaza(fisa.CodCurent);
  };
}

}  // namespace fisc
