#include "tax/Fisa1F.h"

#include "listings/Imagine.h"
#include "params/Cuantum.h"
#include "platform/Failure.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/FisaII.h"
#include "sheets/FisaInLucru.h"
#include "sheets/RecordFF1.h"
#include "sheets/Stocare.h"
#include "tax/Impozit.h"
#include "tax/Luni.h"

namespace fisc {

namespace {

constexpr int kRand = 28;     // row pitch of the coefficient columns
constexpr int kRandVen = 26;  // row pitch of section V, fourteen rows

Control& Cadru(Form& f, std::string name, std::string_view caption) {
  return f.Add(ControlKind::Frame, std::move(name)).SetCaption(caption).At(10, 56, 940, 540);
}

Control& Bifa(Form& f, Control& frame, std::string name, std::string_view caption, int x, int y,
              int w) {
  return f.Add(ControlKind::CheckBox, std::move(name))
      .SetCaption(caption)
      .In(frame)
      .At(x, y, w, 22);
}

Control& Eticheta(Form& f, Control& frame, std::string name, std::string_view caption, int x, int y,
                  int w, int h = 22) {
  return Label(f, std::move(name), caption, x, y, w, h).In(frame);
}

constexpr std::string_view kRanduriV[14] = {"1. Ianuarie",
                                            "2. Februarie",
                                            "3. Martie",
                                            "4. Aprilie",
                                            "5. Mai",
                                            "6. Iunie",
                                            "7. Iulie",
                                            "8. August",
                                            "9. Septembrie",
                                            "10. Octombrie",
                                            "11. Noiembrie",
                                            "12. Decembrie",
                                            "13. Prima de vacanta",
                                            "14. Total"};

constexpr std::string_view kRanduriVI[13] = {"1. Venit net",
                                             "2. Cheltuieli profesionale acordate",
                                             "3. Cheltuieli profesionale cuvenite",
                                             "4. Venit net recalculat (1+2-3)",
                                             "5. Deduceri personale cuvenite",
                                             "6. Venit anual baza de calcul (4-5)",
                                             "7. Impozit anual",
                                             "8. Total impozit lunar calculat si retinut",
                                             "9. Diferenta de impozit de retinut (7-8)",
                                             "10. Diferenta de impozit de restituit (8-7)",
                                             "VII. Venit net din salarii cu impunere finala",
                                             "Impozit calculat si retinut",
                                             "Venit net din salarii scutit de imp. pe venit"};

}  // namespace

template <std::size_t N>
std::array<Control*, N> Fisa1F::Coloana(Control& frame, ControlKind kind, const std::string& name,
                                        int x, int y, int w, int pas, int maxLength) {
  std::array<Control*, N> campuri{};
  for (std::size_t i = 0; i < N; ++i) {
    int rand = static_cast<int>(i);
    campuri[i] =
        &Add(kind, name, rand).SetMaxLength(maxLength).In(frame).At(x, y + pas * rand, w, 22);
  }
  return campuri;
}

std::array<Control*, 2> Fisa1F::Optiuni() {
  std::array<Control*, 2> o{};
  o[1] = &Add(ControlKind::OptionButton, "Option1", 1)
              .SetCaption("Preiau conditii")
              .In(Frame2)
              .At(12, 26, 200, 22);
  o[0] = &Add(ControlKind::OptionButton, "Option1", 0)
              .SetCaption("Anulez conditii")
              .In(Frame2)
              .At(12, 56, 200, 22);
  return o;
}

Fisa1F::Fisa1F(Desktop& desktop, Platforma& platforma, ParametriAn& parametri,
               const TabelImpozit& impozitar, FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "Fisa1_F", "FISA FISCALA 1"),
      Command1(Button(*this, "Command1", "IV. &Deduceri  (A, B)", 10, 8, 150, 40)),
      Command2(Button(*this, "Command2", "IV. Deduceri  (C)", 165, 8, 150, 40)),
      Command3(Button(*this, "Command3", "V. Calcul &impozit", 320, 8, 150, 40)),
      Command4(Button(*this, "Command4",
                      "VI.Regularizare /VII.Venit cu impunere finala /VIII.Venit scutit", 475, 8,
                      250, 40)),
      Command10(Button(*this, "Command10", "Imagine     fisa", 730, 8, 70, 40)),
      Command14(Button(*this, "Command14", "Impozitar", 805, 8, 70, 40)),
      Command15(Button(*this, "Command15", "Deduceri", 880, 8, 70, 40)
                    .SetToolTip("Vizualizare  deduceri de baza, coef.de deducere, coef.de "
                                "invaliditate,coef.ch.profesionale si cota imp.final")),

