#include "sheets/FisaII.h"
#include "params/Cuantum.h"
#include "platform/Failure.h"
#include "sheets/EcraneFise.h"
#include "sheets/FisaInLucru.h"

#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "records/CoduriFiscale.h"
#include "records/Date.h"
#include "records/Numere.h"
#include "sheets/Adresa.h"
#include "sheets/FisiereSet.h"
#include "sheets/FrmGasit.h"
#include "sheets/ListaFise.h"
#include "sheets/LuniActivitate.h"
#include "sheets/RecordFF2.h"
#include "sheets/Stocare.h"

namespace fisc {

namespace {

constexpr int kMaxAdresa[9] = {50, 50, 10, 6, 10, 10, 10, 10, 1};
constexpr std::string_view kFisierFF1 = "FF1.txt";
constexpr std::string_view kFisierFF2 = "FF2.txt";

constexpr std::string_view kAjutorLista =
    "  Daca doriti sa selectati o fisa deja incarcata optati pentru Fise incarcate, "
    "apasati cu mouse-ul pe butonul-sageata din "
    "dreapta baghetei galbene si apoi tastati inceputul numelui. ";

constexpr std::string_view kAjutorInterval =
    "        Puteti modifica intervalul de activitate.\r\n"
    "\r\n"
    "        Completati un interval acoperitor pentru angajatii care \r\n"
    "au activat CU INTRERUPERE (au mai multe contracte de munca),\r\n"
    "la acelasi angajator, pe parcursul anului fiscal de referinta.";

constexpr std::string_view kNotaDate =
    "\"Data angajarii\" si \"Data incetarii activitatii\" se completeaza in format zz/ll/aaaa, "
    "numai daca aceste situatii se produc in cursul anului fiscal de referinta";

bool EsteBucuresti(const Control& localitate) {
  return Majuscule(Trim(localitate.Text())) == "BUCURESTI";
}

std::string Marca(const Control& c) { return c.Value() ? "X" : ""; }

Control& Bifa(Form& f, std::string name, std::string_view caption, int x, int y, int w) {
  return f.Add(ControlKind::CheckBox, std::move(name)).SetCaption(caption).At(x, y, w, 22);
}

}  // namespace

Control& FisaII::AdaugaAdresa(int i, std::string_view eticheta, int x, int y, int w) {
  Label(*this, "EtAdrS", eticheta, x, y, 90);
  Control& c = TextBox(*this, "AdrS", kMaxAdresa[i], x + 95, y, w, i).SetSelectOnEntry(i == 0);
  AdrS[static_cast<std::size_t>(i)] = &c;
  return c;
}

FisaII::FisaII(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
               FisaInLucru& fisa)
    : Form(desktop, "Fisa_II", "Date de identificare angajat"),
      AnFisc(Label(*this, "AnFisc", "", 560, 10, 80)),
      Option1(Add(ControlKind::OptionButton, "Option1").SetCaption("Fise noi").At(20, 44, 140, 22)),
      Option2(Add(ControlKind::OptionButton, "Option2")
                  .SetCaption("Fise incarcate")
                  .At(170, 44, 160, 22)),
      Combo1(Add(ControlKind::ComboBox, "Combo1").SetSorted(true).At(20, 98, 560, 22)),
      Command2(Button(*this, "Command2", "?", 590, 96, 30, 26)),
      Label20(Label(*this, "Label20", "LISTA ALFABETICA", 20, 74, 560)),
      Xrectif(Bifa(*this, "Xrectif", "Fisa fiscala rectificativa", 20, 130, 300)),
      CodS(TextBox(*this, "CodS", 13, 135, 162, 140).SetSelectOnEntry(true)),
      NumeS(TextBox(*this, "NumeS", 40, 135, 192, 320).SetSelectOnEntry(true)),
      PrenS(TextBox(*this, "PrenS", 40, 135, 222, 320).SetSelectOnEntry(true)),
      JudS((AdaugaAdresa(0, "Localitate", 20, 256, 250),
            Add(ControlKind::ComboBox, "JudS").SetListOnly(true).At(460, 256, 200, 22))),
      Ok_Fisa1((AdaugaAdresa(1, "Strada", 20, 286, 330), AdaugaAdresa(2, "Numar", 460, 286, 100),
                AdaugaAdresa(3, "Cod postal", 20, 316, 80), AdaugaAdresa(4, "Bloc", 20, 346, 60),
                AdaugaAdresa(5, "Scara", 190, 346, 60), AdaugaAdresa(6, "Etaj", 360, 346, 60),
                AdaugaAdresa(7, "Apartament", 530, 346, 60),
                AdaugaAdresa(8, "Sector", 460, 316, 30),
                Button(*this, "Ok_Fisa1", "Fisa &1", 20, 386, 130))),
      Ok_Fisa2(Button(*this, "Ok_Fisa2", "Fisa &2", 160, 386, 130)),
      but_sterg_fisa(Button(*this, "but_sterg_fisa", "&Sterge fisa", 300, 386, 150)),
      Frame1(
          Add(ControlKind::Frame, "Frame1").SetCaption("Situatie angajat").At(20, 426, 680, 200)),
      Xreg(Bifa(*this, "Xreg", "Fisa fiscala regularizata", 12, 24, 330).In(Frame1)),
      Xdedu(Bifa(*this, "Xdedu", "Persoana romana fara domiciliu in Romania", 12, 50, 330)
                .In(Frame1)),
      XAlteS(Bifa(*this, "XAlteS", "Are alte surse supuse impozitului pe venituri", 12, 76, 330)
                 .In(Frame1)),
      Inv1A(Bifa(*this, "Inv1A", "Invalid gr.I", 380, 24, 150).In(Frame1)),
      Inv2A(Bifa(*this, "Inv2A", "Invalid gr.II", 380, 50, 150).In(Frame1)),
      Inv3A(Bifa(*this, "Inv3A", "Alte situatii", 380, 76, 150).In(Frame1)),
      Job0(TextBox(*this, "Job0", 10, 172, 110, 100).In(Frame1)),
      Job1(TextBox(*this, "Job1", 10, 472, 110, 100).In(Frame1)),
      Command3(Button(*this, "Command3", "?", 590, 108, 30, 26).In(Frame1)),
      Command1(Button(*this, "Command1", "Ok", 590, 156, 70).In(Frame1)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa) {
  SetSize(720, 640);
  Label(*this, "Label1", "II. Date de identificare angajat", 20, 10, 300);
  Label(*this, "Label2", "pentru anul fiscal", 400, 10, 150);
  Label(*this, "EtCodS", "Cod angajat", 20, 162, 110);
  Label(*this, "EtNumeS", "Nume", 20, 192, 110);
  Label(*this, "EtPrenS", "Prenume", 20, 222, 110);
  Label(*this, "EtJudS", "Judet", 395, 256, 60);
  Label(*this, "EtJob0", "Data angajarii ", 12, 110, 155).In(Frame1);
  Label(*this, "EtJob1", "Data incetarii activitatii", 290, 110, 178).In(Frame1);
  Label(*this, "EtNota", kNotaDate, 12, 140, 560, 44).In(Frame1);
  Frame1.SetVisible(false);
  Label20.SetVisible(false);
  Combo1.SetVisible(false);
  but_sterg_fisa.SetEnabled(false);

  Option1.Click = [this] {
    Label20.SetVisible(false);
    Combo1.SetVisible(false);
    for (Control* c : {&NumeS, &PrenS}) c->SetText("");
    for (std::size_t i = 1; i < AdrS.size(); ++i) AdrS[i]->SetText("");
    for (Control* c : {&CodS, &Job0, &Job1, &Combo1}) c->SetText("");
    for (Control* c : {&Xrectif, &Xreg, &Xdedu, &XAlteS, &Inv1A, &Inv2A}) c->SetValue(0);
    Frame1.SetVisible(false);
  };
  Option1.KeyPress = [this](int& key) {
    if (key == kKeyEnter) Xrectif.SetFocus();
  };
  Option2.Click = [this] {
    Label20.SetVisible(true);
    Combo1.SetVisible(true);
    Combo1.SetFocus();
  };
  Combo1.GotFocus = [this] { UmpleLista(); };
  Combo1.Click = [this] { AlegeDinLista(); };
  Command2.Click = [this] { p_.dialogs.Box(kAjutorLista, Buttons::Ok, Icon::None, ""); };

  Xrectif.LostFocus = [this] { fisa_.FlagRectif = Marca(Xrectif); };
  Xrectif.KeyPress = [this](int&) { CodS.SetFocus(); };
  CodS.GotFocus = [this] { IntrareCodS(); };
  CodS.LostFocus = [this] { IesireCodS(); };
  CodS.KeyPress = [this](int& key) {
    if (key == kKeyEnter) NumeS.SetFocus();
  };
  for (Control* c : {&NumeS, &PrenS}) c->LostFocus = [c] { c->SetText(Majuscule(c->Text())); };
  NumeS.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    if (CodS.Text().empty())
      CodS.SetFocus();
    else
      PrenS.SetFocus();
  };
  PrenS.KeyPress = [this](int& key) {
    if (key == kKeyEnter) AdrS[0]->SetFocus();
  };
  for (int i = 0; i < 9; ++i) {
    Control* c = AdrS[static_cast<std::size_t>(i)];
    bool numeric = i == 3 || i == 8;
    c->LostFocus = [this, c, numeric] { IesireDinAdresa(*c, numeric, *AdrS[0], *AdrS[8]); };
    c->KeyPress = [this, i](int& key) {
      if (key != kKeyEnter) return;
      if (i == 0) {
        if (EsteBucuresti(*AdrS[0])) {
          JudS.SetText(" ");
          AdrS[1]->SetFocus();
        } else {
          JudS.SetFocus();
        }
      } else if (i == 7) {
        if (EsteBucuresti(*AdrS[0])) {
          AdrS[8]->SetFocus();
        } else {
          AdrS[8]->SetText("");
          PrimulButonActiv().SetFocus();
        }
      } else if (i == 8) {
        PrimulButonActiv().SetFocus();
      } else {
        AdrS[static_cast<std::size_t>(i + 1)]->SetFocus();
      }
    };
  }
  JudS.KeyPress = [this](int& key) {
    if (key == kKeyEnter) AdrS[1]->SetFocus();
  };

