#pragma once
// The tax table ("impozitar"): brackets of the monthly and annual tax, held in
// memory as TabelImpozit and on disk in Impozitar.txt.
#include <array>
#include <optional>

namespace fisc {

class Files;

// The highest row index of the table.
inline constexpr int MaxRandImpozit = 129;

// One bracket: month from which it is valid (1 to 12, 13 for the annual tax),
// lower limit, upper limit, fixed tax, percent. A cell the file didn't fill is
// null; a null month marks the end of the table in use.
using RandImpozit = std::array<std::optional<double>, 5>;
// Groups stand in descending order of month, and inside a group in descending
// order of the limits: every reader relies on it, nobody checks it.
using TabelImpozit = std::array<RandImpozit, MaxRandImpozit + 1>;

// Clears the table and fills it from Impozitar.txt, up to the line "eof".
// Failures, with the rows read before the fault left in the table: 53 for a
// missing file, 62 for an empty file or one without "eof", 5 for a data line
// with fewer than four commas, 9 for a data line past row 129.
void IncarcaImpozitar(Files& files, TabelImpozit& tabel);

// Rewrites Impozitar.txt from the table, up to its first null month, with the
// marker "eof" and the comment for people after it. 53 when the file is gone.
void SalvImpozit(Files& files, const TabelImpozit& tabel);

}  // namespace fisc
