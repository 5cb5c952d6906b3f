#include "records/CoduriFiscale.h"

#include <string>

#include "platform/Failure.h"
#include "records/Numere.h"

namespace fisc {

namespace {

bool AllDigits(std::string_view text) {
  for (char c : text)
    if (c < '0' || c > '9') return false;
  return true;
}

int WeightedSum(std::string_view digits, std::string_view key) {
  int sum = 0;
  for (std::size_t i = 0; i < key.size(); ++i) sum += (digits[i] - '0') * (key[i] - '0');
  return sum;
}

}  // namespace

bool VerificaCNP(std::string_view cod) {
  if (cod.size() != 13) return false;
  // A foreign person's code carries no date to test.
  if (Valoare(cod.substr(0, 1)) != 9) {
    double luna = Valoare(cod.substr(3, 2));
    double zi = Valoare(cod.substr(5, 2));
    if (luna == 0 || luna > 12) return false;
    if (zi == 0 || zi > 31) return false;
    if ((luna == 4 || luna == 6 || luna == 9 || luna == 11) && zi > 30) return false;
    if (luna == 2 && zi > 29) return false;
  }
  if (!AllDigits(cod)) return false;
  // The first character of the remainder's text: a remainder of 10 gives "1".
  std::string rest = std::to_string(WeightedSum(cod, "279146358279") % 11);
  return rest.front() == cod[12];
}

bool VerificaCF(std::string_view cod) {
  if (cod.size() > 11) return false;
  if (!AllDigits(cod)) return false;
  // Padding to ten places asks for a negative count of zeros when the code has
  // eleven digits, which the platform refuses.
  if (cod.size() > 10) Fail(err::InvalidCall);
  std::string padded = std::string(10 - cod.size(), '0') + std::string(cod);
  // The last character of the remainder's text: a remainder of 10 gives "0".
  std::string rest = std::to_string(WeightedSum(padded, "753217532") * 10 % 11);
  return rest.back() == padded.back();
}

bool PersoanaStraina(std::string_view cod) { return !cod.empty() && cod.front() == '9'; }

}  // namespace fisc
