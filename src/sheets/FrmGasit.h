#pragma once
// The existing-code decision: a code typed on the employee screen already has
// a sheet, and the person chooses to change one, make the other, or delete.
#include <array>
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
class FisaII;

class FrmGasit : public Form {
 public:
  FrmGasit(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa);

  Control& Label1;
  std::array<Control*, 4> but{};

  FisaII* Fisa_II = nullptr;

  // Captions by what was found ("F1", "F2" or "F1F2"), then the screen shows
  // with the focus on its first button.
  void Arata(std::string_view gasit);

 private:
  void Apasa(int k);

  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
};

}  // namespace fisc