  Ok_Fisa1.Click = [this] {
    if (CodS.Text().empty()) {
      Warn(p_.dialogs, "Cod incorect", "  ");
      CodS.SetFocus();
      return;
    }
    Frame1.SetVisible(true);
  };
  Ok_Fisa2.Click = [this] { Ok_Fisa2_Click(); };
  but_sterg_fisa.Click = [this] {
    FisaInLucru& f = fisa_;
    if (f.FisaIncarcata == 1) StergeFF1(p_.files, parametri_.AnFiscal, f.CodCurent);
    if (f.FisaIncarcata == 2) StergeFF2(p_.files, parametri_.AnFiscal, f.CodCurent);
    GolesteAngajat();
  };

  // A regularised sheet has neither an interval, nor other sources, nor a
  // person without domicile; such a person can't be regularised either.
  Xreg.Click = [this] {
    bool marcat = Xreg.Value() != 0;
    if (marcat) {
      Xdedu.SetValue(0);
      XAlteS.SetValue(0);
      Job0.SetText("");
      Job1.SetText("");
    }
    for (Control* c : {&Xdedu, &XAlteS, &Job0, &Job1}) c->SetEnabled(!marcat);
  };
  Xreg.KeyPress = [this](int&) { Command1.SetFocus(); };
  Xdedu.Click = [this] {
    bool marcat = Xdedu.Value() != 0;
    if (marcat)
      for (Control* c : {&Xreg, &Inv1A, &Inv2A}) c->SetValue(0);
    for (Control* c : {&Xreg, &Inv1A, &Inv2A}) c->SetEnabled(!marcat);
  };
  Xdedu.KeyPress = [this](int& key) {
    if (key == kKeyEnter) Job0.SetFocus();
  };
  for (Control* c : {&XAlteS, &Inv1A, &Inv2A, &Job1})
    c->KeyPress = [this](int& key) {
      if (key == kKeyEnter) Command1.SetFocus();
    };
  Job0.KeyPress = [this](int& key) {
    if (key == kKeyEnter) Job1.SetFocus();
  };
  Job0.LostFocus = [this] { IesireData(Job0); };
  Job1.LostFocus = [this] { IesireData(Job1); };
  Command3.Click = [this] { Warn(p_.dialogs, kAjutorInterval); };
  Command1.Click = [this] { Command1_Click(); };

