#include "app/Intro.h"

#include "app/Discheta.h"
#include "app/FisaI.h"
#include "app/Schimb.h"
#include "listings/Borderou.h"
#include "listings/Cadru.h"
#include "listings/Centralizator.h"
#include "listings/LisFise1.h"
#include "listings/LisFise2.h"
#include "listings/Randuri.h"
#include "listings/Tabel5.h"
#include "params/Cuantum.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "records/Date.h"
#include "records/Judete.h"
#include "sheets/Angajator.h"
#include "sheets/FisaInLucru.h"
#include "sheets/FisiereSet.h"
#include "sheets/Sortare.h"
#include "verify/Preluare.h"
#include "verify/VerifFis.h"

namespace fisc {

Intro::Intro(Desktop& desktop, Platforma& platforma, ParametriAn& parametri, int& dataGresita,
             StareAngajator& angajator, FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "Intro",
           "Impozitul pe venit (varianta distribuita de Zelvan) - versiunea 2.1 /2002"),
      EtAn(Label(*this, "EtAn", " 2   0   0   2", 290, 4, 200, 36).SetFont(18, true)),
      Command1(Button(*this, "Command1", "Fise fiscale (preluari, modificari)", 150, 48, 300, 44)
                   .SetToolTip("Numai pentru fisiere verificate (cu structura corecta).")),
      Command3(Button(*this, "Command3", "Fisa 1 ", 480, 72, 125, 32)),
      Command5(Button(*this, "Command5", "Fisa 2 ", 615, 72, 125, 32)),
      Command2(Button(*this, "Command2", "Borderou fise fiscale", 480, 110, 260, 32)
                   .SetToolTip("Cu posibilitatea sortarii alfabetice a fiselor fiscale (preluata "
                               "in toate listarile).")),
      Command11(Button(*this, "Command11", "  Tabel centralizator                  lunar", 480, 184,
                       260, 44)),
      Tabel5(Button(*this, "Tabel5", "Tabel fise 1 regularizate", 480, 234, 260, 32)),
      Check1(Add(ControlKind::CheckBox, "Check1")
                 .SetCaption("Sortare")
                 .SetToolTip("Bifati pentru a pregati listarea in ordine alfabetica a angajatilor.")
                 .At(480, 150, 260, 24)),
      Command9(Button(*this, "Command9",
                      "Prelua-  re si         V           E            R            I        "
                      "     F            I            C           A           R           E  "
                      "fisiere   . TXT       sau     . DBF       din        alte      aplic.",
                      40, 48, 72, 330)
                   .SetToolTip("Verificari fisiere preluate din alte aplicatii (Dbase,Fox,Paradox, "
                               "etc.) ")),
      But_salvari(Button(*this, "But_salvari",
                         "Salvare  fisiere text Ff1_aaaa, Ff2_aaaa,  Ded_aaaa si Rep_aaaa      pe "
                         "o discheta pentru unitatea fiscala",
                         150, 100, 300, 60)
                      .SetToolTip("Pentru aprox. 2000 de fise.")),
      b_salv(Button(*this, "b_salv", "Salvare", 150, 170, 145, 32)
                 .SetToolTip("Salvare in subdirector")),
      b_rest(Button(*this, "b_rest", "Restaurare", 305, 170, 145, 32)
                 .SetToolTip("Restaurare din subdirector ")),
      Command6(Button(*this, "Command6", "Alte functii", 150, 212, 300, 32)),
      Command8(Button(*this, "Command8",
                      "         Vizualizare / Actualizare                      IMPOZITAR", 150, 254,
                      300, 44)),
      Command10(Button(*this, "Command10",
                       "Vizualizare / Actualizare  deducere pers. de baza si coef.de deducere", 150,
                       306, 300, 44)),
      Command7(Button(*this, "Command7", "Help", 150, 358, 300, 32)),
      EtListari(Label(*this, "EtListari", "L I S T A R I", 480, 44, 260, 24).SetFont(11, true)),
      EtAsteptati(Label(*this, "EtAsteptati", "Asteptati confirmarea terminarii operatiei !", 20,
                        384, 300, 20)),
      EtData(Label(*this, "EtData",
                   "Obligatoriu setare stil data calendaristica de forma : ZZ/LL/AAAA", 20, 420,
                   720, 20)
                 .SetToolTip("Start/Settings/Control Panel/Regional Settings/English/United "
                             "Kingdom/Date short style : dd/mm/yy")),
      EtNota(Label(*this, "EtNota",
                   "       Programul permite pentru un angajat o singura \"Fisa 1\" si/sau o "
                   "singura \"Fisa 2\".                                 Cand un angajat are mai "
                   "multe contracte de munca la acelasi angajator se impune ca, in lunile din "
                   "afara contractelor, coeficientii totali sa fie nuli.",
                   20, 448, 720, 72)),
      Combo1(Add(ControlKind::ComboBox, "Combo1").SetSorted(true).At(480, 300, 260, 22)),
      p_(platforma),
      parametri_(parametri),
      dataGresita_(dataGresita),
      angajator_(angajator),
      fisa_(fisa),
      listare_(listare) {
  SetSize(760, 540);
  EtAsteptati.SetVisible(false);
  Combo1.SetVisible(false);

  Command1.Click = [this] {
    GolesteSortare();
    if (!DataCorecta()) return;
    Hide();
    FisaI& f = *Fisa_I;
    f.JudP.Clear();
    for (std::string_view j : Judete) f.JudP.AddItem(j);
    angajator_.JudetAngajator.clear();
    f.IncarcaAngajator();
    f.Show();
    if (Trim(angajator_.JudetAngajator).empty())
      f.JudP.SetListIndex(0);
    else
      f.JudP.SetText(angajator_.JudetAngajator);
  };

  Command9.GotFocus = [this] { EtAsteptati.SetVisible(true); };
  Command9.LostFocus = [this] { EtAsteptati.SetVisible(false); };
  Command9.Click = [this] {
    GolesteSortare();
    if (!DataCorecta()) return;
    // The verification learns the year from this file.
    ScrieAnulConvertorului(p_.files, parametri_.AnFiscal);
    Verif_fis->Show();
    Command1.SetFocus();
  };

  Command6.Click = [this] {
    GolesteSortare();
    DataCorecta();
  };
  Command8.Click = [this] { GolesteSortare(); };
  Command10.Click = [this] {
    GolesteSortare();
    IncarcaCuantum(p_.files, parametri_);
  };
  Command7.Click = [this] {
    GolesteSortare();
    p_.launcher.Start("help", "help.txt");
    if (AskYesNo(p_.dialogs, "Doriti listarea fisierului help.txt ?", ""))
      p_.launcher.Start("notepad", "help.txt");
  };

  Check1.Click = [this] { PregatesteSortare(p_.files, Combo1, Check1.Value() == 1); };

  // The listings leave Check1 as it is: they follow the alphabetical copies.
  Command2.Click = [this] { Borderou->Deschide(); };
  Command11.Click = [this] { Centralizator->Deschide(); };
  // A screen already on view keeps what was chosen on it.
  Command3.Click = [this] {
    if (ListareF1->Visible())
      ListareF1->Show();
    else
      ListareF1->Deschide();
  };
  Command5.Click = [this] {
    if (ListareF2->Visible())
      ListareF2->Show();
    else
      ListareF2->Deschide();
  };
  Tabel5.Click = [this] {
    Warn(p_.dialogs, AvertizareVizualizare, "");
    StareListare& l = listare_;
    if (ScrieTabel5(p_.files, Combo1, l, fisa_.CodCurent, parametri_.AnFiscal))
      ArataSiListeaza(p_.launcher, p_.files, p_.printer, l.LiniePagina, "tab5.txt", ListeazaTabel);
  };

  But_salvari.Click = [this] {
    GolesteSortare();
    SalveazaPeDischeta(p_, parametri_.AnFiscal);
    Command1.SetFocus();
  };

  Closing = [this](bool&) {
    SchimbLaSfarsit(p_.files, parametri_.AnFiscal);
    Owner().EndProgram();
  };
}

void Intro::GolesteSortare() { Check1.SetValue(0); }

bool Intro::DataCorecta() {
  dataGresita_ = VerificaDataRegionala(p_.clock, p_.dialogs);
  return dataGresita_ != 1;
}

}  // namespace fisc
