#pragma once
// One employee's sheets in the files of the working directory: look-up,
// loading of the dependants, save and delete. There is no index: a look-up
// reads a file from its first line and a change rewrites the whole file
// through Temporar.txt, then copies the working file over its per-year file.
//
// A line belongs to an employee when the code stands at its very beginning
// (in Deduceri.txt the code followed by ","). It is a text search, not a field
// comparison: a code that begins a longer code matches too.
#include <array>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "sheets/RecordDed.h"

namespace fisc {

// Pozitii[1] for Ff1.txt, Pozitii[0] for Ff2.txt, Pozitii[2] for
// Deduceri.txt: non-zero when the code has a line there, then often its
// line number.
using Pozitii = std::array<long, 3>;

// True when `linie` begins with `cod`.
bool LiniaCodului(std::string_view linie, std::string_view cod);

// Looks the code up in Ff1.txt, then Ff2.txt. Sets pozitii[1] and pozitii[0]
// to 1 or 0 and returns Gasit: "", "F1", "F2" or "F1F2". A missing file
// holds no line.
std::string CautaCod(const Files& files, std::string_view codCurent, Pozitii& pozitii);

// The first line of `fisier` that belongs to the code, and its number from 1;
// number 0 and an empty text when there is none.
struct LinieGasita {
  long Numar = 0;
  std::string Text;
};
LinieGasita GasesteLinia(const Files& files, std::string_view fisier, std::string_view cod);

// Reads the unbroken block of the code's rows in Deduceri.txt into rows 1..
// of `tabel`, after emptying it. An empty or missing file ends at once and
// keeps nrPersoane and pozitii[2]; otherwise nrPersoane counts the rows and
// pozitii[2] is the number of the block's last line (0 when none). A 21st row
// fails with 9, leaving nrPersoane at 21.
void IncarcaDeduceri(const Files& files, std::string_view codCurent, TabelDed& tabel,
                     short& nrPersoane, Pozitii& pozitii);

// Saves the FF1 record `recordFF1` (a line built by RecordFF1) of the code:
// appended when pozitieFF1 is 0, else put in place of the code's line, a line
// that holds the code further on being dropped. Then every line of
// Deduceri.txt holding the code anywhere goes, rows 1..nrPersoane of `tabel`
// are appended, and Ff1.txt and Deduceri.txt are copied over FF1_<an>.txt and
// Ded_<an>.txt.
void SalveazaFF1(Files& files, std::string_view an, std::string_view codCurent,
                 std::string_view recordFF1, long pozitieFF1, const TabelDed& tabel,
                 short nrPersoane);

// As SalveazaFF1 for Ff2.txt and FF2_<an>.txt; an FF2 has no dependants.
void SalveazaFF2(Files& files, std::string_view an, std::string_view codCurent,
                 std::string_view recordFF2, long pozitieFF2);

// Keeps only the lines of Ff1.txt and of Deduceri.txt in which the code
// occurs nowhere, and copies both over their per-year files.
void StergeFF1(Files& files, std::string_view an, std::string_view codCurent);

// The same for Ff2.txt alone.
void StergeFF2(Files& files, std::string_view an, std::string_view codCurent);

}  // namespace fisc
