#include "sheets/FisaII.h"

#include "platform/Layout.h"

namespace fisc {

FisaII::FisaII(Desktop& desktop)
    : Form(desktop, "Fisa_II", "Date de identificare angajat"),
      AnFisc(Label(*this, "AnFisc", "", 560, 10, 80)),
      Option1(Add(ControlKind::OptionButton, "Option1").SetCaption("Fise noi").At(20, 44, 140, 22)),
      Option2(Add(ControlKind::OptionButton, "Option2")
                  .SetCaption("Fise incarcate")
                  .At(170, 44, 160, 22)),
      JudS(Add(ControlKind::ComboBox, "JudS").SetListOnly(true).At(120, 140, 200, 22)),
      Frame1(
          Add(ControlKind::Frame, "Frame1").SetCaption("Situatie angajat").At(20, 300, 660, 160)) {
  SetSize(700, 480);
  Label(*this, "Label1", "II. Date de identificare angajat", 20, 10, 300);
  Label(*this, "Label2", "pentru anul fiscal", 400, 10, 150);
  Label(*this, "Label3", "Judet", 20, 140, 90);
  Frame1.SetVisible(false);
  Closing = [this](bool&) {
    if (Intro) Intro->Show();
  };
}

}  // namespace fisc
