#pragma once
// What the two sheet-listing screens share: the signer's fields and the list
// from which one sheet is chosen.
#include <functional>
#include <string>

#include "platform/Control.h"

namespace fisc {

struct FisaInLucru;
struct StareListare;

// Name and function of the signer go to upper case on leaving; Enter on the
// name moves to the function.
void LeagaSemnatarul(Control& Dnupren, Control& Dfunc);

// A choice in the list of sheets: the first entry stands for a click on an
// empty choice, and choosing it runs the handler again; a chosen sheet is
// listed alone.
void LeagaAlegereaFisei(Control& Combo3, FisaInLucru& fisa, StareListare& listare,
                        std::function<void(const std::string& cod)> listeaza);

}  // namespace fisc