  // The window goes before the main one comes back: no field of it is left.
  Closing = [this](bool&) {
    Hide();
    if (Intro) Intro->Show();
  };
}

Control& FisaII::PrimulButonActiv() {
  if (Ok_Fisa1.Enabled()) return Ok_Fisa1;
  if (Ok_Fisa2.Enabled()) return Ok_Fisa2;
  return Command1;
}

// The code is typed afresh: what was on the screen belonged to the last one.
// Locality and county stay, as an employer's people mostly share them.
void FisaII::IntrareCodS() {
  Ok_Fisa1.SetEnabled(true);
  Ok_Fisa2.SetEnabled(true);
  but_sterg_fisa.SetCaption("Sterge fisa");
  but_sterg_fisa.SetEnabled(false);
  for (Control* c : {&NumeS, &PrenS}) c->SetText("");
  for (std::size_t i = 1; i < AdrS.size(); ++i) AdrS[i]->SetText("");
  for (Control* c : {&Job0, &Job1}) c->SetText("");
  for (Control* c : {&Xrectif, &Xreg, &Xdedu, &XAlteS, &Inv1A, &Inv2A}) c->SetValue(0);
  Combo1.SetText("");
  Frame1.SetVisible(false);
}

void FisaII::IesireCodS() {
  FisaInLucru& f = fisa_;
  CodS.SetText(TextDin(Valoare(CodS.Text())));
  if (!VerificaCNP(CodS.Text())) {
    Warn(p_.dialogs, "Cod incorect", "  ");
    CodS.SetFocus();
    return;
  }
  Ok_Fisa1.SetEnabled(true);
  Ok_Fisa2.SetEnabled(true);
  f.CodCurent = CodS.Text();
  if (PersoanaStraina(f.CodCurent))
    Warn(p_.dialogs, "Persoana straina (fara drept de deducere).", "  ");
  CautaCodul(f.CodCurent);
  if (!f.Gasit.empty()) frmGasit->Arata(f.Gasit);
}

