// IV.C of the FF1 screen: the dependants, one at a time. Every change goes to
// the table Ded as the focus leaves a field; the move buttons check the
// person first.
#include <cstdio>

#include "params/Cuantum.h"
#include "records/CititorCampuri.h"
#include "records/CoduriFiscale.h"
#include "records/Numere.h"
#include "sheets/FisaInLucru.h"
#include "tax/Fisa1F.h"

namespace fisc {

namespace {

std::string_view Marca(const Control& c) { return c.Value() ? "X" : ""; }

bool AreCod(const Control& codI) { return Valoare(codI.Text()) != 0; }

// A difference of coefficients taken through single precision and written
// with its seven digits, so that a sum like 1.5 stays 1.5.
std::string TextSimplu(double valoare) {
  float simplu = static_cast<float>(valoare);
  if (simplu == 0) return "0";
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", static_cast<double>(simplu));
  return PunctZecimal(text);
}

}  // namespace

void Fisa1F::LeagaPersoane() {
  CodI.GotFocus = [this] { IntrareCodI(); };
  CodI.LostFocus = [this] { IesireCodI(); };
  CodI.KeyPress = [this](int& key) {
    if (key == kKeyEnter) NumeI.SetFocus();
  };

  int coloanaNume = ded::NumeI;
  for (Control* c : {&NumeI, &PrenI}) {
    c->GotFocus = [this] {
      if (!AreCod(CodI)) Warn(p_.dialogs, "Nu ati completat codul", " ");
    };
    c->LostFocus = [this, c, coloanaNume] {
      c->SetText(Majuscule(c->Text()));
      if (AreCod(CodI)) fisa_.Ded(fisa_.PersoanaCurenta, coloanaNume) = c->Text();
    };
    ++coloanaNume;
  }
  NumeI.KeyPress = [this](int& key) {
    if (key == kKeyEnter) PrenI.SetFocus();
  };
  PrenI.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    if (Sotie.Enabled())
      Sotie.SetFocus();
    else
      Command7.SetFocus();
  };

  Control* marci[] = {&Sotie, &Copil, &Alta, &inv1, &inv2};
  for (int k = 0; k < 5; ++k) {
    Control* c = marci[k];
    bool invaliditate = k >= 3;
    int coloana = ded::Sotie + k;
    c->GotFocus = [this, invaliditate] {
      if (!AreCod(CodI)) Warn(p_.dialogs, "Nu ati completat codul persoanei.", " ");
      if (invaliditate && !Sotie.Value() && !Copil.Value() && !Alta.Value())
        Warn(p_.dialogs, "Nu ati completat calitatea persoanei", " ");
    };
    c->LostFocus = [this, c, coloana, invaliditate] {
      if (!AreCod(CodI)) return;
      FisaInLucru& f = fisa_;
      if (invaliditate) {
        if (Sotie.Value() || Copil.Value() || Alta.Value())
          f.Ded(f.PersoanaCurenta, coloana) = Marca(*c);
        return;
      }
      if (c == &Copil) {
        // A child's mark follows the age: over 18 he counts as another person.
        int varsta = Varsta(CodI.Text(), parametri_.AnFiscal);
        if (Copil.Value()) {
          if (varsta > 18) {
            Copil.SetValue(0);
            Alta.SetValue(1);
          } else if (varsta == 18) {
            Alta.SetValue(1);
          } else {
            Alta.SetValue(0);
          }
        }
        f.Ded(f.PersoanaCurenta, ded::Copil) = Marca(Copil);
        f.Ded(f.PersoanaCurenta, ded::Alta) = Marca(Alta);
        return;
      }
      f.Ded(f.PersoanaCurenta, coloana) = Marca(*c);
    };
  }

  for (int i = 0; i < 12; ++i) {
    Control& c = *CoefI[static_cast<std::size_t>(i)];
    c.GotFocus = [this] {
      if (!AreCod(CodI)) Warn(p_.dialogs, "Nu ati completat codul.", " ");
      if (!Sotie.Value() && !Copil.Value() && !Alta.Value())
        Warn(p_.dialogs, "Nu ati completat calitatea persoanei.", " ");
    };
    c.LostFocus = [this, i] { IesireCoefI(i); };
    c.KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      if (i < fisa_.LunaUltima)
        Camp(CoefI, i + 1).SetFocus();
      else
        Ok_PersU.SetFocus();
    };
  }

  Ok_persA.Click = [this] { Ok_persA_Click(); };
  Ok_PersU.Click = [this] { Ok_PersU_Click(); };
  Ok_PersU.KeyPress = [this](int&) { CodI.SetFocus(); };
  Ok_StergP.Click = [this] { Ok_StergP_Click(); };
  Command7.Click = [this] { Command3_Click(); };
}

