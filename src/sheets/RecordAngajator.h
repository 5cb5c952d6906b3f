#pragma once
// The employer record: one line of Repfisc.txt and of its per-year copy.
#include <array>
#include <string>
#include <string_view>

namespace fisc {

struct RecordAngajator {
  std::string CodP;
  std::string TipAngajator;  // "1" for a CF, "2" for a CNP
  std::string DenP, NumeP, PrenP;
  std::string JudP;
  std::array<std::string, 11> AdrP;  // Localitate, Strada, Numar, Cod postal, Bloc,
                                     // Scara, Etaj, Apartament, Sector, Telefon, E-mail
};

// Reads the fields by their delimiters; a line of another shape fails (5).
RecordAngajator CitesteAngajator(std::string_view line);
// The line as the employer screen writes it: a type 1 record has empty names,
// any type but 1 is written as 2 with an empty denomination.
std::string ScrieAngajator(const RecordAngajator& r);
// A line of the structure whose type is still a text field ("#1#") with the
// type made a bare field; the rest of the line is kept as it stands.
std::string AngajatorCuTipNumeric(std::string_view line);

}  // namespace fisc
