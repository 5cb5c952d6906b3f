// V of the FF1 screen: the figures of the pay records month by month, the
// tax the table proposes beside them, and the professional expenses.
#include <cmath>

#include "params/Cuantum.h"
#include "platform/Failure.h"
#include "records/Numere.h"
#include "sheets/FisaInLucru.h"
#include "tax/Fisa1F.h"

namespace fisc {

namespace {

std::string Intreg(const Control& c) { return TextDin(Rotunjeste(Valoare(c.Text()))); }

template <std::size_t N>
double SumaRanduri(const std::array<Control*, N>& coloana) {
  double suma = 0;
  for (std::size_t i = 0; i < 13; ++i) suma += Valoare(coloana[i]->Text());
  return suma;
}

}  // namespace

void Fisa1F::LeagaVenituri() {
  for (int i = 0; i < 14; ++i) {
    Camp(VenitN, i).LostFocus = [this, i] { IesireVenit(i); };
    Camp(VenitN, i).KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      int ultima = fisa_.LunaUltima;
      if (i == 12)
        LuPrima.SetFocus();
      else if (i < ultima)
        Camp(VenitN, i + 1).SetFocus();
      else if (i == ultima)
        VenitN[12]->SetFocus();
    };
    Camp(ImpC, i).LostFocus = [this, i] { IesireImpC(i); };
    Camp(ImpC, i).KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      if (i == 12) {
        if (FaraDeduceri())
          Command8.SetFocus();
        else
          Luni.SetFocus();
      } else if (i == fisa_.LunaUltima) {
        ImpC[12]->SetFocus();
      } else if (i < 12) {
        Camp(ImpC, i + 1).SetFocus();
      }
    };
  }
  for (int i = 0; i < 13; ++i) {
    Control& bif = Camp(Bif, i);
    bif.Click = [this, i] {
      Camp(ImpC, i).SetText(Camp(Bif, i).Value() ? Camp(ImpP, i).Text() : "0");
      SumeazaImpC();
    };
    bif.KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      if (i < fisa_.LunaUltima)
        Camp(Bif, i + 1).SetFocus();
      else if (FaraDeduceri())
        Command8.SetFocus();
      else
        ChAc.SetFocus();
    };
  }

  LuPrima.LostFocus = [this] { IesireLuPrima(); };
  LuPrima.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    // Only the domicile mark skips the marks column: a foreign person's
    // sheet walks on down it.
    if (fisa_.FlagDedu == "X")
      Command8.SetFocus();
    else
      Camp(Bif, fisa_.LunaPrima).SetFocus();
  };
  Luni.LostFocus = [this] { IesireLuni(); };
  Luni.KeyPress = [this](int& key) {
    if (key == kKeyEnter) ChAc.SetFocus();
  };
  // The expenses granted are the employer's figure: no check stands on them.
  ChAc.LostFocus = [this] { ChAc.SetText(Intreg(ChAc)); };
  ChAc.KeyPress = [this](int& key) {
    if (key == kKeyEnter) Command8.SetFocus();
  };

  // Two clicks a row: a mark already set is undone first, so every row copies.
  Command12.Click = [this] {
    for (Control* bif : Bif) {
      bif->SetValue(0);
      bif->SetValue(1);
    }
  };
  Command8.Click = [this] { Command4_Click(); };
  Picture1.Click = [this] { p_.launcher.Start("calc.exe", ""); };
}

double Fisa1F::ImpozitPrimaEcran() const {
  short luna = CheckedShort(static_cast<long>(Rotunjeste(Valoare(LuPrima.Text()))));
  return ImpozitPrima(luna, Valoare(VenitN[12]->Text()), impozitar_);
}

void Fisa1F::SumeazaVenitImpP() {
  VenitN[13]->SetText(TextDin(SumaRanduri(VenitN)));
  ImpP[13]->SetText(TextDin(SumaRanduri(ImpP)));
}

void Fisa1F::SumeazaImpC() { ImpC[13]->SetText(TextDin(SumaRanduri(ImpC))); }

void Fisa1F::IesireVenit(int i) {
  Control& venit = Camp(VenitN, i);
  venit.SetText(Intreg(venit));
  if (i < 12)
    Camp(ImpP, i).SetText(TextDin(ImpozitPropusLuna(
        i, Valoare(venit.Text()), Camp(CoefCalc, i).Text(), parametri_, impozitar_)));
  else if (i == 12)
    ImpP[12]->SetText(TextDin(ImpozitPrimaEcran()));
  SumeazaVenitImpP();
}

void Fisa1F::IesireImpC(int i) {
  Control& impozit = Camp(ImpC, i);
  impozit.SetText(Intreg(impozit));
  SumeazaImpC();
}

void Fisa1F::IesireLuPrima() {
  double luna = std::fabs(Rotunjeste(Valoare(LuPrima.Text())));
  LuPrima.SetText(TextDin(luna));
  if (luna > 12) {
    Warn(p_.dialogs, "Luna  > 12");
    ImpP[12]->SetText("0");
    LuPrima.SetFocus();
  } else if (luna == 0) {
    ImpP[12]->SetText("0");
  } else {
    ImpP[12]->SetText(TextDin(ImpozitPrimaEcran()));
  }
  ImpP[13]->SetText(TextDin(SumaRanduri(ImpP)));
}

void Fisa1F::IesireLuni() {
  double luni = std::fabs(Rotunjeste(Valoare(Luni.Text())));
  Luni.SetText(TextDin(luni));
  int nrLuni = LuniCuDeducere(Coeficienti());
  if (nrLuni < luni) {
    p_.dialogs.Box(
        " Numar de luni pentru chelt.profesionale acordate\r\nmai mare decat nr.de luni cu "
        "drept de deducere = " +
            std::to_string(nrLuni) + ".",
        Buttons::Ok, Icon::None, "");
    Luni.SetText(std::to_string(nrLuni));
  }
}

void Fisa1F::Command3_Click() {
  ArataDoar(Fisa1_IV);
  double total = 0;
  for (int i = 0; i < 12; ++i) {
    double impozit = ImpozitPropusLunaNerotunjit(i, Valoare(Camp(VenitN, i).Text()),
                                                 Camp(CoefCalc, i).Text(), parametri_, impozitar_);
    Camp(ImpP, i).SetText(TextDin(impozit));
    total += impozit;
  }
  total += Valoare(ImpP[12]->Text());
  ImpP[13]->SetText(TextDin(total));
  // The expenses are proposed once: a Luni already filled protects both.
  if (!FaraDeduceri() && Valoare(Luni.Text()) == 0) {
    CheltuieliPropuse propuse = PropuneCheltuieli(Coeficienti(), parametri_);
    Luni.SetText(std::to_string(propuse.Luni));
    ChAc.SetText(TextDin(propuse.ChAc));
  }
  Camp(VenitN, fisa_.LunaPrima).SetFocus();
}

}  // namespace fisc