      Fisa1_III(Cadru(*this, "Fisa1_III", "IV. Deduceri personale (A, B)")),
      CoefProp(Coloana<12>(Fisa1_III, ControlKind::TextBox, "CoefProp", 200, 84, 60, kRand, 4)),
      CoefCalc(Coloana<12>(Fisa1_III, ControlKind::TextBox, "CoefCalc", 380, 84, 60, kRand)),
      Inv1A(Bifa(*this, Fisa1_III, "Inv1A", "Invalid gr.I", 520, 84, 200)),
      Inv2A(Bifa(*this, Fisa1_III, "Inv2A", "Invalid gr.II", 520, 112, 200)),
      Inv3A(Bifa(*this, Fisa1_III, "Inv3A", "Alte situatii", 520, 140, 200)),
      Command9(Button(*this, "Command9", "OK", 520, 388, 90).In(Fisa1_III)),
      Command11(Button(*this, "Command11", "?", 620, 388, 40).In(Fisa1_III)),

      Fisa1_IIIC(
          Cadru(*this, "Fisa1_IIIC", "IV. Deduceri personale (C) - persoane in intretinere")),
      CodI(TextBox(*this, "CodI", 13, 70, 30, 130).In(Fisa1_IIIC)),
      NumeI(TextBox(*this, "NumeI", 0, 280, 30, 230).In(Fisa1_IIIC)),
      PrenI(TextBox(*this, "PrenI", 0, 610, 30, 230).In(Fisa1_IIIC)),
      Sotie(Bifa(*this, Fisa1_IIIC, "Sotie", "Sot/sotie", 20, 84, 100)),
      Copil(Bifa(*this, Fisa1_IIIC, "Copil", "Copil", 130, 84, 80)),
      Alta(Bifa(*this, Fisa1_IIIC, "Alta", "Alta", 220, 84, 80)),
      inv1(Bifa(*this, Fisa1_IIIC, "inv1", "Invalid gr.I", 310, 84, 120)),
      inv2(Bifa(*this, Fisa1_IIIC, "inv2", "Invalid gr.II", 440, 84, 120)),
      inv3(Bifa(*this, Fisa1_IIIC, "inv3", "Alte situatii", 570, 84, 120)),
      CoefI(Coloana<12>(Fisa1_IIIC, ControlKind::TextBox, "CoefI", 130, 124, 60, kRand, 4)),
      Frame2(Add(ControlKind::Frame, "Frame2")
                 .SetCaption("Conditii pentru coeficientii de deducere")
                 .In(Fisa1_IIIC)
                 .At(260, 124, 340, 92)),
      Option1(Optiuni()),
      Command6(Button(*this, "Command6", "?", 290, 26, 30, 24).In(Frame2)),
      Ok_persA(Button(*this, "Ok_persA", "Persoana &anterioara", 260, 240, 165).In(Fisa1_IIIC)),
      Ok_PersU(Button(*this, "Ok_PersU", "Persoana &urmatoare", 435, 240, 165).In(Fisa1_IIIC)),
      Ok_StergP(Button(*this, "Ok_StergP", "&Stergere persoana", 260, 280, 165).In(Fisa1_IIIC)),
      Command7(Button(*this, "Command7", "OK", 435, 280, 80).In(Fisa1_IIIC)),
      Text2(TextBox(*this, "Text2", 0, 700, 244, 40).In(Fisa1_IIIC)),
      Label34(Eticheta(*this, Fisa1_IIIC, "Label34", "", 70, 56, 200)),

