#pragma once
// The number conversions under every field of the program. Amounts are whole
// lei held as doubles; coefficients are decimals written with ".".
#include <string>
#include <string_view>

namespace fisc {

// The longest numeric prefix of a text, "." the only decimal symbol, blanks
// skipped; 0 when there is none. Never fails: "12a" gives 12.
double Valoare(std::string_view text);

// The shortest text of a number, up to 15 significant digits, no exponent for
// the values met here: 1600000 gives "1600000", 0.5 gives "0.5".
std::string TextDin(double value);

// A number whose decimal symbol may be "," or ".".
double ValZecimal(std::string_view text);
// The same number written back with "." as decimal symbol.
std::string TextZecimal(std::string_view text);
std::string TextZecimal(double value);
// As TextZecimal, but a comma is not taken as decimal symbol: "1,5" gives "1".
std::string TextNumar(std::string_view text);
// Every "," replaced by "."; no numeric step.
std::string PunctZecimal(std::string_view text);

// Rounding to whole numbers with ties to even, as every Round of the program.
double Rotunjeste(double value);

}  // namespace fisc
