#pragma once
// The exchange of working and per-year files at the start and the end of a
// run. The working names are shared with the program of the year before: at
// the start they take the current year's data, at the end they get the
// previous year's data back, and the current year lives in the per-year files.
#include <string_view>

namespace fisc {

class Files;

// What the start-up found, for those who want to know (the tests).
struct RezultatPornire {
  bool AlteAn = false;  // the working files did not hold the previous year
  bool RepConvertit = false;
};

// Every step that fails is passed over and the next one taken. `canalBlocat`
// says an earlier load of the start-up failed with its file left open, so
// that every read this start-up opens fails as well.
RezultatPornire SchimbLaPornire(Files& files, std::string_view anFiscal, bool canalBlocat = false);

void SchimbLaSfarsit(Files& files, std::string_view anFiscal);

// The year before `an` as text ("2001"); an empty year gives "-1".
std::string AnAnterior(std::string_view an);

}  // namespace fisc