// The look-up of CautaCod, keeping the lines it stops on: the load that
// follows needs them, and each file is read once.
void FisaII::CautaCodul(const std::string& cod) {
  FisaInLucru& f = fisa_;
  gasite_.Cod = cod;
  gasite_.FF1 = GasesteLinia(p_.files, fisier::Ff1, cod);
  gasite_.FF2 = GasesteLinia(p_.files, fisier::Ff2, cod);
  f.Gasit.clear();
  f.Pozitii[1] = gasite_.FF1.Numar != 0 ? 1 : 0;
  f.Pozitii[0] = gasite_.FF2.Numar != 0 ? 1 : 0;
  if (f.Pozitii[1] != 0) f.Gasit = "F1";
  if (f.Pozitii[0] != 0) f.Gasit += "F2";
}

void FisaII::UmpleLista() {
  Combo1.Clear();
  AdaugaFise(Combo1, p_.files, fisier::Ff1, "--FF1");
  AdaugaFise(Combo1, p_.files, fisier::Ff2, "--FF2");
  Label20.SetCaption("LISTA ALFABETICA ( s-au incarcat " + std::to_string(Combo1.ListCount()) +
                     " fise )");
}

// A choice in the list loads the sheet at once; nothing here is guarded, so a
// record that can't be read ends the program.
void FisaII::AlegeDinLista() {
  FisaInLucru& f = fisa_;
  if (Combo1.ListIndex() < 0) {
    Combo1.SetListIndex(0);
    return;
  }
  const std::string& intrare = Combo1.Item(Combo1.ListIndex());
  // Only an entry without the "--" marks is refused; a record with an empty
  // code still gives an entry, and its empty code is taken as it is.
  std::optional<std::string> gasit = CodulDinLista(intrare);
  if (!gasit) Fail(err::InvalidCall);
  const std::string& cod = *gasit;
  bool ff1 = intrare.find("--" + cod + "--FF1") != std::string::npos;

  f.CodCurent = cod;
  CodS.SetText(cod);
  but_sterg_fisa.SetEnabled(true);
  CautaCodul(cod);
  if (ff1) {
    but_sterg_fisa.SetCaption("Sterge fisa 1");
    f.FisaIncarcata = 1;
    f.FisierCurent = kFisierFF1;
    std::size_t pozitie = IncarcaAntet(gasite_.FF1.Text);
    Fisa1_F->IncarcaFF1(gasite_.FF1.Text, pozitie);
    Frame1.SetVisible(true);
    Command1.SetFocus();
    IncarcaDeduceri(p_.files, cod, f.Ded, f.NrPersoane, f.Pozitii);
    f.PersoanaCurenta = 1;
    Fisa1_F->ArataPersoana();
    Fisa1_F->ArataNrPersoane();
    Fisa1_F->ArataPersoanaCurenta(f.PersoanaCurenta);
  } else {
    but_sterg_fisa.SetCaption("Sterge fisa 2");
    f.FisaIncarcata = 2;
    f.FisierCurent = kFisierFF2;
    std::size_t pozitie = IncarcaAntet(gasite_.FF2.Text);
    Fisa2->IncarcaFF2(gasite_.FF2.Text, pozitie);
    Frame1.SetVisible(false);
  }
  Ok_Fisa1.SetEnabled(false);
  Ok_Fisa2.SetEnabled(!ff1);
}

