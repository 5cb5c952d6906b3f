#pragma once
// The takeover of the previous year's sheets: the per-year files of that
// year, in its record structure, become the four working files of this year,
// with every amount blank, the coefficients at their base values and the
// employees who left during the year dropped.
#include <string>
#include <string_view>

namespace fisc {

class Files;

// The previous year of the fiscal year, as text: "2001" for "2002".
std::string AnPrecedent(std::string_view anFiscal);

// True when Rep_<P>.txt is missing or empty: there is nothing to take over.
// The four working files are then made to exist (an absent one empty).
bool PreluareImposibila(Files& files, std::string_view anFiscal);

struct ContoarePreluare {
  long FF1Scrise = 0, FF1Citite = 0;
  long FF2Scrise = 0, FF2Citite = 0;
};

// Replaces Repfisc.txt, Ff1.txt, Ff2.txt and Deduceri.txt by the takeover of
// Rep_<P>.txt, FF1_<P>.txt, FF2_<P>.txt and Ded_<P>.txt. A source that is
// missing leaves its target absent (Repfisc.txt empty); a line of another
// structure is dropped and counts only as read. Each target is written whole
// and put in place by one rename.
ContoarePreluare PreiaAnPrecedent(Files& files, std::string_view anFiscal);

// One line of each previous-year file taken over; empty when the line
// doesn't fit its structure (or, for FF1, belongs to one who left).
std::string PreiaAngajator(std::string_view linie);
std::string PreiaFF2(std::string_view linie);
std::string PreiaFF1(std::string_view linie);
std::string PreiaDeducere(std::string_view linie, std::string_view anFiscal);

}  // namespace fisc
