#include "listings/LisFise2.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "listings/EcranListare.h"
#include "listings/LisFise1.h"
#include "listings/ListaFF2.h"
#include "listings/ScrieFisele.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "sheets/ListaFise.h"
#include "sheets/Stocare.h"

namespace fisc {

namespace {
constexpr std::string_view kAvertizare =
    "NotePad este folosit numai pentru vizualizare. In fereastra Print puteti da OK pentru "
    "listare la imprimanta. Pentru a lista o secventa de pagini deschideti fisierul ListF2.txt "
    "in Microsoft Word si folositi setarile Courier New (9), Top,Bottom=3cm. ";
}  // namespace

LisFise2::LisFise2(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                   FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "LisFise2", "Conditii pentru listare fise 2"),
      Combo1(Add(ControlKind::ComboBox, "Combo1").SetListOnly(true).At(20, 44, 320, 22)),
      Option1_1(
          Add(ControlKind::OptionButton, "Option1", 1).SetCaption("- una").At(360, 30, 120, 22)),
      Option1_0(
          Add(ControlKind::OptionButton, "Option1", 0).SetCaption("- toate").At(360, 58, 120, 22)),
      Dnupren(TextBox(*this, "Dnupren", 0, 200, 130, 300)),
      Dfunc(TextBox(*this, "Dfunc", 0, 200, 160, 300)),
      Command1(Button(*this, "Command1", "Listare", 200, 200, 140)),
      Combo3(Add(ControlKind::ComboBox, "Combo3").SetListOnly(true).At(20, 244, 480, 22)),
      Label20(Label(*this, "Label20", "", 20, 276, 480)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa),
      listare_(listare) {
  SetSize(540, 320);
  Label(*this, "EtCombo1", "Alegeti exemplarul de listat pentru fise fiscale 2", 20, 16, 330);
  Label(*this, "EtNota",
        "Completati numele si prenumele , functia persoanei care semneaza fisele fiscale", 20, 96,
        500);
  Label(*this, "EtDnupren", "Nume si prenume :", 20, 130, 170);
  Label(*this, "EtDfunc", "Functie :", 20, 160, 170);
  for (std::string_view e :
       {"- copie pentru angajat", "- original pentru angajator", "- copie pentru unitatea fiscala"})
    Combo1.AddItem(e);
  Combo3.SetVisible(false);
  Label20.SetVisible(false);

  Combo1.Click = [this] {
    constexpr std::string_view kExemplar[] = {"angajat", "angajator", "unitatea fiscala"};
    int i = Combo1.ListIndex();
    if (i >= 0 && i < 3) listare_.Exemplar = kExemplar[i];
  };

  // The choice works through the focus, not the click: leaving "- una"
  // fills the list once more.
  Option1_1.GotFocus = [this] { UmpleLista(); };
  Option1_1.LostFocus = [this] { UmpleLista(); };
  Option1_0.GotFocus = [this] {
    Command1.SetVisible(true);
    Combo3.SetVisible(false);
    Label20.SetVisible(false);
    listare_.CondListare = "T";
  };
  Option1_0.LostFocus = [this] {
    Combo3.SetVisible(false);
    listare_.CondListare = "T";
  };

  LeagaSemnatarul(Dnupren, Dfunc);
  Dfunc.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    if (Option1_1.Value() == 1)
      Combo3.SetFocus();
    else
      Command1.SetFocus();
  };

  Command1.Click = [this] {
    Warn(p_.dialogs, kAvertizare, "");
    p_.dialogs.Busy(true);
    if (listare_.CondListare == "S") {
      p_.dialogs.Busy(false);
      return;
    }
    listare_.SemnatarFunctie = Dfunc.Text();
    listare_.SemnatarNume = Dnupren.Text();
    ScrieSiListeaza(SursaFF2(p_.files), "");
    p_.dialogs.Busy(false);
  };

  LeagaAlegereaFisei(Combo3, fisa_, listare_,
                     [this](const std::string& cod) { ScrieSiListeaza(SursaFF2(p_.files), cod); });
}

void LisFise2::Deschide() {
  Combo1.SetListIndex(-1);
  Combo1.SetListIndex(0);
  Option1_0.SetValue(1);
  listare_.CondListare = "T";
  Command1.SetVisible(true);
  Combo3.SetVisible(false);
  Label20.SetVisible(false);
  Dnupren.SetText(listare_.SemnatarNume);
  Dfunc.SetText(listare_.SemnatarFunctie);
  Show();
}

void LisFise2::UmpleLista() {
  Command1.SetVisible(false);
  Combo3.SetVisible(true);
  Label20.SetVisible(true);
  Combo3.Clear();
  AdaugaFise(Combo3, p_.files, SursaFF2(p_.files), "--FF2");
  listare_.CondListare = "S";
  Label20.SetCaption("  S-au incarcat " + std::to_string(Combo3.ListCount()) +
                     " fise 2. Alegeti o fisa !");
}

void LisFise2::ScrieSiListeaza(std::string_view sursa, std::string_view cod) {
  ScrieFisele(
      p_, fisa_, listare_, sursa, cod, listare::ListF2, "Listf2.txt",
      [this](LineWriter& out) {
        return ListaFF2(p_.files, out, parametri_, listare_, Dnupren.Text(), Dfunc.Text());
      },
      &ListaFF2::ListF2);
}

}  // namespace fisc