std::size_t FisaII::IncarcaAntet(std::string_view record) {
  FisaInLucru& f = fisa_;
  bool ff1 = f.FisierCurent == kFisierFF1;
  FisaFF1 fisa;
  std::size_t pozitie;
  if (ff1) {
    pozitie = CitesteAntetFF1(record, fisa);
  } else {
    FisaFF2 fisa2;
    pozitie = CitesteAntetFF2(record, fisa2);
    fisa.Antet = fisa2.Antet;
    fisa.FlagRectif = fisa2.FlagRectif;
  }
  const AntetFisa& a = fisa.Antet;
  NumeS.SetText(a.NumeS);
  PrenS.SetText(a.PrenS);
  for (std::size_t i = 0; i < AdrS.size(); ++i) AdrS[i]->SetText(a.AdrS[i]);
  f.JudetAngajat = a.JudS;
  // A county the list doesn't know shows as the blank entry.
  if (Trim(f.JudetAngajat).empty() || JudS.FindItem(f.JudetAngajat) < 0)
    JudS.SetText(" ");
  else
    JudS.SetText(f.JudetAngajat);
  Xrectif.SetValue(MarcaSetata(fisa.FlagRectif));
  if (ff1) {
    Xreg.SetValue(MarcaSetata(fisa.FlagReg));
    Xdedu.SetValue(MarcaSetata(fisa.FlagDedu));
    XAlteS.SetValue(MarcaSetata(fisa.FlagAlteS));
    Inv1A.SetValue(MarcaSetata(fisa.FlagInv1));
    Inv2A.SetValue(MarcaSetata(fisa.FlagInv2));
    f.Inv1Fisier = fisa.FlagInv1;
    f.Inv2Fisier = fisa.FlagInv2;
    Job0.SetText(fisa.DataAngajarii);
    Job1.SetText(fisa.DataIncetarii);
  }
  return pozitie;
}

