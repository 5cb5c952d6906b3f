// IV.A and IV.B of the FF1 screen: the employee's own coefficient of each
// month, the month's total with the dependants, and the filling of a
// dependant's months from the table ("Preiau conditii", "Anulez conditii").
#include "params/Cuantum.h"
#include "records/Numere.h"
#include "sheets/FisaInLucru.h"
#include "tax/Fisa1F.h"

namespace fisc {

namespace {

constexpr std::string_view kAtentieLuni =
    "   ATENTIE !! Programul nu admite decat O SINGURA FISA 1 pentru un \r\n"
    "angajat, chiar daca are mai multe contracte de munca la acelasi angajator.\r\n"
    "\r\n"
    "   Nu uitati sa anulati 'Coeficientii de deducere pentru situatia proprie' pe\r\n"
    "lunile din afara contractelor, ceea ce va determina anularea automata \r\n"
    "a coeficientilor de deducere pentru persoanele aflate in intretinere, a\r\n"
    "veniturilor nete si a impozitelor calculate pe aceste luni.\r\n"
    "\r\n"
    "    Efectul descris mai sus se obtine numai daca se intra pe fiecare \r\n"
    "'Coeficient de deducere pentru situatia proprie' si se tasteaza 0 (zero).";

constexpr std::string_view kConditii =
    "     Pentru a completa automat coeficientii de deducere in functie de calitatea si "
    "situatia persoanei intretinute , marcati 'Preiau conditii'. Daca doriti sa anulati "
    "coeficientii si sa-i completati din nou pentru alta calitate respectiv situatie de "
    "invaliditate, marcati 'Anulez conditii'.  ";

std::string_view Marca(const Control& c) { return c.Value() ? "X" : ""; }

}  // namespace

void Fisa1F::LeagaCoeficienti() {
  for (int i = 0; i < 12; ++i) {
    Control& c = *CoefProp[static_cast<std::size_t>(i)];
    c.LostFocus = [this, i] { IesireCoefProp(i); };
    c.KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      if (i < fisa_.LunaUltima)
        Camp(CoefProp, i + 1).SetFocus();
      else
        Command9.SetFocus();
    };
  }
  Command9.Click = [this] { Command2_Click(); };
  Command11.Click = [this] { Warn(p_.dialogs, kAtentieLuni, ""); };

  Option1[1]->Click = [this] { Conditii(1); };
  Option1[0]->Click = [this] { Conditii(0); };
  Command6.Click = [this] { p_.dialogs.Box(kConditii, Buttons::Ok, Icon::None, ""); };
}

double Fisa1F::SumaPersoane(int luna) const {
  const FisaInLucru& f = fisa_;
  double suma = 0;
  for (int rand = 1; rand <= f.NrPersoane; ++rand)
    suma += ValZecimal(f.Ded(rand, ded::CoefI + luna));
  return suma;
}

std::string Fisa1F::CoefTotal(int luna) const {
  return TextZecimal(ValZecimal(Camp(CoefProp, luna).Text()) + SumaPersoane(luna));
}

// One month at 1 plus an invalidity's coefficient is enough to mark the employee.
void Fisa1F::MarciInvaliditateAngajat() {
  const ParametriAn& p = parametri_;
  Inv1A.SetValue(0);
  Inv2A.SetValue(0);
  for (Control* c : CoefProp) {
    double coef = ValZecimal(c->Text());
    if (coef == 1 + ValZecimal(p.CoefInv1)) Inv1A.SetValue(1);
    if (coef == 1 + ValZecimal(p.CoefInv2)) Inv2A.SetValue(1);
  }
  fisa_.FlagInv1 = Marca(Inv1A);
  fisa_.FlagInv2 = Marca(Inv2A);
}