      Fisa1_IV(Cadru(*this, "Fisa1_IV",
                     "V. Calculul impozitului pe veniturile din salarii (date furnizate de "
                     "statele de plata)")),
      VenitN(Coloana<14>(Fisa1_IV, ControlKind::TextBox, "VenitN", 200, 74, 140, kRandVen, 12)),
      ImpP(Coloana<14>(Fisa1_IV, ControlKind::TextBox, "ImpP", 350, 74, 140, kRandVen)),
      ImpC(Coloana<14>(Fisa1_IV, ControlKind::TextBox, "ImpC", 500, 74, 140, kRandVen, 12)),
      Bif(Coloana<13>(Fisa1_IV, ControlKind::CheckBox, "Bif", 650, 74, 24, kRandVen)),
      LuPrima(TextBox(*this, "LuPrima", 2, 700, 128, 40).In(Fisa1_IV)),
      Command12(Button(*this, "Command12", "Buton preluare  automata impozite propuse in col.2",
                       700, 170, 220, 44)
                    .In(Fisa1_IV)),
      Luni(TextBox(*this, "Luni", 2, 500, 480, 40).In(Fisa1_IV)),
      ChAc(TextBox(*this, "ChAc", 12, 500, 452, 140).In(Fisa1_IV)),
      Command8(Button(*this, "Command8", "OK", 700, 480, 80).In(Fisa1_IV)),
      Picture1(Button(*this, "Picture1", "Calculator", 800, 480, 110).In(Fisa1_IV)),

