#include "sheets/LuniActivitate.h"

#include "records/Numere.h"

namespace fisc {

namespace {

// The number in characters `from` (1-based) to `from + length - 1`.
double NumarDin(std::string_view text, std::size_t from, std::size_t length) {
  if (from > text.size()) return 0;
  return Valoare(text.substr(from - 1, length));
}

double Zi(std::string_view data) { return NumarDin(data, 1, 2); }
double Luna(std::string_view data) { return NumarDin(data, 4, 2); }

}  // namespace

int LunaPrimaActivitate(std::string_view data, std::string_view primaZi) {
  if (data.empty()) return 0;
  if (Luna(data) == 1 && Zi(data) <= Valoare(primaZi)) return 0;
  return static_cast<int>(Luna(data)) - 1;
}

int LunaUltimaActivitate(std::string_view data, std::string_view ultimaZi) {
  if (data.empty()) return 11;
  if (Luna(data) == 12 && Zi(data) >= Valoare(ultimaZi)) return 11;
  return static_cast<int>(Luna(data)) - 1;
}

bool AnIntreg(std::string_view dataAngajarii, std::string_view dataIncetarii,
              std::string_view primaZi, std::string_view ultimaZi) {
  bool inceput =
      dataAngajarii.empty() || (Luna(dataAngajarii) == 1 && Zi(dataAngajarii) <= Valoare(primaZi));
  bool sfarsit = dataIncetarii.empty() ||
                 (Luna(dataIncetarii) == 12 && Zi(dataIncetarii) >= Valoare(ultimaZi));
  return inceput && sfarsit;
}

}  // namespace fisc
