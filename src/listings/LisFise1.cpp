#include "listings/LisFise1.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "listings/EcranListare.h"
#include "listings/ListaFF1.h"
#include "listings/ScrieFisele.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "sheets/ListaFise.h"
#include "sheets/Stocare.h"

namespace fisc {

namespace {

constexpr std::string_view kAvertizare =
    "NotePad este folosit numai pentru vizualizare. In fereastra Print puteti da OK pentru "
    "listare la imprimanta. Pentru a lista o secventa de pagini deschideti fisierul ListF1.txt "
    "in Microsoft Word si folositi setarile Courier New (9), Top,Bottom=3cm. ";

// The entries keep blanks behind their text, so the text of the list never
// equals "- o fisa": the Enter of Dfunc relies on that.
std::string Completat(std::string_view text) {
  std::string s(text);
  s.resize(30, ' ');
  return s;
}

}  // namespace

std::string_view CodulLiniei(std::string_view linie) {
  std::size_t virgula = linie.find(',');
  if (virgula == std::string_view::npos) Fail(err::InvalidCall);
  return linie.substr(0, virgula);
}

LisFise1::LisFise1(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                   FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "LisFise1", "Conditii pentru listare fise 1"),
      Combo1(Add(ControlKind::ComboBox, "Combo1").SetListOnly(true).At(200, 20, 300, 22)),
      Combo2(Add(ControlKind::ComboBox, "Combo2").SetListOnly(true).At(200, 56, 300, 22)),
      Dnupren(TextBox(*this, "Dnupren", 0, 200, 110, 300)),
      Dfunc(TextBox(*this, "Dfunc", 0, 200, 140, 300)),
      Command1(Button(*this, "Command1", "Listare", 200, 186, 140)),
      Combo3(Add(ControlKind::ComboBox, "Combo3").SetListOnly(true).At(20, 230, 480, 22)),
      Label20(Label(*this, "Label20", "", 20, 262, 480)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa),
      listare_(listare) {
  SetSize(540, 300);
  Label(*this, "EtCombo1", "Exemplar pentru :", 20, 20, 170);
  Label(*this, "EtCombo2", "Fise 1 de listat", 20, 56, 170);
  Label(*this, "EtDnupren", "Nume si prenume :", 20, 110, 170);
  Label(*this, "EtDfunc", "Functie :", 20, 140, 170);
  for (std::string_view e :
       {"- copie pentru angajat", "- original pentru angajator", "- copie pentru unitatea fiscala"})
    Combo1.AddItem(e);
  for (std::string_view e : {"- toate", "- cele neregularizate", "- cele regularizate", "- o fisa"})
    Combo2.AddItem(Completat(e));
  Combo3.SetVisible(false);
  Label20.SetVisible(false);

  Combo1.Click = [this] {
    constexpr std::string_view kExemplar[] = {"angajat", "angajator", "unitatea fiscala"};
    int i = Combo1.ListIndex();
    if (i >= 0 && i < 3) listare_.Exemplar = kExemplar[i];
  };

  Combo2.Click = [this] {
    if (Combo2.ListIndex() != 3) {
      Combo3.SetVisible(false);
      Label20.SetVisible(false);
      Command1.SetVisible(true);
      return;
    }
    Command1.SetVisible(false);
    Combo3.SetVisible(true);
    Label20.SetVisible(true);
    Combo3.Clear();
    AdaugaFise(Combo3, p_.files, SursaFF1(p_.files), "--FF1");
    Label20.SetCaption("  S-au incarcat " + std::to_string(Combo3.ListCount()) +
                       " fise 1. Alegeti o fisa !");
  };

  LeagaSemnatarul(Dnupren, Dfunc);
  Dfunc.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    // Never equal, because of the blanks behind the entries: with "- o fisa"
    // chosen the hidden button refuses the focus, failure 5.
    if (Combo2.Text() == "- o fisa")
      Combo3.SetFocus();
    else
      Command1.SetFocus();
  };

  Command1.Click = [this] {
    Warn(p_.dialogs, kAvertizare, "");
    p_.dialogs.Busy(true);
    StareListare& l = listare_;
    std::string sursa = SursaFF1(p_.files);
    switch (Combo2.ListIndex()) {
      case 0:
        l.CondListare = "T";
        l.FisierDeListat = sursa;
        break;
      case 1:
      case 2:
        l.CondListare = Combo2.ListIndex() == 1 ? "N" : "R";
        l.FisierDeListat = Combo2.ListIndex() == 1 ? listare::Ff1N : listare::Ff1R;
        l.FisierSursa = sursa;
        FiltruFise(p_.files, l, fisa_.CodCurent);
        break;
      default: p_.dialogs.Busy(false); return;
    }
    ScrieSiListeaza(l.FisierDeListat, "");
    l.SemnatarFunctie = Dfunc.Text();
    l.SemnatarNume = Dnupren.Text();
    p_.dialogs.Busy(false);
  };

  LeagaAlegereaFisei(Combo3, fisa_, listare_,
                     [this](const std::string& cod) { ScrieSiListeaza(SursaFF1(p_.files), cod); });
}

void LisFise1::Deschide() {
  // A fresh screen: both lists come to their first entry, each with its click.
  Combo1.SetListIndex(-1);
  Combo1.SetListIndex(0);
  Combo2.SetListIndex(-1);
  Combo2.SetListIndex(0);
  Combo3.SetVisible(false);
  Label20.SetVisible(false);
  Dnupren.SetText(listare_.SemnatarNume);
  Dfunc.SetText(listare_.SemnatarFunctie);
  Show();
}

void LisFise1::ScrieSiListeaza(std::string_view sursa, std::string_view cod) {
  ScrieFisele(
      p_, fisa_, listare_, sursa, cod, listare::ListF1, "Listf1.txt",
      [this](LineWriter& out) {
        return ListaFF1(p_.files, out, parametri_, fisa_, listare_, Dnupren.Text(), Dfunc.Text());
      },
      &ListaFF1::ListF1);
}

}  // namespace fisc
