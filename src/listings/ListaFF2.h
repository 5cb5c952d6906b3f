#pragma once
// The FF2 sheet as the listing prints it: one page of the 65-line grid, no
// page headers.
#include <optional>
#include <string>
#include <string_view>

#include "listings/Cadru.h"

namespace fisc {

class Files;
class LineWriter;
struct FisaFF2;
struct ParametriAn;
struct StareListare;

class ListaFF2 {
 public:
  // Writes into `out`, the listing file in hand, with the signer's texts of
  // the listing screen as they stand.
  ListaFF2(const Files& files, LineWriter& out, const ParametriAn& parametri, StareListare& listare,
           std::string_view semnatarNume, std::string_view semnatarFunctie);

  // One sheet from its FF2 record.
  void ListF2(std::string_view linie);

  // The sheet in hand on the FF2 screen: its own first line, no padding.
  void Imagine(FisaFF2& fisa);

 private:
  void ScrieFisa(FisaFF2& f);
  void Linie(std::string_view text);

  const Files& files_;
  LineWriter& out_;
  const ParametriAn& parametri_;
  StareListare& listare_;
  std::string nume_, functie_;
  short LiniiPagina = 65;
  std::optional<BlocAngajator> angajator_;
};

}  // namespace fisc
