// VI to VIII of the FF1 screen: the regularisation, computed afresh each time
// from the screen, the income with final taxation and the exempt income, and
// the end of the sheet.
#include "params/Cuantum.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/FisaII.h"
#include "sheets/FisaInLucru.h"
#include "tax/Fisa1F.h"

namespace fisc {

namespace {

constexpr std::string_view kFaraMarcaj =
    "  Fisa fiscala nu are marcajul 'X' pentru regularizare,\r\n"
    "desi conditiile sunt indeplinite.\r\n"
    "  Doriti sa puneti acum marcajul 'X' ?";

constexpr std::string_view kMarcajAnulat =
    "Fisa fiscala are marcajul 'X' pentru regularizare, desi conditiile nu sunt indeplinite "
    "(este persoana straina sau este persoana romana fara domiciliu in Romania sau persoana are "
    "alte surse de venit sau persoana are coeficienti de deducere nuli). Marcajul 'X'va fi "
    "anulat.";

}  // namespace

void Fisa1F::LeagaRegularizare() {
  for (int i = 0; i < 13; ++i) {
    Control& c = Camp(Reg, i);
    c.LostFocus = [this, i] {
      Control& camp = Camp(Reg, i);
      camp.SetText(TextDin(Rotunjeste(Valoare(camp.Text()))));
      if (i == 10) Reg[11]->SetText(TextDin(ImpozitFinal(Valoare(camp.Text()), parametri_)));
    };
    c.KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      // Reg(11) fills itself from Reg(10): Enter steps over it.
      if (i == 9) Reg[10]->SetFocus();
      if (i == 10 || i == 11) Reg[12]->SetFocus();
      if (i == 12) Command5.SetFocus();
    };
  }
  Command5.Click = [this] { Inchide(); };
}

void Fisa1F::Command4_Click() {
  FisaInLucru& f = fisa_;
  const ParametriAn& p = parametri_;
  ArataDoar(Fisa1_V);
  Command10.SetEnabled(true);
  // Without the year's deduction nothing can be tested.
  if (p.DedLuna[12] == 0) return;

  CoeficientiLuni coef = Coeficienti();
  int luniDeducere = LuniCuDeducere(coef);
  if (!FaraDeduceri()) {
    if (Valoare(Luni.Text()) == 0)
      Warn(p_.dialogs, "Nu ati introdus 'Nr.de luni pt.care s-au acordat chelt.profesionale'.");
    else if (luniDeducere < Valoare(Luni.Text()))
      Luni.SetText(std::to_string(luniDeducere));
  }

  SituatieAngajat situatie{f.DataAngajarii, f.DataIncetarii, Fisa_II->NumeS.Text(),
                           f.FlagAlteS,     f.FlagDedu,      f.CodCurent};
  bool neindeplinit = ConditiiNeindeplinite(situatie, coef, p);
  if (NormalizeazaMarca(f.FlagReg).empty() && !neindeplinit &&
      AskYesNo(p_.dialogs, kFaraMarcaj, ""))
    f.FlagReg.assign(1, 'X');
  if (f.FlagReg == "X" && neindeplinit) {
    p_.dialogs.Box(kMarcajAnulat, Buttons::Ok, Icon::None, "");
    f.FlagReg.clear();
  }

  if (f.FlagReg == "X") {
    DateRegularizare date;
    date.VenitNet = Valoare(VenitN[13]->Text());
    date.ChAc = Valoare(ChAc.Text());
    date.Luni = Valoare(Luni.Text());
    date.ImpCTotal = Valoare(ImpC[13]->Text());
    date.CoefCalc = coef;
    Regularizare r = CalculeazaRegularizare(date, p, impozitar_);
    if (r.Luni != date.Luni) Luni.SetText(TextDin(r.Luni));
    for (std::size_t i = 0; i < 10; ++i) Reg[i]->SetText(TextDin(r.Reg[i]));
  } else {
    for (std::size_t i = 0; i < 10; ++i) Reg[i]->SetText("");
  }
  Reg[10]->SetFocus();
}

}  // namespace fisc