void Fisa1F::ArataVarsta() {
  if (!AreCod(CodI)) {
    Label34.SetCaption("");
    return;
  }
  Label34.SetCaption("(Varsta = " + std::to_string(Varsta(CodI.Text(), parametri_.AnFiscal)) +
                     " ani)");
}

void Fisa1F::IntrareCodI() {
  const FisaInLucru& f = fisa_;
  modPers_ = f.NrPersoane < f.PersoanaCurenta ? "D" : "N";
  MarciPersoana(modPers_ == "D");
  StingeConditii();
}

void Fisa1F::IesireCodI() {
  FisaInLucru& f = fisa_;
  CodI.SetText(TextDin(Valoare(CodI.Text())));
  if (!AreCod(CodI)) return;
  const std::string& cod = CodI.Text();

  int verdict = 0;
  if (!VerificaCNP(cod)) verdict = 1;
  if (cod == f.CodCurent) verdict = 2;
  for (int rand = 1; rand <= f.NrPersoane; ++rand) {
    if (modPers_ == "N" && rand == f.PersoanaCurenta) continue;
    if (f.Ded(rand, ded::CodI) == cod) verdict = 3;
  }
  if (verdict == 1) Warn(p_.dialogs, "CNP incorect.");
  if (verdict == 2) Warn(p_.dialogs, "Cod egal cu CNP angajat.");
  if (verdict == 3) Warn(p_.dialogs, "CNP deja incarcat.");
  if (verdict == 1 || verdict == 3) {
    CodI.SetFocus();
    return;
  }

  f.Ded(f.PersoanaCurenta, ded::CodI) = cod;
  ArataVarsta();
  if (modPers_ != "D") return;
  // The person exists from the first valid code on.
  f.NrPersoane = CheckedShort(f.NrPersoane + 1);
  ArataNrPersoane();
  Ok_StergP.SetEnabled(true);
  int varsta = Varsta(cod, parametri_.AnFiscal);
  if (varsta <= 18) Copil.SetValue(1);
  if (varsta >= 18) Alta.SetValue(1);
  f.Ded(f.PersoanaCurenta, ded::Copil) = Marca(Copil);
  f.Ded(f.PersoanaCurenta, ded::Alta) = Marca(Alta);
}

void Fisa1F::IesireCoefI(int i) {
  FisaInLucru& f = fisa_;
  const ParametriAn& p = parametri_;
  Control& c = Camp(CoefI, i);
  c.SetText(TextZecimal(c.Text()));
  if (!AreCod(CodI) || (!Sotie.Value() && !Copil.Value() && !Alta.Value())) return;

  Nastere nastere = NastereDinCod(CodI.Text());
  bool faraPropriu = ValZecimal(Camp(CoefProp, i).Text()) == 0;
  if (faraPropriu) c.SetText("0");
  if (!CoefIPermis(ValZecimal(c.Text()))) {
    Warn(p_.dialogs, "Coeficient gresit", " ");
    c.SetText("");
  }
  int rand = f.PersoanaCurenta;
  inv1.SetValue(0);
  inv2.SetValue(0);
  f.Ded(rand, ded::Inv1).clear();
  f.Ded(rand, ded::Inv2).clear();
  if (faraPropriu || (nastere.An == Valoare(p.AnFiscal) && i < nastere.Luna - 1)) c.SetText("0");

  // The invalidity follows from the number, whatever the quality marked.
  double plus1 = ValZecimal(p.CoefInv1), plus2 = ValZecimal(p.CoefInv2);
  for (int j = f.LunaPrima; j <= f.LunaUltima; ++j) {
    double coef = ValZecimal(Camp(CoefI, j).Text());
    for (const auto* tabel : {&p.CoefSotie, &p.CoefCopil, &p.CoefAlta}) {
      double baza = ValZecimal((*tabel)[static_cast<std::size_t>(j)]);
      if (coef == baza + plus1) {
        inv1.SetValue(1);
        f.Ded(rand, ded::Inv1) = "X";
      }
      if (coef == baza + plus2) {
        inv2.SetValue(1);
        f.Ded(rand, ded::Inv2) = "X";
      }
    }
  }
  f.Ded(rand, ded::CoefI + i) = TextZecimal(c.Text());
  Camp(CoefCalc, i).SetText(CoefTotal(i));
}