void Fisa1F::IesireCoefProp(int i) {
  FisaInLucru& f = fisa_;
  Control& c = Camp(CoefProp, i);
  c.SetText(TextZecimal(c.Text()));
  if (f.FlagDedu == "X") {
    c.SetText("");
    Camp(CoefCalc, i).SetText("");
    return;
  }
  double coef = ValZecimal(c.Text());
  if (!CoefPropPermis(coef, parametri_)) {
    Warn(p_.dialogs, "Coeficient gresit", " ");
    c.SetText("");
    coef = 0;
  }
  MarciInvaliditateAngajat();
  if (f.NrPersoane >= 1) {
    // A month without the employee's own coefficient has no dependants either.
    if (coef == 0) {
      for (int rand = 1; rand <= ded::Randuri; ++rand) f.Ded(rand, ded::CoefI + i).clear();
      ArataPersoana();
    }
    Camp(CoefCalc, i).SetText(CoefTotal(i));
  } else {
    Camp(CoefCalc, i).SetText(c.Text());
  }
  if (coef == 0)
    for (auto* coloana : {&VenitN, &ImpP, &ImpC}) Camp(*coloana, i).SetText("0");
}

void Fisa1F::calc_coef() {
  FisaInLucru& f = fisa_;
  for (int luna = 0; luna < 12; ++luna)
    f.Ded(f.PersoanaCurenta, ded::CoefI + luna) = TextZecimal(Camp(CoefI, luna).Text());
  for (int luna = 0; luna < 12; ++luna) Camp(CoefCalc, luna).SetText(CoefTotal(luna));
}

CalitatePersoana Fisa1F::Calitate() const {
  return {Sotie.Value() != 0, Copil.Value() != 0, Alta.Value() != 0, inv1.Value() != 0,
          inv2.Value() != 0};
}

// 1 "Preiau conditii" fills the months from the table by the person's marks
// and age; 0 "Anulez conditii" frees the marks to be set again.
void Fisa1F::Conditii(int alegere) {
  FisaInLucru& f = fisa_;
  const ParametriAn& p = parametri_;
  for (Control* c : CoefI) c->SetText("");
  int rand = f.PersoanaCurenta;
  int varsta = Varsta(CodI.Text(), p.AnFiscal);

  if (alegere == 0) {
    Copil.SetValue(varsta <= 18);
    Alta.SetValue(varsta >= 18);
    f.Ded(rand, ded::Copil) = Marca(Copil);
    f.Ded(rand, ded::Alta) = Marca(Alta);
    for (Control* c : {&Sotie, &inv1, &inv2}) c->SetValue(0);
    for (int coloana : {ded::Sotie, ded::Inv1, ded::Inv2, ded::Inv3}) f.Ded(rand, coloana).clear();
    MarciPersoana(true);
    return;
  }

  if (Valoare(CodI.Text()) == 0) {
    Warn(p_.dialogs, "Nu ati completat codul.", " ");
    Option1[1]->SetValue(0);
    return;
  }
  if (!Sotie.Value() && !Copil.Value() && !Alta.Value()) {
    Warn(p_.dialogs, "Nu ati completat calitatea persoanei.", " ");
    Option1[1]->SetValue(0);
    return;
  }
  if (Copil.Value() && varsta > 18) {
    Copil.SetValue(0);
    Alta.SetValue(1);
  } else if (Copil.Value() && varsta == 18) {
    Alta.SetValue(1);
  }
  f.Ded(rand, ded::Copil) = Marca(Copil);
  f.Ded(rand, ded::Alta) = Marca(Alta);
  // The coefficients depend on the marks: they stay as they are meanwhile.
  MarciPersoana(false);

  Nastere nastere = NastereDinCod(CodI.Text());
  int an = static_cast<int>(Valoare(p.AnFiscal));
  CalitatePersoana calitate = Calitate();
  for (int j = f.LunaPrima; j <= f.LunaUltima; ++j) {
    double coef = CoefPreluat(j, calitate, nastere, an, ValZecimal(Camp(CoefProp, j).Text()), p);
    Camp(CoefI, j).SetText(PunctZecimal(TextDin(coef)));
  }
  Control* marci[] = {&Sotie, &Copil, &Alta, &inv1, &inv2};
  for (int k = 0; k < 5; ++k)
    if (marci[k]->Value()) f.Ded(rand, ded::Sotie + k) = "X";
  calc_coef();
}

void Fisa1F::MarciPersoana(bool enabled) {
  for (Control* c : {&Sotie, &Copil, &Alta, &inv1, &inv2}) c->SetEnabled(enabled);
}

void Fisa1F::StingeConditii() {
  for (Control* c : Option1) c->SetValue(0);
}

}  // namespace fisc
