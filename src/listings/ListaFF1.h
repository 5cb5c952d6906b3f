#pragma once
// The FF1 sheet as the listing prints it: the official form, 80 characters
// wide, on a grid of 65 lines a page, with the employee's code heading the
// pages after the first.
#include <optional>
#include <string>
#include <string_view>

#include "listings/Cadru.h"
#include "listings/IndexDeduceri.h"
#include "sheets/RecordDed.h"

namespace fisc {

class Files;
class LineWriter;
struct FisaFF1;
struct ParametriAn;
struct FisaInLucru;
struct StareListare;

class ListaFF1 {
 public:
  // Writes into `out`, the listing file in hand. The signer's texts are those
  // of the listing screen (Dnupren, Dfunc) as they stand.
  ListaFF1(const Files& files, LineWriter& out, const ParametriAn& parametri, FisaInLucru& fisa,
           StareListare& listare, std::string_view semnatarNume, std::string_view semnatarFunctie);

  // One sheet from its FF1 record, with its dependants from Deduceri.txt.
  // CodCurent must hold the record's code.
  void ListF1(std::string_view linie);

  // The sheet in hand on the FF1 screen, before it is saved: its own first
  // line, and neither page headers nor padding.
  void Imagine(FisaFF1& fisa, const TabelDed& ded, short nrPersoane);

 private:
  // From line 2 on; the dependants come from Deduceri.txt when `ded` is null.
  void ScrieFisa(FisaFF1& f, const TabelDed* ded, short nrPersoane);
  // A line of the sheet, counted by ipagina.
  void Linie(std::string_view text);
  // A label and one or two amounts right-aligned in cells of la and lb
  // characters; an amount wider than its cell is failure 5.
  void Rand(std::string_view eticheta, std::string_view a, int la, std::string_view b = {},
            int lb = 0);
  // A line that isn't counted.
  void Scrie(std::string_view text);
  // Writes the sheet in hand to the file: one write a sheet, not one a line.
  void Goleste();
  // Counts one line; the lines that open pages 2 to 8 name the employee.
  void ipagina();
  void Dependenti(const TabelDed& ded, short nrPersoane);
  void SectiuneaV(FisaFF1& f);
  void SectiuneaVI(FisaFF1& f);

  const Files& files_;
  LineWriter& out_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  StareListare& listare_;
  std::string nume_, functie_;
  short LiniiPagina = 65;
  bool paginat_ = true;
  std::optional<BlocAngajator> angajator_;
  IndexDeduceri deduceri_;
  std::string text_;
};

}  // namespace fisc