// Every step goes on after a failure of the one before, with the one message
// this load has for any of them.
void FisaII::IncarcaDupaDecizie() {
  FisaInLucru& f = fisa_;
  auto pas = [this](const auto& statement) {
    try {
      statement();
    } catch (const RuntimeFailure&) {
      Warn(p_.dialogs, "Judet eronat.");
    }
  };
  int d = f.Decizie;
  LinieGasita linie;
  std::size_t pozitie = 0;
  auto incarcaAntet = [&](std::string_view fisierCurent, std::string_view nume) {
    f.FisierCurent = fisierCurent;
    pas([&] {
      // The lines the look-up of this code found serve; a code changed since
      // is looked up again.
      if (gasite_.Cod == f.CodCurent)
        linie = nume == fisier::Ff1 ? gasite_.FF1 : gasite_.FF2;
      else
        linie = GasesteLinia(p_.files, nume, f.CodCurent);
    });
    pas([&] { pozitie = IncarcaAntet(linie.Text); });
  };

  if (d == 1 || d == 3) {
    f.Pozitii[1] = 0;
    incarcaAntet(kFisierFF1, fisier::Ff1);
    pas([&] { Fisa1_F->IncarcaFF1(linie.Text, pozitie); });
    f.Pozitii[1] = linie.Numar;
    pas([&] { IncarcaDeduceri(p_.files, f.CodCurent, f.Ded, f.NrPersoane, f.Pozitii); });
    f.PersoanaCurenta = 1;
    pas([&] { Fisa1_F->ArataPersoana(); });
    Fisa1_F->ArataNrPersoane();
    Fisa1_F->ArataPersoanaCurenta(f.PersoanaCurenta);
  } else if (d == 2 || d == 6) {
    f.Pozitii[0] = 0;
    incarcaAntet(kFisierFF2, fisier::Ff2);
    pas([&] { Fisa2->IncarcaFF2(linie.Text, pozitie); });
    f.Pozitii[0] = linie.Numar;
    return;
  } else if (d == 4) {
    incarcaAntet(kFisierFF1, fisier::Ff1);
  } else if (d == 5) {
    incarcaAntet(kFisierFF2, fisier::Ff2);
    return;
  }

  std::string judet = f.JudetAngajat.empty() ? std::string(" ") : f.JudetAngajat;
  if (JudS.FindItem(judet) < 0)
    Warn(p_.dialogs, "Judet eronat.");
  else
    JudS.SetText(judet);
  bool fisa1 = d == 1 || d == 3;
  Frame1.SetVisible(fisa1);
  if (fisa1) Command1.SetFocus();
  if (fisa1) but_sterg_fisa.SetEnabled(true);
  Ok_Fisa2.SetEnabled(d != 3);
  Ok_Fisa1.SetEnabled(true);
}

void FisaII::GolesteAngajat() {
  Show();
  for (Control* c : {&CodS, &NumeS, &PrenS}) c->SetText("");
  for (std::size_t i = 1; i < AdrS.size(); ++i) AdrS[i]->SetText("");
  for (Control* c : {&Job0, &Job1}) c->SetText("");
  for (Control* c : {&Xrectif, &Xreg, &Xdedu, &XAlteS, &Inv1A, &Inv2A}) c->SetValue(0);
  Ok_Fisa1.SetEnabled(true);
  Ok_Fisa2.SetEnabled(true);
  but_sterg_fisa.SetCaption("Sterge fisa");
  but_sterg_fisa.SetEnabled(false);
  Option1.SetFocus();
}

