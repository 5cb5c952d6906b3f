#pragma once
// The deduction amounts editor: the year's parameters of Cuantum.txt as
// fields. There is no acceptance: what the fields hold when the screen
// closes, in any way, is saved and takes effect at once.
#include <array>
#include <vector>

#include "params/Cuantum.h"
#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

class CuantumFrm : public Form {
 public:
  CuantumFrm(Desktop& desktop, Platforma& platforma, ParametriAn& parametri);

  Control& AnF;
  Control& prima_zi;
  Control& ultima_zi;
  // 0..11 the months, 12 the year's deduction of the regularisation.
  std::array<Control*, 13> Cuanta{};
  std::array<Control*, 12> Copil{}, Sotie{}, Alta{};
  Control& Maxi;
  Control& hand1;
  Control& hand2;
  Control& hand3;
  Control& Proc_ch;
  Control& CotaIF;
  Control& Command1;

  // Reloads Cuantum.txt into the parameters and the fields, and shows the
  // screen; from the sheet screen every field is disabled and the user
  // closes the window from its frame.
  void Deschide(bool doarVizualizare);

  // The fields as they stand.
  CampuriCuantum Campuri() const;

 private:
  void Umple(const CampuriCuantum& c);
  // Every field, in the order Enter walks them.
  std::vector<Control*> Toate() const;

  Platforma& p_;
  ParametriAn& par_;
};

}  // namespace fisc
