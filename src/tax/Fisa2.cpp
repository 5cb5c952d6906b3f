#include "tax/Fisa2.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "listings/Imagine.h"
#include "platform/Layout.h"
#include "records/Numere.h"
#include "sheets/FisaII.h"
#include "sheets/RecordFF2.h"
#include "sheets/Stocare.h"
#include "tax/Impozit.h"
#include "tax/Luni.h"

namespace fisc {

namespace {

constexpr int kRand = 26;

constexpr std::string_view kTipuri =
    "AS1-indemnizatii si alte drepturi acordate persoanelor care desfasoara\r\n"
    "    activitati urmare a unei functii de demnitate publica aleasa;\r\n"
    "AS2-indemnizatia lunara bruta,suma din profitul net si alte drepturi \r\n"
    "    cuvenite administratorilor la companii/societati nationale,societati \r\n"
    "    comerciale,regii autonome,in baza contractului de administrare;\r\n"
    "AS3-sume primite de membrii fondatori ai societatilor comerciale\r\n"
    "    constituite prin subscriptie publica;\r\n"
    "AS4-venituri realizate din incadrarea in munca urmarea incheierii unei\r\n"
    "    conventii civile de prestari servicii;\r\n"
    "AS5-sume platite reprezentantilor in Adunarea Generala a Actionarilor,\r\n"
    "    in Consiliul de Administratie si in Comisia de Cenzori;\r\n"
    "AS6-sume primite de reprezentantii in organisme tripartite,potrivit legii;\r\n"
    "AS7-indemnizatia lunara a asociatului unic;\r\n"
    "AS8-alte drepturi de natura salariala.";

std::array<Control*, 8> Tipuri(Form& f, Control& frame) {
  std::array<Control*, 8> tas{};
  for (int i = 0; i < 8; ++i)
    tas[static_cast<std::size_t>(i)] = &f.Add(ControlKind::CheckBox, "TAS", i)
                                            .SetCaption("AS" + std::to_string(i + 1))
                                            .In(frame)
                                            .At(12 + 80 * i, 24, 70, 22);
  return tas;
}

std::array<Control*, 13> Coloana(Form& f, const std::string& name, int x) {
  std::array<Control*, 13> campuri{};
  for (int i = 0; i < 13; ++i)
    campuri[static_cast<std::size_t>(i)] = &TextBox(f, name, 12, x, 110 + kRand * i, 150, i);
  return campuri;
}

}  // namespace

Fisa2::Fisa2(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
             const TabelImpozit& impozitar, FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "Fisa2", "FISA FISCALA 2"),
      Frame1(Add(ControlKind::Frame, "Frame1").SetCaption("Tip venit").At(20, 10, 680, 60)),
      TAS(Tipuri(*this, Frame1)),
      VenitCS(Coloana(*this, "VenitCS", 170)),
      ImpS(Coloana(*this, "ImpS", 340)),
      Command1(Button(*this, "Command1", "Terminat fisa F2", 530, 110, 170, 34)),
      Command2(Button(*this, "Command2", "Impozitar", 530, 152, 170)
                   .SetToolTip("Vizualizare  IMPOZITAR")),
      Command3(Button(*this, "Command3", "Informatii", 530, 190, 170)),
      Command10(Button(*this, "Command10", "Imagine     fisa", 530, 228, 170, 40)),
      Picture1(Button(*this, "Picture1", "Calculator", 530, 276, 170)),
      p_(platforma),
      parametri_(parametri),
      impozitar_(impozitar),
      fisa_(fisa),
      listare_(listare) {
  SetSize(720, 460);
  Label(*this, "EtLuna", "Luna", 20, 82, 140);
  Label(*this, "EtVenitCS", "Venit baza de calcul", 170, 82, 150);
  Label(*this, "EtImpS", "Impozit calculat si retinut", 340, 82, 170);
  for (int i = 0; i < 12; ++i)
    Label(*this, "EtLuna", NumeLuni[static_cast<std::size_t>(i)], 20, 110 + kRand * i, 140);
  Label(*this, "EtTotal", "TOTAL", 20, 110 + kRand * 12, 140);
  for (Control* c : VenitCS) c->SetAlignRight(true);
  for (Control* c : ImpS) c->SetAlignRight(true);

  for (int i = 0; i < 13; ++i) {
    Control& venit = *VenitCS[static_cast<std::size_t>(i)];
    Control& impozit = *ImpS[static_cast<std::size_t>(i)];
    venit.LostFocus = [this, i] { IesireVenit(i); };
    impozit.LostFocus = [this, i] { IesireImpozit(i); };
    for (auto* coloana : {&VenitCS, &ImpS})
      (*coloana)[static_cast<std::size_t>(i)]->KeyPress = [this, coloana, i](int& key) {
        if (key != kKeyEnter) return;
        if (i < 11)
          (*coloana)[static_cast<std::size_t>(i + 1)]->SetFocus();
        else if (i == 11)
          Command1.SetFocus();
      };
  }

  Command1.Click = [this] {
    if (!AreTip()) {
      Warn(p_.dialogs, "Nu ati marcat tipul de venit ");
      TAS[0]->SetFocus();
      return;
    }
    Inchide();
  };
  Command3.Click = [this] { Warn(p_.dialogs, kTipuri); };
  // The tax table comes with its editor.
  Command2.Click = [] {};
  Command10.Click = [this] { ImagineFF2(p_, parametri_, listare_, FisaDinEcran()); };
  Picture1.Click = [this] { p_.launcher.Start("calc.exe", ""); };
  Closing = [this](bool&) { Inchide(); };
}

void Fisa2::IesireVenit(int i) {
  Control& venit = *VenitCS[static_cast<std::size_t>(i)];
  venit.SetText(TextDin(Valoare(venit.Text())));
  if (i < 12) {
    // The amount typed is the base: no deduction, no coefficient.
    short luna = static_cast<short>(i + 1);
    double baza = Valoare(venit.Text());
    ImpS[static_cast<std::size_t>(i)]->SetText(TextDin(ImpozitLuna(luna, baza, impozitar_)));
  }
  Sumeaza();
}

void Fisa2::IesireImpozit(int i) {
  Control& impozit = *ImpS[static_cast<std::size_t>(i)];
  impozit.SetText(TextDin(Valoare(impozit.Text())));
  double suma = 0;
  for (std::size_t k = 0; k < 12; ++k) suma += Valoare(ImpS[k]->Text());
  ImpS[12]->SetText(TextDin(suma));
}

void Fisa2::Sumeaza() {
  double venit = 0, impozit = 0;
  for (std::size_t k = 0; k < 12; ++k) {
    venit += Valoare(VenitCS[k]->Text());
    impozit += Valoare(ImpS[k]->Text());
  }
  VenitCS[12]->SetText(TextDin(venit));
  ImpS[12]->SetText(TextDin(impozit));
}

bool Fisa2::AreTip() const {
  for (const Control* c : TAS)
    if (c->Value()) return true;
  return false;
}

// Closing by Command1 or by the window. A sheet closed with no type counts as
// AS4, the civil service conventions.
void Fisa2::Inchide() {
  if (!AreTip()) TAS[3]->SetValue(1);
  if (AskYesNo(p_.dialogs, "Salvati modificarile?")) SalveazaFF2();
  Hide();
  Fisa_II->ReiaDupaFF2();
}

void Fisa2::IncarcaFF2(std::string_view record, std::size_t pozitie) {
  FisaFF2 f;
  CitesteCorpFF2(record, pozitie, f);
  for (std::size_t i = 0; i < 8; ++i) TAS[i]->SetValue(f.TAS[i] == "X" ? 1 : 0);
  for (std::size_t i = 0; i < 13; ++i) {
    VenitCS[i]->SetText(f.VenitCS[i]);
    ImpS[i]->SetText(f.ImpS[i]);
  }
}

void Fisa2::Deschide(std::string_view caption) {
  SetCaption(caption);
  Show();
}

void Fisa2::GolesteFF2() {
  for (Control* c : TAS) c->SetValue(0);
  for (std::size_t i = 0; i < 13; ++i) {
    VenitCS[i]->SetText("");
    ImpS[i]->SetText("");
  }
}

FisaFF2 Fisa2::FisaDinEcran() const {
  FisaFF2 r;
  r.Antet = Fisa_II->Antet();
  // Field 14 is the check box of the employee screen, as the clerk sees it.
  r.FlagRectif = Fisa_II->Xrectif.Value() ? "X" : "";
  for (std::size_t i = 0; i < 8; ++i) r.TAS[i] = TAS[i]->Value() ? "X" : "";
  for (std::size_t i = 0; i < 13; ++i) {
    r.VenitCS[i] = VenitCS[i]->Text();
    r.ImpS[i] = ImpS[i]->Text();
  }
  return r;
}

void Fisa2::SalveazaFF2() {
  const FisaInLucru& f = fisa_;
  fisc::SalveazaFF2(p_.files, parametri_.AnFiscal, f.CodCurent, RecordFF2(FisaDinEcran()),
                    f.Pozitii[0]);
}

}  // namespace fisc
