#include "app/FisaI.h"

#include "listings/Cadru.h"
#include "params/Cuantum.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "records/CoduriFiscale.h"
#include "records/Judete.h"
#include "records/Numere.h"
#include "sheets/Adresa.h"
#include "sheets/Angajator.h"
#include "sheets/FisaII.h"
#include "sheets/FisaInLucru.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordAngajator.h"

namespace fisc {

namespace {
constexpr std::string_view kTip1 = "1 - CF/cod unic de inregistrare";
constexpr std::string_view kTip2 = "2 - CNP/nr.de identificare fiscala";
constexpr int kMaxAdresa[11] = {50, 50, 10, 6, 10, 10, 10, 10, 1, 10, 50};
constexpr std::string_view kEtAdresa[11] = {"Localitate", "Strada",  "Numar", "Cod postal",
                                            "Bloc",       "Scara",   "Etaj",  "Apartament",
                                            "Sector",     "Telefon", "E-mail"};
}  // namespace

Control& FisaI::AdaugaAdresa(int i, int x, int y, int w) {
  Label(*this, "EtAdrP", kEtAdresa[i], x, y, 90).In(Frame1);
  Control& c = TextBox(*this, "AdrP", kMaxAdresa[i], x + 95, y, w, i).In(Frame1);
  AdrP[static_cast<std::size_t>(i)] = &c;
  return c;
}

FisaI::FisaI(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
             StareAngajator& angajator, FisaInLucru& fisa)
    : Form(desktop, "Fisa_I", "Date de identificare angajator"),
      CodP(TextBox(*this, "CodP", 13, 170, 44, 140).SetSelectOnEntry(true)),
      TipAng(Label(*this, "TipAng", "", 320, 44, 360)),
      DenP(TextBox(*this, "DenP", 160, 170, 74, 510)),
      NumeP(TextBox(*this, "NumeP", 40, 170, 104, 300)),
      PrenP(TextBox(*this, "PrenP", 40, 170, 134, 300)),
      Frame1(Add(ControlKind::Frame, "Frame1")
                 .SetCaption("Adresa angajatorului")
                 .At(10, 170, 680, 214)),
      JudP((AdaugaAdresa(0, 10, 26, 250),
            Add(ControlKind::ComboBox, "JudP").SetListOnly(true).At(460, 26, 200, 22).In(Frame1))),
      Ok_Fisa_II((AdaugaAdresa(1, 10, 56, 330), AdaugaAdresa(2, 460, 56, 100),
                  AdaugaAdresa(3, 10, 86, 80), AdaugaAdresa(4, 10, 116, 60),
                  AdaugaAdresa(5, 175, 116, 60), AdaugaAdresa(6, 340, 116, 60),
                  AdaugaAdresa(7, 505, 116, 60), AdaugaAdresa(8, 10, 146, 30),
                  AdaugaAdresa(9, 180, 146, 120), AdaugaAdresa(10, 10, 176, 400),
                  Button(*this, "Ok_Fisa_II", "Date identificare &angajat", 250, 396, 200, 36))),
      p_(platforma),
      parametri_(parametri),
      angajator_(angajator),
      fisa_(fisa) {
  SetSize(700, 450);
  Label(*this, "EtTitlu", "I. Date de identificare angajator", 20, 8, 660, 26).SetFont(12, true);
  Label(*this, "EtCodP", "Cod angajator", 20, 44, 140);
  Label(*this, "EtDenP", "Denumire", 20, 74, 140);
  Label(*this, "EtNumeP", "Nume", 20, 104, 140);
  Label(*this, "EtPrenP", "Prenume", 20, 134, 140);
  Label(*this, "EtJudP", "Judet", 365, 26, 90).In(Frame1);

  // The code decides the kind of employer: the check that accepts it sets the type.
  CodP.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    if (VerificaCF(CodP.Text())) {
      ArataTip(1);
      DenP.SetFocus();
    } else if (VerificaCNP(CodP.Text())) {
      ArataTip(2);
      NumeP.SetFocus();
    } else {
      Ok_Fisa_II.SetFocus();
    }
  };
  CodP.LostFocus = [this] {
    if (VerificaCF(CodP.Text())) {
      ArataTip(1);
    } else if (VerificaCNP(CodP.Text())) {
      ArataTip(2);
    } else {
      Warn(p_.dialogs, "Cod incorect", "  ");
      CodP.SetFocus();
    }
  };

