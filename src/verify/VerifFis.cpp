#include "verify/VerifFis.h"

#include "params/Cuantum.h"
#include "platform/Layout.h"
#include "verify/Preluare.h"

namespace fisc {

namespace {

constexpr std::string_view kAtentie =
    "   Optiunile : 'Preluare fisiere de pe discheta' si 'Extensie fisiere DBF'\r\n"
    "sterg fisierele TXT existente in directorul aplicatiei.\r\n"
    "   Fisierele de verificat, daca nu sunt preluate de pe discheta,\r\n"
    "trebuiesc copiate in directorul aplicatiei inainte de intrarea in \r\n"
    "aplicatie. Pentru fisierele DBF, aplicatia face o verificare \r\n"
    "prealabila a structurii DBF si anunta erorile, daca este cazul. \r\n"
    "Cand nu sunt erori de structura, se face conversia DBF -> TXT  \r\n"
    "si se continua verificarile pentru fisierele text.";

constexpr std::string_view kFerr = "ferr.txt";

Control& Optiune(Form& f, std::string_view nume, int index, std::string_view text, Control& cadru,
                 int y) {
  return f.Add(ControlKind::OptionButton, std::string(nume), index)
      .SetCaption(text)
      .In(cadru)
      .At(14, y, 220, 22);
}

}  // namespace

VerifFis::VerifFis(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                   const TabelImpozit& tabel, StareVerificare& stare)
    : Form(desktop, "Verif_fis", "Verificare fisiere din alte aplicatii"),
      Frame1(
          Add(ControlKind::Frame, "Frame1").SetCaption("Extensie fisiere :").At(20, 16, 250, 90)),
      Option1{&Optiune(*this, "Option1", 0, ".DBF", Frame1, 26),
              &Optiune(*this, "Option1", 1, ".TXT", Frame1, 54)},
      Frame2(
          Add(ControlKind::Frame, "Frame2").SetCaption("Preluare fisiere :").At(290, 16, 250, 90)),
      Option2{&Optiune(*this, "Option2", 0, "din directorul de lucru", Frame2, 26),
              &Optiune(*this, "Option2", 1, "de pe discheta", Frame2, 54)},
      Combo1(Add(ControlKind::ComboBox, "Combo1").SetSorted(true).At(20, 200, 200, 22)),
      Command1(Button(*this, "Command1", "VERIFICARE", 20, 124, 160, 36)),
      Command2(Button(*this, "Command2", "Lista erori", 200, 124, 160, 36)),
      Command3(Button(*this, "Command3", "Atentie !", 380, 124, 160, 36)),
      Label1(Label(*this, "Label1", "  Asteptati !", 20, 172, 200)),
      p_(platforma),
      parametri_(parametri),
      tabel_(tabel),
      v_(stare) {
  SetSize(560, 210);
  Combo1.SetVisible(false);
  Initializeaza();

  Command1.GotFocus = [this] { Label1.SetVisible(true); };
  Command2.GotFocus = [this] { Label1.SetVisible(true); };
  Command1.Click = [this] { Verificare(); };
  Command2.Click = [this] { ListaErori(); };
  Command3.Click = [this] {
    p_.dialogs.Box(kAtentie, Buttons::Ok, Icon::Information,
                   "Atentie la selectarea optiunilor de verificare.");
  };
  // Closing unloads the screen: the next opening starts afresh.
  Closing = [this](bool&) { Initializeaza(); };
}

void VerifFis::Initializeaza() {
  Option1[1]->SetValue(1);
  Option2[0]->SetValue(1);
  Combo1.Clear();
  Command1.SetEnabled(true);
  Command2.SetEnabled(false);
  Label1.SetVisible(false);
  rezultat_.reset();
}

void VerifFis::Verificare() {
  p_.dialogs.Busy(true);
  bool dbf = Option1[0]->Value() == 1;
  bool discheta = Option2[1]->Value() == 1;
  if ((discheta || dbf) &&
      !AskYesNo(p_.dialogs,
                "Se sterg fisierele TXT existente in \r\ndirectorul aplicatiei. Continuati ? ",
                "")) {
    v_.VerifAbandonata = 1;
    p_.dialogs.Busy(false);
    return;
  }
  v_.VerifAbandonata = 0;
  p_.files.DeleteIfExists(kFerr);
  const std::string& an = parametri_.AnFiscal;
  if (dbf && !discheta)
    tr_dbftxt(p_, an, v_);
  else if (dbf)
    copy_dbf_disc(p_, an, v_);
  else if (discheta)
    copy_txt_disc(p_, an, v_);
  // Text files from the working directory are verified as they lie.
  Label1.SetVisible(false);
  p_.dialogs.Busy(false);
  if (v_.VerifAbandonata == 0) {
    Command1.SetEnabled(false);
    Command2.SetEnabled(true);
  }
}

void VerifFis::ListaErori() {
  if (p_.files.Exists(kFerr) && v_.VerifAbandonata == 0 && p_.files.Length(kFerr) > 0) {
    // The converter found the DBF files malformed: the clerk reads why.
    p_.launcher.Start("notepad", kFerr);
    v_.VerifAbandonata = 1;
  }
  if (v_.VerifAbandonata == 0) {
    p_.dialogs.Busy(true);
    rezultat_ = but_verif(p_.files, parametri_, tabel_);
    if (rezultat_->ExistaErori)
      p_.launcher.Start("notepad", "erori.txt");
    else
      p_.dialogs.Box(rezultat_->Mesaj, Buttons::Ok, Icon::None, "");
    p_.dialogs.Busy(false);
  }
  Label1.SetVisible(false);
  Command2.SetEnabled(false);
  Command1.SetEnabled(true);
}

}  // namespace fisc