bool Fisa1F::VerificaPersoana() {
  if (!AreCod(CodI)) return true;
  int eroare = 0;
  if (!Sotie.Value() && !Copil.Value() && !Alta.Value()) eroare = 1;
  double suma = 0;
  for (Control* c : CoefI) suma += ValZecimal(c->Text());
  if (suma == 0) eroare = 2;
  if (eroare == 1) Warn(p_.dialogs, "Nu ati dat calitatea persoanei");
  if (eroare == 2) Warn(p_.dialogs, "Nu ati completat coeficientii de deducere.");
  return eroare == 0;
}

void Fisa1F::Ok_persA_Click() {
  FisaInLucru& f = fisa_;
  if (!VerificaPersoana()) return;
  if (f.NrPersoane != 0) MarciPersoana(false);
  StingeConditii();
  if (f.PersoanaCurenta > 1) f.PersoanaCurenta = CheckedShort(f.PersoanaCurenta - 1);
  ArataPersoana();
  Text2.SetText(std::to_string(f.PersoanaCurenta));
  ArataVarsta();
}

void Fisa1F::Ok_PersU_Click() {
  FisaInLucru& f = fisa_;
  if (!VerificaPersoana()) return;
  if (f.PersoanaCurenta >= f.NrPersoane) {
    // An untouched empty row is not skipped; the table ends at row 20.
    if (AreCod(CodI)) {
      if (f.PersoanaCurenta >= ded::Randuri) return;
      f.PersoanaCurenta = CheckedShort(f.PersoanaCurenta + 1);
    }
    for (Control* c : {&CodI, &NumeI, &PrenI}) c->SetText("");
    for (Control* c : {&Sotie, &Copil, &Alta, &inv1, &inv2}) c->SetValue(0);
    for (Control* c : CoefI) c->SetText("");
    MarciPersoana(true);
    StingeConditii();
    Text2.SetText(std::to_string(f.PersoanaCurenta));
    CodI.SetFocus();
  } else {
    MarciPersoana(false);
    StingeConditii();
    f.PersoanaCurenta = CheckedShort(f.PersoanaCurenta + 1);
    ArataPersoana();
    Text2.SetText(std::to_string(f.PersoanaCurenta));
  }
  ArataVarsta();
}

void Fisa1F::Ok_StergP_Click() {
  FisaInLucru& f = fisa_;
  if (!AskYesNo(p_.dialogs, "Doriti sa stergeti persoana ?", "")) return;
  int rand = f.PersoanaCurenta;
  for (int i = f.LunaPrima; i <= f.LunaUltima; ++i) {
    Control& total = Camp(CoefCalc, i);
    total.SetText(TextSimplu(ValZecimal(total.Text()) - ValZecimal(f.Ded(rand, ded::CoefI + i))));
  }
  if (f.NrPersoane > 0) f.NrPersoane = CheckedShort(f.NrPersoane - 1);
  for (int r = rand; r <= f.NrPersoane; ++r)
    for (int coloana = 1; coloana <= ded::Coloane; ++coloana) {
      const std::string& urmator = f.Ded(r + 1, coloana);
      bool text = coloana >= ded::NumeI && coloana <= ded::Inv2;
      f.Ded(r, coloana) = text ? urmator : TextZecimal(urmator);
    }
  // The months of the row set free stay: a new person there inherits them.
  for (int coloana = 1; coloana <= ded::Inv3; ++coloana) f.Ded(f.NrPersoane + 1, coloana).clear();
  f.PersoanaCurenta = f.NrPersoane > 0 ? f.NrPersoane : 1;
  ArataPersoana();
  ArataNrPersoane();
  Text2.SetText(std::to_string(f.PersoanaCurenta));
}

void Fisa1F::Command2_Click() {
  const FisaInLucru& f = fisa_;
  ArataDoar(Fisa1_IIIC);
  MarciPersoana(f.NrPersoane == 0);
  StingeConditii();
  Text2.SetText(std::to_string(f.PersoanaCurenta));
  Ok_PersU.SetFocus();
  ArataVarsta();
}

}  // namespace fisc
