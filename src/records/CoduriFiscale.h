#pragma once
// The checks of the two codes a person types: the CNP of a person and the CF
// of a legal person. At most one of the two accepts a code.
#include <string_view>

namespace fisc {

// A 13-digit personal numeric code: month and day of birth plausible (not
// tested for a foreign person, first digit 9), all digits, control digit right.
bool VerificaCNP(std::string_view cod);

// A tax code of up to 10 digits with its control digit; "" passes as ten
// zeros. A code of 11 characters is run-time failure 5, caught by nobody.
bool VerificaCF(std::string_view cod);

// A code whose first character is 9: a foreign person, with no deductions.
bool PersoanaStraina(std::string_view cod);

}  // namespace fisc
