#pragma once
// The FF2 sheet screen: salary income other than the main job's. One income
// type, twelve months of base and tax, no deductions and no regularisation.
#include <array>
#include <cstddef>
#include <string_view>

#include "params/Impozitar.h"
#include "platform/Form.h"
#include "platform/Platforma.h"
#include "sheets/EcraneFise.h"
#include "sheets/RecordFF2.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
struct StareListare;
class FisaII;

class Fisa2 : public Form, public EcranFF2 {
 public:
  Fisa2(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
        const TabelImpozit& impozitar, FisaInLucru& fisa, StareListare& listare);

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

  // The body of an FF2 record from `pozitie`, the position after field 14.
  void IncarcaFF2(std::string_view record, std::size_t pozitie) override;
  void GolesteFF2() override;
  void Deschide(std::string_view caption) override;
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
  const ParametriAn& parametri_;
  const TabelImpozit& impozitar_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

}  // namespace fisc
