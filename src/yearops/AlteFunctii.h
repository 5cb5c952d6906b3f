#pragma once
// The screen of the year operations: a list of five functions, each run as
// soon as it is chosen, and the help of these functions.
#include <functional>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

class AlteFunctii : public Form {
 public:
  AlteFunctii(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
              const TabelImpozit& impozitar);

  Control& Label1;
  Control& List1;
  Control& Command11;

  // The entries of List1, in their order; the main window's b_rest and
  // b_salv run the restore and the save too.
  void butPrelAnPrec();
  void butRegText();
  void Restaurare();
  void Salvare();
  void butUnire();

  // Empties the employer screen when a save leaves the working files empty,
  // so that the next employer can be typed.
  std::function<void()> GolesteAngajator;

 private:
  Platforma& p_;
  const ParametriAn& parametri_;
  const TabelImpozit& impozitar_;
};

}  // namespace fisc
