#pragma once
// The employer screen: the employer's identification, and the way into the
// employee screen.
#include <array>

#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct StareAngajator;
struct FisaInLucru;
class FisaII;

class FisaI : public Form {
 public:
  FisaI(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
        StareAngajator& angajator, FisaInLucru& fisa);

  Control& CodP;
  Control& TipAng;
  Control& DenP;
  Control& NumeP;
  Control& PrenP;
  Control& Frame1;
  // The address fields; the county list stands between AdrP(0) and AdrP(1) in
  // the focus order, so both are added while the members below are built.
  std::array<Control*, 11> AdrP{};
  Control& JudP;
  Control& Ok_Fisa_II;

  // Fills the screen from the first line of Repfisc.txt; an empty file
  // leaves it as it is.
  void IncarcaAngajator();
  // Writes the one line of Repfisc.txt from the screen.
  void SalveazaAngajator();
  // Empties the screen and the employer's type and county.
  void GolesteAngajator();

  Form* Intro = nullptr;
  FisaII* Fisa_II = nullptr;

 private:
  Control& AdaugaAdresa(int i, int x, int y, int w);
  void ArataTip(int tip);
  int Tip() const;

  Platforma& p_;
  const ParametriAn& parametri_;
  StareAngajator& angajator_;
  FisaInLucru& fisa_;
};

}  // namespace fisc
