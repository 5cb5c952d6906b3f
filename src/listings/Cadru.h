#pragma once
// What every listing shares: the listing state of the run, the amount format,
// the alignment of a cell, the text in pieces of 63, the employer block, the
// split of the FF1 sheets into regularised and not, and (in Tiparire.h) the
// routines that send a listing file to the printer.
#include <string>
#include <string_view>
#include <vector>

#include "listings/Tiparire.h"

namespace fisc {

class Files;
class LineWriter;
struct AntetFisa;
struct RecordAngajator;

// The listing state, one for the run.
struct StareListare {
  short LiniePagina = 0;       // line counter of the listing in hand
  std::string Exemplar;        // "angajat", "angajator" or "unitatea fiscala"
  std::string CondListare;     // "T", "N", "R", "S", "U" or "D"
  std::string FisierDeListat;  // the sheet file the listing reads
  std::string FisierSursa;     // what FiltruFise reads
  std::string SemnatarNume, SemnatarFunctie;
};

namespace listare {
inline constexpr std::string_view ListF1 = "ListF1.txt";
inline constexpr std::string_view ListF2 = "ListF2.txt";
inline constexpr std::string_view Ff1N = "Ff1N.txt";
inline constexpr std::string_view Ff1R = "Ff1R.txt";
// A row of 80 "_", the rule of the sheets.
inline constexpr std::string_view U80 =
    "________________________________________________________________________________";
}  // namespace listare

// An amount with "." every three digits. A negative value is replaced in the
// caller's variable by its absolute value, so a second call on the same
// variable gives the text without the sign: the listings rely on that.
std::string FormatSuma(std::string& valoare);

// The text behind Space(width - length): a text wider than the cell is the
// run-time failure 5, as a negative count of spaces is.
std::string AliniazaDreapta(std::string_view text, int latime);

// The text in pieces of 63 characters, the label in front of the first piece
// and 16 spaces in front of the others. A text of exactly 63 characters gives
// a second line of 16 spaces, an empty text the label alone.
std::vector<std::string> Bucati63(std::string_view eticheta, std::string_view text);

// Counts one line on a 16-bit counter: 32767 and one more is failure 6.
void NumaraLinie(short& liniePagina, int cate = 1);

// The employer's address as the block prints it.
std::string AdresaAngajator(const RecordAngajator& r);
// An employee's address as the sheets print it: a "0" postal code or sector
// still stands behind its label.
std::string AdresaAngajat(const AntetFisa& a);
// The employee's block of a sheet listing: his code, then his name and his
// address in pieces of 63.
std::vector<std::string> BlocAngajat(const AntetFisa& a);
// The foot of a sheet: the employer's declaration and the signer.
std::vector<std::string> BlocSemnatura(std::string_view nume, std::string_view functie);

// Line 1 of a sheet: "(copie pentru ...)" or "(original pentru ...)"; empty
// for an addressee that is none of the three.
std::string LiniaExemplar(std::string_view exemplar);

// The employer block as it stands in Repfisc.txt: its lines, and whether they
// count on the page ("Nu sunt date despre angajator" doesn't). A missing file
// is failure 53. The sheets read the file once a run, since it can't change
// while a listing is written.
struct BlocAngajator {
  std::vector<std::string> Linii;
  bool Numarate = true;
};
BlocAngajator CitesteBlocAngajator(const Files& files);
void ScrieBlocAngajator(const BlocAngajator& bloc, LineWriter& out, short& liniePagina);

// Writes the employer block to the listing file and adds its lines to
// liniePagina.
void DateAngajator(const Files& files, LineWriter& out, short& liniePagina);

// Copies from s.FisierSursa to s.FisierDeListat the FF1 records that
// s.CondListare admits: "N" the unregularised, "R" the regularised, by the
// trimmed upper-case FlagReg. codCurent takes each record's code.
void FiltruFise(Files& files, const StareListare& s, std::string& codCurent);

// The FF1 or FF2 source of a listing: the alphabetical copy while it exists.
std::string SursaFF1(const Files& files);
std::string SursaFF2(const Files& files);

}  // namespace fisc
