#pragma once
// The monthly centraliser: the net income and the tax withheld of one month
// for every FF1 or every FF2 sheet, with their totals; and its conditions
// screen ListabIV.
#include <array>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
struct StareListare;
struct StareListare;

inline constexpr std::array<std::string_view, 12> LuniCentralizator = {
    "IANUARIE", "FEBRUARIE", "MARTIE",     "APRILIE",   "MAI",       "IUNIE",
    "IULIE",    "AUGUST",    "SEPTEMBRIE", "OCTOMBRIE", "NOIEMBRIE", "DECEMBRIE"};

struct CereriCentralizator {
  int Luna = 0;  // 0 to 11
  bool FF1 = true;
  std::string AnFiscal;
};

// Writes Listab4.txt from the FF1 or FF2 source; the listing state's
// FisierDeListat names it, and codCurent takes the code of each row.
void ScrieCentralizator(Files& files, StareListare& s, std::string& codCurent,
                        const CereriCentralizator& c);

class ListabIV : public Form {
 public:
  ListabIV(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa,
           StareListare& listare);

  Control& Combo2;
  Control& Option1;
  Control& Option2;
  Control& Command1;

  // Opens the screen as the main window's button does: January first.
  void Deschide();

 private:
  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

}  // namespace fisc