void FisaII::ReiaDupaFF2() {
  Show();
  for (Control* c : {&CodS, &NumeS, &PrenS}) c->SetText("");
  for (std::size_t i = 1; i < AdrS.size(); ++i) AdrS[i]->SetText("");
  Xrectif.SetValue(0);
  Ok_Fisa1.SetEnabled(true);
  Ok_Fisa2.SetEnabled(true);
  but_sterg_fisa.SetEnabled(false);
  Option1.SetFocus();
}

AntetFisa FisaII::Antet() const {
  AntetFisa a;
  a.CodS = CodS.Text();
  a.NumeS = NumeS.Text();
  a.PrenS = PrenS.Text();
  for (std::size_t i = 0; i < AdrS.size(); ++i) a.AdrS[i] = AdrS[i]->Text();
  a.JudS = JudS.Text();
  return a;
}

// A date is typed zz/ll/aaaa within the fiscal year, and the end of the
// activity can't come before its start. A refused date is emptied.
void FisaII::IesireData(Control& camp) {
  const std::string& an = parametri_.AnFiscal;
  camp.SetText(NormalizeazaData(camp.Text()));
  const std::string& text = camp.Text();
  std::string mesaj;
  bool eroare = false;
  if (!text.empty() && !CitesteData(text)) {
    mesaj += &camp == &Job0 ? "Data angajarii incorecta." : "Data incetarii activitatii incorecta.";
    eroare = true;
  }
  if (!eroare && !text.empty() &&
      std::string_view(text).substr(text.size() >= 4 ? text.size() - 4 : 0) != an) {
    mesaj += "\r\nAnul difera de anul fiscal de referinta " + an + ".";
    eroare = true;
  }
  if (!eroare) {
    auto inceput = CitesteData(Job0.Text());
    auto sfarsit = CitesteData(Job1.Text());
    if (inceput && sfarsit && std::chrono::sys_days(*sfarsit) < std::chrono::sys_days(*inceput)) {
      mesaj += "\r\nData incetarii activitatii este anterioara datei angajarii. ";
      eroare = true;
    }
  }
  if (eroare) {
    p_.dialogs.Box(mesaj, Buttons::Ok, Icon::None, "");
    camp.SetText("");
    camp.SetFocus();
  }
}

void FisaII::Command1_Click() {
  FisaInLucru& f = fisa_;
  const ParametriAn& p = parametri_;
  if (Valoare(CodS.Text()) == 0) {
    Warn(p_.dialogs, "Cod incorect", "  ");
    CodS.SetFocus();
    return;
  }
  // The dates are put in form again but not tested: leaving them did that.
  Job0.SetText(NormalizeazaData(Job0.Text()));
  Job1.SetText(NormalizeazaData(Job1.Text()));
  f.CodCurent = CodS.Text();
  f.DataAngajarii = Job0.Text();
  f.DataIncetarii = Job1.Text();
  f.FlagRectif = Marca(Xrectif);
  f.FlagReg = Marca(Xreg);
  f.FlagDedu = Marca(Xdedu);
  f.FlagAlteS = Marca(XAlteS);
  f.FlagInv1 = Marca(Inv1A);
  f.FlagInv2 = Marca(Inv2A);
  Fisa1_F->PreiaInvaliditatea(Inv1A.Value(), Inv2A.Value());
  f.LunaPrima = LunaPrimaActivitate(f.DataAngajarii, p.PrimaZi);
  f.LunaUltima = LunaUltimaActivitate(f.DataIncetarii, p.UltimaZi);
  Frame1.SetVisible(false);
  Hide();
  Fisa1_F->Deschide(NumeS.Text(), PrenS.Text());
}

void FisaII::Ok_Fisa2_Click() {
  if (CodS.Text().empty()) {
    Warn(p_.dialogs, "Cod incorect", "  ");
    CodS.SetFocus();
    return;
  }
  Frame1.SetVisible(false);
  Hide();
  Fisa2->Deschide("Fisa fiscala II - " + NumeS.Text() + " " + PrenS.Text() + ", cod numeric " +
                  CodS.Text());
  if (fisa_.Pozitii[0] == 0) Fisa2->GolesteFF2();
}

}  // namespace fisc
