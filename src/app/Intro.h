#pragma once
// The main window: the hub from which every screen opens. Closing it is the
// only way to end the program.
#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct StareAngajator;
struct FisaInLucru;
struct StareListare;
class FisaI;
class LisBord;
class ListabIV;
class LisFise1;
class LisFise2;
class VerifFis;

class Intro : public Form {
 public:
  Intro(Desktop& desktop, Platforma& platforma, ParametriAn& parametri, int& dataGresita,
        StareAngajator& angajator, FisaInLucru& fisa, StareListare& listare);

  Control& EtAn;
  Control& Command1;
  Control& Command3;
  Control& Command5;
  Control& Command2;
  Control& Command11;
  Control& Tabel5;
  Control& Check1;
  Control& Command9;
  Control& But_salvari;
  Control& b_salv;
  Control& b_rest;
  Control& Command6;
  Control& Command8;
  Control& Command10;
  Control& Command7;
  Control& EtListari;
  Control& EtAsteptati;
  Control& EtData;
  Control& EtNota;
  // Hidden: the sorted list through which the alphabetical copies are made.
  Control& Combo1;

  FisaI* Fisa_I = nullptr;
  LisBord* Borderou = nullptr;
  ListabIV* Centralizator = nullptr;
  LisFise1* ListareF1 = nullptr;
  LisFise2* ListareF2 = nullptr;
  VerifFis* Verif_fis = nullptr;

 private:
  // Clears Check1, which deletes the alphabetical copies of the sheets.
  void GolesteSortare();
  // The date probe of the buttons that read dates; false when it failed.
  bool DataCorecta();

  Platforma& p_;
  ParametriAn& parametri_;
  int& dataGresita_;
  StareAngajator& angajator_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

}  // namespace fisc
