#pragma once
// The dBase layout of the four per-year files: one table a file, one row a
// field of the text record, in record order. Both directions of the converter
// and its structure check read these tables and nothing else.
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace fisc {

// How a field stands in the text record: bare, or closed in "#".
enum class FormaText { Bare, Text };

struct CampDbf {
  std::string nume;  // the dBase field name; empty for a record field that isn't stored
  char tip = 'C';    // 'C' text or mark, 'N' number, 'D' date aaaallzz
  int latime = 0;
  int zecimale = 0;
  FormaText forma = FormaText::Bare;
  // The text of an empty field: the blank county is the lists' entry " ".
  std::string_view gol;

  bool Stocat() const { return !nume.empty(); }
};

struct FisierDbf {
  std::string_view prefix;  // "FF1": FF1_aaaa.dbf, and the empty template FF1.dbf
  std::string_view text;    // the working file: "Ff1.txt"
  std::string_view sablon;  // the structure template of its records
  std::vector<CampDbf> campuri;
};

// Rep, FF1, FF2 and Ded, in the order the working files are written.
const std::array<FisierDbf, 4>& FisiereDbf();

// "FF1_2002.dbf" for a year, the template "FF1.dbf" for an empty year.
std::string NumeDbf(const FisierDbf& fisier, std::string_view an);

// "N(12,0)", "C(40)", "D(8)": how the layout and the faults name a field's type.
std::string DescriereTip(char tip, int latime, int zecimale);

}  // namespace fisc
