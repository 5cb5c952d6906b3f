#pragma once
// The borderou: the covering list that goes with the diskette, one row a
// sheet with its marks and totals, the totals of the whole and the
// signature; and its conditions screen LisBord.
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

// The items of LisBord's list, in their order.
inline constexpr std::array<std::string_view, 5> ContinutBorderou = {
    "- toate fisele 1 si 2", "   - numai fisele 1", "       - numai fisele 1 neregularizate",
    "       - numai fisele 1 regularizate", "   - numai fisele 2"};

struct CereriBorderou {
  int Continut = 0;  // the index of ContinutBorderou
  std::string AnFiscal;
  std::string PersoanaContact, TelefonContact;
  std::string Nume, Functie;  // the signer as typed; printed in upper case
};

// Writes Borderou.txt. Sets the listing state's CondListare and the files
// FiltruFise reads and writes; codCurent takes the code of each row.
void ScrieBorderou(Files& files, StareListare& s, std::string& codCurent, const CereriBorderou& c);

class LisBord : public Form {
 public:
  LisBord(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa,
          StareListare& listare);

  Control& Combo2;
  Control& Dnupren;
  Control& Dfunc;
  Control& Dtel;
  Control& DpersC;
  Control& Command1;

  // Opens the screen as the main window's button does: the first item, the
  // signer offered again, the contact boxes empty.
  void Deschide();

  // What was last typed in the contact boxes: a borderou run with the boxes
  // untouched prints these.
  std::string TelefonContact, PersoanaContact;

 private:
  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

}  // namespace fisc