  DenP.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    if (Tip() == 2) {
      DenP.SetText("");
      NumeP.SetFocus();
    } else {
      AdrP[0]->SetFocus();
    }
  };
  DenP.LostFocus = [this] {
    DenP.SetText(Majuscule(DenP.Text()));
    if (Tip() == 2) {
      DenP.SetText("");
      NumeP.SetFocus();
    }
  };
  for (Control* c : {&NumeP, &PrenP}) {
    Control* next = c == &NumeP ? &PrenP : AdrP[0];
    c->KeyPress = [this, c, next](int& key) {
      if (key != kKeyEnter) return;
      if (Tip() == 1) {
        c->SetText("");
        DenP.SetFocus();
      } else {
        next->SetFocus();
      }
    };
    c->LostFocus = [this, c] {
      c->SetText(Majuscule(c->Text()));
      if (Tip() == 1) {
        c->SetText("");
        DenP.SetFocus();
      }
    };
  }

  for (int i = 0; i < 11; ++i) {
    Control* c = AdrP[static_cast<std::size_t>(i)];
    bool numeric = i == 3 || i == 8;
    c->LostFocus = [this, c, numeric] { IesireDinAdresa(*c, numeric, *AdrP[0], *AdrP[8]); };
    c->KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      switch (i) {
        case 0:
          if (Majuscule(AdrP[0]->Text()) == "BUCURESTI") {
            JudP.SetText(" ");
            AdrP[1]->SetFocus();
          } else {
            JudP.SetListIndex(0);
            JudP.SetFocus();
          }
          break;
        case 7:
          if (Majuscule(AdrP[0]->Text()) == "BUCURESTI") {
            AdrP[8]->SetFocus();
          } else {
            AdrP[8]->SetText("");
            AdrP[9]->SetFocus();
          }
          break;
        case 10: Ok_Fisa_II.SetFocus(); break;
        default: AdrP[static_cast<std::size_t>(i + 1)]->SetFocus();
      }
    };
  }
  JudP.KeyPress = [this](int& key) {
    if (key == kKeyEnter) AdrP[1]->SetFocus();
  };

  Ok_Fisa_II.Click = [this] {
    if (CodP.Text().empty()) {
      Warn(p_.dialogs, "Cod incorect", "");
      CodP.SetFocus();
      return;
    }
    angajator_.CodAngajator = CodP.Text();
    SalveazaAngajator();
    fisa_.Gasit.clear();
    Hide();
    FisaII& f = *Fisa_II;
    f.AnFisc.SetCaption(parametri_.AnFiscal);
    f.Frame1.SetVisible(false);
    f.Show();
    f.Option1.SetFocus();
    f.JudS.Clear();
    for (std::string_view j : Judete) f.JudS.AddItem(j);
    // A new employee's county starts as the employer's.
    if (Trim(JudP.Text()).empty())
      f.JudS.SetListIndex(0);
    else
      f.JudS.SetText(JudP.Text());
  };

  Closing = [this](bool&) {
    std::string rep = NumeAnual(Familie::Rep, parametri_.AnFiscal);
    // The copy replaces the per-year file in one rename: deleting it first
    // would lose it to a failure in between.
    p_.files.Copy(fisier::Repfisc, rep);
    if (Intro) Intro->Show();
  };
}

int FisaI::Tip() const { return static_cast<int>(Valoare(angajator_.TipAngajator)); }

void FisaI::ArataTip(int tip) {
  if (tip == 1) {
    TipAng.SetCaption(kTip1);
    angajator_.TipAngajator = "1";
    NumeP.SetText("");
    PrenP.SetText("");
  } else {
    TipAng.SetCaption(kTip2);
    angajator_.TipAngajator = "2";
    DenP.SetText("");
  }
}

void FisaI::IncarcaAngajator() {
  LineReader in = p_.files.Read(fisier::Repfisc);
  if (in.Eof()) return;
  RecordAngajator r = CitesteAngajator(in.Line());
  CodP.SetText(r.CodP);
  angajator_.TipAngajator = r.TipAngajator;
  DenP.SetText(r.DenP);
  NumeP.SetText(r.NumeP);
  PrenP.SetText(r.PrenP);
  angajator_.JudetAngajator = r.JudP;
  for (std::size_t i = 0; i < r.AdrP.size(); ++i) AdrP[i]->SetText(r.AdrP[i]);
}

void FisaI::SalveazaAngajator() {
  RecordAngajator r;
  r.CodP = CodP.Text();
  r.TipAngajator = angajator_.TipAngajator;
  r.DenP = DenP.Text();
  r.NumeP = NumeP.Text();
  r.PrenP = PrenP.Text();
  r.JudP = JudP.Text();
  for (std::size_t i = 0; i < r.AdrP.size(); ++i) r.AdrP[i] = AdrP[i]->Text();
  LineWriter out = p_.files.Write(fisier::Temporar);
  out.Line(ScrieAngajator(r));
  out.Close();
  p_.files.Replace(fisier::Temporar, fisier::Repfisc);
}

void FisaI::GolesteAngajator() {
  for (Control* c : {&CodP, &DenP, &NumeP, &PrenP}) c->SetText("");
  for (Control* c : AdrP) c->SetText("");
  angajator_.TipAngajator.clear();
  TipAng.SetCaption("");
  angajator_.JudetAngajator = " ";
}

}  // namespace fisc
