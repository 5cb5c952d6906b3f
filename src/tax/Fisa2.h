#pragma once
// The FF2 sheet screen: salary income other than the main job's. One income
// type, twelve months of base and tax, no deductions and no regularisation.
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"
#include "sheets/RecordFF2.h"

namespace fisc {

struct Stare;
class FisaII;
class ImpozitFrm;

class Fisa2 : public Form {
 public:
  Fisa2(Desktop& desktop, Platforma& platforma, Stare& stare);

  Control& Frame1;
  std::array<Control*, 8> TAS{};  // "AS1" to "AS8"
  // 0..11 the months, 12 the totals.
  std::array<Control*, 13> VenitCS{};
  std::array<Control*, 13> ImpS{};
  Control& Command1;
  Control& Command2;
  Control& Command3;
  Control& Command10;
  Control& Picture1;

  FisaII* Fisa_II = nullptr;
  ImpozitFrm* Impozitar = nullptr;

  // The body of an FF2 record from `pozitie`, the position after field 14.
  void IncarcaFF2(std::string_view record, std::size_t pozitie);
  void GolesteFF2();
  void SalveazaFF2();
  // The sheet as the screen holds it, with the head of the employee screen.
  FisaFF2 FisaDinEcran() const;

 private:
  void IesireVenit(int i);
  void IesireImpozit(int i);
  void Sumeaza();
  bool AreTip() const;
  void Inchide();

  Platforma& p_;
  Stare& s_;
};

}  // namespace fisc
