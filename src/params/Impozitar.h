#pragma once
// The tax table ("impozitar"): brackets of the monthly and annual tax, held in
// memory as TabelImpozit and on disk in Impozitar.txt.
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

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

// A cell as a box shows it: a null cell is no text.
std::string TextCelula(const std::optional<double>& cell);

// The row that opens the table in force for `luna` (1 to 12, 13 for the
// year): going down from row 0, the first whose month is at most `luna`. An
// empty row counts as month 0, so a table without any group stops on its
// first empty row. 9 when every row is of a later month.
std::size_t RandulLunii(const TabelImpozit& tabel, double luna);

// The rows of a month's group, from its highest bracket to its lowest.
struct GrupaImpozit {
  std::size_t prim, ultim;
};

// The group in force for `luna`, or nullopt when the table has none for it.
// 9 when no row qualifies or the group runs past the last row.
std::optional<GrupaImpozit> GrupaInVigoare(const TabelImpozit& tabel, double luna);

// Makes `grupa` (brackets highest first) the group of exactly month `luna`:
// it replaces the rows of that month, or, when the month had none, goes in
// front of the next earlier month's group, so the months after it follow the
// new table. The last rows of the table make room for it and are lost.
void InlocuiesteGrupa(TabelImpozit& tabel, double luna, const std::vector<RandImpozit>& grupa);

// Clears the table and fills it from Impozitar.txt, up to the line "eof".
// Failures, with the rows read before the fault left in the table: 53 for a
// missing file, 62 for an empty file or one without "eof", 5 for a data line
// with fewer than four commas, 9 for a data line past row 129.
void IncarcaImpozitar(Files& files, TabelImpozit& tabel);

// Rewrites Impozitar.txt from the table, up to its first null month, with the
// marker "eof" and the comment for people after it. 53 when the file is gone.
void SalvImpozit(Files& files, const TabelImpozit& tabel);

}  // namespace fisc
