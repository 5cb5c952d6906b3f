#pragma once
// The merge of the diskettes of several work stations: their per-year files
// are put one after the other into the working files, which lose what this
// computer held. A plain concatenation: the verification finds duplicates.
#include <optional>
#include <string_view>

namespace fisc {

class Files;
class Dialogs;
class Clock;
class Drive;

struct RezultatUnire {
  short FF1 = 0, FF2 = 0;  // lines added, 16-bit counters
  short NrDischete = 0;
};

// Asks for the diskettes one after the other until the person has no more
// and adds each one's files. Failures 71 and 75 on a statement show their box
// and the statement runs again; any other failure ends the merge (nullopt),
// the working files holding what was added until then and the _r files left.
// The working files are built in work files and each put in place by one
// rename. On success the _r files are gone.
std::optional<RezultatUnire> UnesteDischete(Files& files, const Drive& drive, Dialogs& dialogs,
                                            Clock& clock, std::string_view anFiscal);

// The line counters of the merge: adding past 32767 is failure 6.
short AdaugaLinie(short contor);

}  // namespace fisc
