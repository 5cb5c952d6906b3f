#pragma once
// The program as one object: its shared state, its screens and the start of
// a run. The Qt front end and the replay driver each make one and act on its
// desktop.
#include <memory>

#include "app/FisaI.h"
#include "app/Intro.h"
#include "app/Stare.h"
#include "listings/Borderou.h"
#include "listings/Centralizator.h"
#include "listings/LisFise1.h"
#include "listings/LisFise2.h"
#include "platform/Desktop.h"
#include "platform/InstantaUnica.h"
#include "platform/Platforma.h"
#include "sheets/FisaII.h"
#include "sheets/FrmGasit.h"
#include "tax/Fisa1F.h"
#include "tax/Fisa2.h"
#include "verify/VerifFis.h"

namespace fisc {

class Aplicatie {
 public:
  explicit Aplicatie(Platforma& platforma);

  // The start of the program, up to the main window on the screen. False
  // when another instance works in the same directory: the program ends at
  // once without a message.
  bool Porneste();

  Desktop& Ecran() { return desktop_; }
  Stare& StareComuna() { return stare_; }
  Platforma& Servicii() { return p_; }

 private:
  Platforma& p_;
  Desktop desktop_;
  Stare stare_;
  std::unique_ptr<InstantaUnica> instanta_;

 public:
  Intro intro;
  FisaI fisaI;
  FisaII fisaII;
  Fisa1F fisa1F{desktop_, p_, stare_.Parametri, stare_.Impozitar, stare_.Fisa, stare_.Listare};
  Fisa2 fisa2{desktop_, p_, stare_.Parametri, stare_.Impozitar, stare_.Fisa, stare_.Listare};
  FrmGasit frmGasit{desktop_, p_, stare_.Parametri, stare_.Fisa};
  LisBord lisBord{desktop_, p_, stare_.Parametri, stare_.Fisa, stare_.Listare};
  ListabIV listabIV{desktop_, p_, stare_.Parametri, stare_.Fisa, stare_.Listare};
  LisFise1 lisFise1{desktop_, p_, stare_.Parametri, stare_.Fisa, stare_.Listare};
  LisFise2 lisFise2{desktop_, p_, stare_.Parametri, stare_.Fisa, stare_.Listare};
  VerifFis verifFis{desktop_, p_, stare_.Parametri, stare_.Impozitar, stare_.Verificare};
};

}  // namespace fisc
