#pragma once
// The screen of the FF1 listing: the addressee of the copies, which sheets,
// the signer, and the list of sheets when one alone is printed.
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
struct StareListare;

class LisFise1 : public Form {
 public:
  LisFise1(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa,
           StareListare& listare);

  Control& Combo1;
  Control& Combo2;
  Control& Dnupren;
  Control& Dfunc;
  Control& Command1;
  Control& Combo3;
  Control& Label20;

  // The opening of the screen: the first entries of both lists, and the
  // signer of the last listing.
  void Deschide();

 private:
  // Writes ListF1.txt from `sursa` (every sheet, or the one of `cod`), then
  // shows it and offers it to the printer.
  void ScrieSiListeaza(std::string_view sursa, std::string_view cod);

  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

// The code of a record: the text before its first comma (failure 5 without one).
std::string_view CodulLiniei(std::string_view linie);

}  // namespace fisc
