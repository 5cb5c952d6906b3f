#include "listings/EcranListare.h"

#include "app/Stare.h"
#include "records/CititorCampuri.h"
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

void LeagaAlegereaFisei(Control& Combo3, Stare& stare,
                        std::function<void(const std::string& cod)> listeaza) {
  Combo3.Click = [&Combo3, &stare, listeaza = std::move(listeaza)] {
    if (Combo3.ListIndex() == -1) {
      Combo3.SetListIndex(0);
      return;
    }
    stare.Fisa.CodCurent = CodulDinLista(Combo3.Text()).value_or("");
    stare.Listare.CondListare = kOFisa;
    if (stare.Fisa.CodCurent.empty()) return;
    listeaza(stare.Fisa.CodCurent);
  };
}

}  // namespace fisc