      Fisa1_V(Cadru(*this, "Fisa1_V",
                    "VI. Regularizare  VII. Venit cu impunere finala  VIII. "
                    "Venit scutit")),
      Reg(Coloana<13>(Fisa1_V, ControlKind::TextBox, "Reg", 480, 36, 140, kRand, 12)),
      Command5(Button(*this, "Command5", "Terminat fisa F1", 700, 490, 200, 34).In(Fisa1_V)),
      p_(platforma),
      parametri_(parametri),
      impozitar_(impozitar),
      fisa_(fisa),
      listare_(listare) {
  SetSize(960, 606);

  // IV.A and IV.B: a month a row, own coefficient beside the total.
  Eticheta(*this, Fisa1_III, "EtLuna", "Luna", 20, 44, 150);
  Eticheta(*this, Fisa1_III, "EtProp", "A. Coeficient de deducere pentru situatia proprie", 180, 30,
           180, 48);
  Eticheta(*this, Fisa1_III, "EtCalc", "B. Coeficient total de deducere", 360, 30, 140, 48);
  for (int i = 0; i < 12; ++i) {
    Eticheta(*this, Fisa1_III, "EtLunaIII", NumeLuni[static_cast<std::size_t>(i)], 20,
             84 + kRand * i, 150);
    CoefProp[static_cast<std::size_t>(i)]->SetToolTip("0 / 1 / 1,5 (inv.II) / 2 (inv.I)");
    CoefCalc[static_cast<std::size_t>(i)]->SetEnabled(false);
  }

  // IV.C: the person, then a month a row.
  Eticheta(*this, Fisa1_IIIC, "EtCodI", "Cod ", 20, 30, 45);
  Eticheta(*this, Fisa1_IIIC, "EtNumeI", "Nume", 225, 30, 50);
  Eticheta(*this, Fisa1_IIIC, "EtPrenI", "Prenume", 530, 30, 75);
  Eticheta(*this, Fisa1_IIIC, "EtText2", "Persoana:", 620, 244, 75);
  for (int i = 0; i < 12; ++i)
    Eticheta(*this, Fisa1_IIIC, "EtLunaIIIC", NumeLuni[static_cast<std::size_t>(i)], 20,
             124 + kRand * i, 100);
  Text2.SetEnabled(false);
  // The employee's invalidity follows the own coefficients typed.
  Inv1A.SetEnabled(false);
  Inv2A.SetEnabled(false);

  // V: the amount columns aligned under their headings, totals at the foot.
  Eticheta(*this, Fisa1_IV, "EtVenitN", "Venit net", 200, 40, 140, 30);
  Eticheta(*this, Fisa1_IV, "EtImpP", "I N F O R M A T I V", 350, 40, 140, 30);
  Eticheta(*this, Fisa1_IV, "EtImpC", "Impozit calculat si retinut", 500, 40, 140, 30);
  for (int i = 0; i < 14; ++i)
    Eticheta(*this, Fisa1_IV, "EtRandV", kRanduriV[i], 20, 74 + kRandVen * i, 170);
  Eticheta(*this, Fisa1_IV, "EtLuPrima",
           "Luna acordarii primei de vacanta pentru calculul impozitului .", 700, 74, 220, 48);
  Eticheta(*this, Fisa1_IV, "EtChAc", "B. Cheltuieli profesionale acordate", 20, 452, 470);
  Eticheta(*this, Fisa1_IV, "EtLuni",
           "C. Numar de luni pentru care s-au acordat cheltuieli profesionale", 20, 480, 470);

  // Amounts and coefficients read as columns of figures.
  for (const auto* coloana : {&CoefProp, &CoefCalc, &CoefI})
    for (Control* c : *coloana) c->SetAlignRight(true);
  for (const auto* coloana : {&VenitN, &ImpP, &ImpC})
    for (Control* c : *coloana) c->SetAlignRight(true);
  for (Control* c : Reg) c->SetAlignRight(true);
  ChAc.SetAlignRight(true);
  Luni.SetAlignRight(true);

  // VI to VIII: VII and VIII stand apart from the computed items.
  for (int i = 0; i < 13; ++i) {
    int y = 36 + kRand * i + (i >= 10 ? 14 : 0) + (i == 12 ? 14 : 0);
    Eticheta(*this, Fisa1_V, "EtReg", kRanduriVI[i], 20, y, 450);
    Reg[static_cast<std::size_t>(i)]->At(480, y, 140, 22);
  }
  Eticheta(*this, Fisa1_V, "EtAtentie",
           "Atentie! Pentru regularizare, verificati baremul anual si deducerea de baza pentru "
           "anul 2002 -  sa fie cele corectate cu rata inflatiei. Oficial, acestea se stabilesc "
           "prin ordin al Zelvan si apar in ianuarie 2003.",
           20, 436, 900, 44);

  Fisa1_IIIC.SetVisible(false);
  Fisa1_IV.SetVisible(false);
  Fisa1_V.SetVisible(false);
  Command10.SetEnabled(false);

  // The sheet as it will print, from the screen, before any save.
  Command10.Click = [this] { ImagineFF1(p_, parametri_, fisa_, listare_, FisaDinEcran()); };
  // The tables come with their editors. The deductions are read afresh
  // before they are viewed, and from then on the sheet works with them.
  Command14.Click = [] {};
  Command15.Click = [this] { IncarcaCuantum(p_.files, parametri_); };

  Command1.Click = [this] { ArataDoar(Fisa1_III); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };

  LeagaCoeficienti();
  LeagaPersoane();
  LeagaVenituri();
  LeagaRegularizare();

  Closing = [this](bool&) { Inchide(); };
}

void Fisa1F::ArataDoar(Control& frame) {
  for (Control* f : {&Fisa1_III, &Fisa1_IIIC, &Fisa1_IV, &Fisa1_V}) f->SetVisible(f == &frame);
}

bool Fisa1F::FaraDeduceri() const {
  return fisa_.FlagDedu == "X" || PersoanaStraina(fisa_.CodCurent);
}

CoeficientiLuni Fisa1F::Coeficienti() const {
  CoeficientiLuni c;
  for (std::size_t i = 0; i < 12; ++i) c[i] = CoefCalc[i]->Text();
  return c;
}

void Fisa1F::ArataPersoanaCurenta(short persoana) { Text2.SetText(std::to_string(persoana)); }

void Fisa1F::PreiaInvaliditatea(int inv1, int inv2) {
  Inv1A.SetValue(inv1);
  Inv2A.SetValue(inv2);
}

void Fisa1F::ArataNrPersoane() {
  std::string text = "Sunt inregistrate " + std::to_string(fisa_.NrPersoane) + " persoane";
  for (Control* c : {&Ok_PersU, &Ok_persA, &Ok_StergP}) c->SetToolTip(text);
}

void Fisa1F::Deschide(std::string_view nume, std::string_view prenume) {
  FisaInLucru& f = fisa_;
  const ParametriAn& p = parametri_;
  SetCaption("Fisa fiscala I - " + std::string(nume) + " " + std::string(prenume) +
             ", cod numeric " + f.CodCurent);
  Show();

  // Outside the months of activity nothing is typed and nothing is stored.
  auto inAfara = [&](int i) {
    for (auto* coloana : {&CoefProp, &CoefCalc, &CoefI}) Camp(*coloana, i).SetText("");
    Camp(VenitN, i).SetText("");
    Camp(ImpC, i).SetText("");
    for (int rand = 1; rand <= ded::Randuri; ++rand) f.Ded(rand, ded::CoefI + i).clear();
    for (auto* coloana : {&CoefProp, &CoefCalc, &CoefI}) Camp(*coloana, i).SetVisible(false);
    for (auto* coloana : {&VenitN, &ImpC, &ImpP}) Camp(*coloana, i).SetVisible(false);
    Camp(Bif, i).SetVisible(false);
  };
  for (int i = 0; i < f.LunaPrima && i < 12; ++i) inAfara(i);
  for (int i = f.LunaUltima + 1; i < 12; ++i) inAfara(i);

  // The first taxes are those of the income alone, with no deduction.
  double venituri = 0, impC = 0, impP = 0;
  for (int i = f.LunaPrima; i <= f.LunaUltima; ++i) {
    for (auto* coloana : {&CoefProp, &CoefCalc, &CoefI}) Camp(*coloana, i).SetVisible(true);
    for (auto* coloana : {&VenitN, &ImpC, &ImpP}) Camp(*coloana, i).SetVisible(true);
    Camp(Bif, i).SetVisible(true);
    short luna = static_cast<short>(i + 1);
    double venit = Valoare(Camp(VenitN, i).Text());
    double impozit = ImpozitLuna(luna, venit, impozitar_);
    Camp(ImpP, i).SetText(TextDin(impozit));
    venituri += ValZecimal(Camp(VenitN, i).Text());
    impC += ValZecimal(Camp(ImpC, i).Text());
    impP += impozit;
  }
  venituri += ValZecimal(VenitN[12]->Text());
  impC += ValZecimal(ImpC[12]->Text());
  VenitN[13]->SetText(TextDin(venituri));
  ImpC[13]->SetText(TextDin(impC));
  ImpP[13]->SetText(TextDin(impP));

  if (FaraDeduceri()) {
    Fisa1_V.SetVisible(false);
    for (std::size_t i = 0; i < 12; ++i) {
      CoefProp[i]->SetText("");
      CoefCalc[i]->SetText("");
    }
    f.NrPersoane = 0;
    for (Control* c : {&ChAc, &Luni}) {
      c->SetText("");
      c->SetEnabled(false);
    }
    Fisa1_IIIC.SetVisible(false);
    Fisa1_III.SetVisible(false);
    Command1.SetEnabled(false);
    Command2.SetEnabled(false);
    Fisa1_IV.SetVisible(true);
    Camp(VenitN, f.LunaPrima).SetFocus();
    return;
  }
  Fisa1_V.SetVisible(false);
  Fisa1_IIIC.SetVisible(false);
  Fisa1_IV.SetVisible(false);
  for (Control* c : {&Command1, &Command2, &ChAc, &Luni}) c->SetEnabled(true);
  Fisa1_III.SetVisible(true);
  Command9.SetFocus();

  double propriu = CoefPropriu(f.FlagInv1 == "X", f.FlagInv2 == "X", p);
  if (f.Gasit == "F1" || f.Gasit == "F1F2") {
    // The stored coefficients stand unless the invalidity marks changed.
    bool marciSchimbate = f.FlagInv1 != f.Inv1Fisier || f.FlagInv2 != f.Inv2Fisier;
    for (int i = f.LunaPrima; i <= f.LunaUltima; ++i) {
      double s = SumaPersoane(i);
      if (marciSchimbate)
        Camp(CoefProp, i).SetText(TextZecimal(propriu));
      else
        propriu = ValZecimal(Camp(CoefProp, i).Text());
      Camp(CoefCalc, i).SetText(PunctZecimal(TextDin(propriu + s)));
    }
    Ok_StergP.SetEnabled(true);
    if (f.NrPersoane == 0) {
      MarciPersoana(true);
      StingeConditii();
    }
    double venit = 0, impozit = 0;
    for (std::size_t i = 0; i < 13; ++i) {
      venit += Valoare(VenitN[i]->Text());
      impozit += Valoare(ImpC[i]->Text());
    }
    VenitN[13]->SetText(TextDin(venit));
    ImpC[13]->SetText(TextDin(impozit));
    Reg[0]->SetText("");
  } else {
    GolesteFF1();
    for (int i = f.LunaPrima; i <= f.LunaUltima; ++i) {
      Camp(CoefProp, i).SetText(TextZecimal(propriu));
      Camp(CoefCalc, i).SetText(TextZecimal(propriu));
    }
    Ok_persA.SetToolTip("Sunt inregistrate 0 persoane.");
    Ok_PersU.SetToolTip("Sunt inregistrate 0 persoane.");
    Ok_StergP.SetEnabled(false);
    Text2.SetText("0");
    MarciPersoana(true);
  }
}

void Fisa1F::IncarcaFF1(std::string_view record, std::size_t pozitie) {
  FisaFF1 f;
  CitesteCorpFF1(record, pozitie, f);
  for (std::size_t i = 0; i < 12; ++i) {
    CoefCalc[i]->SetText(f.CoefCalc[i]);
    CoefProp[i]->SetText(f.CoefProp[i]);
  }
  for (std::size_t i = 0; i < 14; ++i) {
    VenitN[i]->SetText(f.VenitN[i]);
    ImpC[i]->SetText(f.ImpC[i]);
  }
  Luni.SetText(f.Luni);
  ChAc.SetText(f.ChAc);
  for (std::size_t i = 10; i < 13; ++i) Reg[i]->SetText(f.Reg[i]);
}

void Fisa1F::ArataPersoana() {
  const FisaInLucru& f = fisa_;
  int rand = f.PersoanaCurenta;
  CodI.SetText(f.Ded(rand, ded::CodI));
  NumeI.SetText(f.Ded(rand, ded::NumeI));
  PrenI.SetText(f.Ded(rand, ded::PrenI));
  Control* marci[] = {&Sotie, &Copil, &Alta, &inv1, &inv2};
  for (int k = 0; k < 5; ++k)
    marci[k]->SetValue(Majuscule(f.Ded(rand, ded::Sotie + k)) == "X" ? 1 : 0);
  for (int i = 0; i < 12; ++i)
    CoefI[static_cast<std::size_t>(i)]->SetText(TextZecimal(f.Ded(rand, ded::CoefI + i)));
}

void Fisa1F::GolesteFF1() {
  for (Control* c : {&CodI, &NumeI, &PrenI}) c->SetText("");
  for (std::size_t i = 0; i < 12; ++i) {
    CoefI[i]->SetText("");
    CoefCalc[i]->SetText("");
    CoefProp[i]->SetText("");
  }
  for (Control* c : {&Sotie, &Copil, &Alta, &inv1, &inv2}) c->SetValue(0);
  StingeConditii();
  for (std::size_t i = 0; i < 14; ++i) {
    VenitN[i]->SetText("");
    ImpC[i]->SetText("");
    ImpP[i]->SetText("");
  }
  ChAc.SetText("");
  Luni.SetText("");
  // Clearing a mark is a click: a row it had copied takes 0.
  for (Control* c : Bif) c->SetValue(0);
  for (Control* c : Reg) c->SetText("");
  fisa_.PersoanaCurenta = 1;
  fisa_.NrPersoane = 0;
  fisa_.Ded.Goleste();
}

FisaFF1 Fisa1F::FisaDinEcran() const {
  const FisaInLucru& f = fisa_;
  FisaFF1 r;
  r.Antet = Fisa_II->Antet();
  r.FlagRectif = f.FlagRectif;
  r.FlagReg = f.FlagReg;
  r.FlagDedu = f.FlagDedu;
  r.FlagAlteS = f.FlagAlteS;
  r.FlagInv1 = f.FlagInv1;
  r.FlagInv2 = f.FlagInv2;
  r.DataAngajarii = f.DataAngajarii;
  r.DataIncetarii = f.DataIncetarii;
  for (std::size_t i = 0; i < 12; ++i) {
    r.CoefCalc[i] = CoefCalc[i]->Text();
    r.CoefProp[i] = CoefProp[i]->Text();
  }
  for (std::size_t i = 0; i < 14; ++i) {
    r.VenitN[i] = VenitN[i]->Text();
    r.ImpC[i] = ImpC[i]->Text();
  }
  r.Luni = Luni.Text();
  r.ChAc = ChAc.Text();
  for (std::size_t i = 0; i < 13; ++i) r.Reg[i] = Reg[i]->Text();
  return r;
}

void Fisa1F::SalveazaFF1() {
  const FisaInLucru& f = fisa_;
  fisc::SalveazaFF1(p_.files, parametri_.AnFiscal, f.CodCurent, RecordFF1(FisaDinEcran()),
                    f.Pozitii[1], f.Ded, f.NrPersoane);
}

// Closing by Command5 or by the window: the save asks first, runs the
// regularisation's tests, and the sheet in memory is cleared either way.
void Fisa1F::Inchide() {
  if (AskYesNo(p_.dialogs, "Salvati modificarile?")) {
    Command4_Click();
    SalveazaFF1();
  }
  Hide();
  GolesteFF1();
  LuPrima.SetText("");
  Fisa_II->GolesteAngajat();
}

}  // namespace fisc
