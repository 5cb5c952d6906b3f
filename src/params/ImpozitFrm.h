#pragma once
// The tax table editor: shows the table in force for any month and for the
// year, and replaces a month's table or creates one. The table in memory
// changes at once; the file, each time the screen closes.
#include <array>

#include "params/Impozitar.h"
#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

class ImpozitFrm : public Form {
 public:
  ImpozitFrm(Desktop& desktop, Platforma& platforma, TabelImpozit& tabel);

  // The month list: "Ianuarie" to "Decembrie" and "An", months 1 to 13.
  Control& Timp;
  Control& PrelMod;

 private:
  // The boxes made row by row, which is the order Tab walks them.
  std::array<std::array<Control*, 10>, 4> casete_;

 public:
  // Ten brackets rising from the top. LimMin is a label: it follows the
  // upper limit of the row above.
  std::array<Control*, 10> LimMin = casete_[0], LimMax = casete_[1], ImpFix = casete_[2],
                           Procent = casete_[3];
  Control& Ok_Imp;
  Control& Cancel_Imp;
  Control& Atentie;

  // Reloads the table and shows January, unless the screen is open already.
  // From the sheet screens the table is only to be looked at: PrelMod stays
  // disabled.
  void Deschide(bool doarVizualizare);

  // Merges the boxes into the table as the group of the chosen month.
  void PrelImp();
  // Clears every box and goes back to viewing.
  void BlocDel();
  // Opens the boxes for writing.
  void BlocScr(int luna);
  // Shows the table in force for `luna`; `gasit` false when there is none.
  void AfisImp(int luna, bool& gasit);

 private:
  int LunaAleasa() const { return Timp.ListIndex() + 1; }
  void Casete(bool deschise);
  void IesireLimMax(int k);
  void IesireSuma(Control& caseta, int k);
  void EnterLimMax(int k);
  void EnterImpFix(int k);
  void EnterProcent(int k);
  void OkImp();

  Platforma& p_;
  TabelImpozit& tabel_;
};

}  // namespace fisc
