#pragma once
// What the tables of the listings share (borderou, monthly centraliser, table
// of regularised FF1): their cells, and the few fields of a sheet record a
// row reads, taken as views into the line.
#include <string>
#include <string_view>

namespace fisc {

// The warning in front of the borderou and the tables: the viewer can't keep
// the page grid, the print dialog beside it can.
inline constexpr std::string_view AvertizareVizualizare =
    "NotePad este folosit numai pentru vizualizare. In fereastra Print puteti da OK pentru listare "
    "la imprimanta.";

// A row number or a code padded on the left to its width. A longer text is not
// cut and pushes the rest of the row to the right.
std::string PeDreapta(std::string_view text, std::size_t latime);
// Padded on the right, not cut.
std::string PeStanga(std::string_view text, std::size_t latime);
// Padded on the right and cut at the width.
std::string Taiat(std::string_view text, std::size_t latime);

// The same, appended to a row in hand: the tables build each row in one buffer.
void AdaugaDreapta(std::string& rand, std::string_view text, std::size_t latime);
void AdaugaStanga(std::string& rand, std::string_view text, std::size_t latime);

// An amount cell through FormatSuma twice on the same variable: the first
// call measures, the second gives the text. A negative amount thus loses its
// sign and stands one place left of the cell's edge, and `valoare` is left
// positive. Wider than the cell is failure 5.
std::string CelulaSuma(std::string& valoare, int latime);
void AdaugaSuma(std::string& rand, std::string& valoare, int latime);

// Valoare and TextDin with a short way for the whole numbers that amounts
// nearly always are; the result is theirs in every case.
double ValoareSuma(std::string_view text);
std::string TextSuma(double valoare);

// A sheet record as a table row reads it: code, names, marks and one pair of
// amounts. The views point into the record.
struct RandFisa {
  std::string_view Cod, Nume, Pren;
  std::string FlagRectif, FlagReg;  // trimmed and in upper case; FF2 has no FlagReg
  std::string_view Venit, Impozit;
};

// The pair `pereche` of an FF1 record: 0 to 11 the months, 12 the holiday
// bonus, 13 the totals (VenitN, ImpC).
RandFisa CitesteRandFF1(std::string_view record, int pereche);
// The pair `pereche` of an FF2 record: 0 to 11 the months, 12 the totals
// (VenitCS, ImpS).
RandFisa CitesteRandFF2(std::string_view record, int pereche);

// Name, a blank, first name.
std::string NumeComplet(const RandFisa& r);
void AdaugaNume(std::string& rand, const RandFisa& r);

}  // namespace fisc
