#pragma once
// The save of the working files into a subdirectory named by the employer's
// code, and their restore from it: one installation serves several employers,
// one at a time in the working directory.
#include <string>
#include <string_view>

namespace fisc {

class Files;

// A code may name a subdirectory when it can't lead out of the working
// directory: not empty, no "/" or "\", no "..", no drive letter (":"), no
// control character.
bool CodPermis(std::string_view cod);

// "J" + code for a code of at most 10 characters (a CF), "F" + code otherwise.
std::string NumeSubdirector(std::string_view cod);

// The path the boxes show: the working directory, the name and a separator.
std::string CaleSubdirector(const Files& files, std::string_view cod);

enum class RezultatRestaurare {
  Refuzata,         // empty answer, or a code that may not name a subdirectory
  FaraSubdirector,  // the subdirectory isn't there
  Efectuata,
};

// Empties the four working files and copies over them those of the code's
// subdirectory that exist (FF1_<an>.txt, FF2_<an>.txt, Ded_<an>.txt,
// Rep_<an>.txt). A failure of one step is stepped over.
RezultatRestaurare Restaureaza(Files& files, std::string_view cod, std::string_view anFiscal);

struct RezultatSalvare {
  enum Stare {
    FisiereGoale,  // the employer record is missing or blank
    Refuzata,      // the employer's code may not name a subdirectory
    Efectuata,
  } stare = FisiereGoale;
  std::string cale;  // as CaleSubdirector gives it
};

// Copies the four working files into the subdirectory of the employer's code
// (the code before the first comma of Repfisc.txt), made when missing, under
// their per-year names, after deleting the four there. A failure of one step
// is stepped over and the save goes on.
RezultatSalvare SalveazaInSubdirector(Files& files, std::string_view anFiscal);

// Recreates the four working files empty, for the next employer.
void GolesteFisiereLucru(Files& files);

}  // namespace fisc
