#pragma once
// The annual regularisation of every FF1 sheet at once: each record is
// regularised or cleared as the FF1 screen would, silently.
#include <string>
#include <string_view>

#include "params/Cuantum.h"
#include "params/Impozitar.h"

namespace fisc {

class Files;

enum class RezultatRegularizare {
  FaraDeducereAnuala,  // DedLuna[12] is 0: the annual values aren't set yet
  FaraFisier,          // Ff1.txt is empty or missing
  Efectuata,
};

// Rewrites Ff1.txt through Temporar.txt, each record by RegularizeazaRecord.
RezultatRegularizare RegularizeazaToate(Files& files, const ParametriAn& p,
                                        const TabelImpozit& tabel);

// One FF1 record regularised: field 15 set or cleared by the conditions,
// fields 77 to 83 computed (a zero written "0") or emptied, fields 84 to 86
// kept with a zero emptied. Every other byte stays as it was. Appends the new
// record to `out`; a record of another shape fails with 5.
void RegularizeazaRecord(std::string_view record, const ParametriAn& p, const TabelImpozit& tabel,
                         std::string& out);

}  // namespace fisc
