#pragma once
// The employer of the run as the employer screen last confirmed it.
#include <string>

namespace fisc {

struct StareAngajator {
  std::string CodAngajator;
  std::string TipAngajator;  // "1" for a CF, "2" for a CNP
  // The county read from the employer record, until the screen shows it.
  std::string JudetAngajator;
};

}  // namespace fisc
