#include "params/ImpozitFrm.h"

#include <vector>

#include "platform/Failure.h"
#include "platform/Layout.h"
#include "records/Luni.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr int kSus = 96;  // the top of the first bracket row
constexpr int kRand = 28;

constexpr const char* kOrdine = "Datele trebuiesc introduse in ordine crescatoare";

std::array<std::array<Control*, 10>, 4> Randuri(Form& f) {
  std::array<std::array<Control*, 10>, 4> c{};
  for (std::size_t k = 0; k < 10; ++k) {
    int i = static_cast<int>(k), y = kSus + kRand * i;
    c[0][k] = &f.Add(ControlKind::Label, "LimMin", i).At(20, y, 150, 22);
    c[1][k] = &TextBox(f, "LimMax", 0, 190, y, 150, i);
    c[2][k] = &TextBox(f, "ImpFix", 0, 360, y, 130, i);
    c[3][k] = &TextBox(f, "Procent", 0, 510, y, 80, i);
    for (Control* caseta : {c[0][k], c[1][k], c[2][k], c[3][k]}) caseta->SetAlignRight(true);
  }
  return c;
}

double V(const Control* c) { return Valoare(c->Text()); }

// A box counts as empty with nothing in it or a plain "0".
bool Gol(const Control* c) { return c->Text().empty() || c->Text() == "0"; }

// Rising order around box k of a column, as the neighbours above and below
// see it.
bool NuCreste(const std::array<Control*, 10>& col, std::size_t k) {
  return V(col[k - 1]) >= V(col[k]) || V(col[k + 1]) <= V(col[k]);
}

// Enter in the middle rows refuses figures out of rising order.
bool OrdineGresita(const std::array<Control*, 10>& col, std::size_t k) {
  return k >= 1 && k <= 8 && !Gol(col[k]) && !Gol(col[k + 1]) && NuCreste(col, k);
}

// The fixed tax of a bracket is what the brackets below it make, give or
// take a leu of rounding.
bool ImpozitFixGresit(double impozit, double asteptat) {
  return !(impozit > asteptat - 1 && impozit < asteptat + 1);
}

}  // namespace

ImpozitFrm::ImpozitFrm(Desktop& desktop, Platforma& platforma, TabelImpozit& tabel)
    : Form(desktop, "ImpozitFrm", "IMPOZITAR"),
      Timp(Add(ControlKind::ComboBox, "Timp").SetListOnly(true).At(110, 16, 150, 24)),
      PrelMod(Button(*this, "PrelMod", "Modificare", 290, 14, 140)),
      casete_(Randuri(*this)),
      Ok_Imp(Button(*this, "Ok_Imp", "&Ok modificare", 620, kSus, 150)),
      Cancel_Imp(Button(*this, "Cancel_Imp", "&Cancel modificare", 620, kSus + 40, 150)),
      Atentie(Label(*this, "Atentie",
                    " Atentie ! In vederea efectuarii REGULARIZARII anuale, verificati  baremul "
                    "anual si deducerea personala de baza anuala - sa fie cele corectate cu  rata "
                    "inflatiei.",
                    20, kSus + kRand * 10 + 16, 750, 44)),
      p_(platforma),
      tabel_(tabel) {
  SetSize(790, 460);
  Label(*this, "EtTimp", "Valabil din ", 20, 16, 90, 24);
  Label(*this, "EtLimMin", "Limita minima", 20, 70, 150);
  Label(*this, "EtLimMax", "Limita maxima", 190, 70, 150);
  Label(*this, "EtImpFix", "Impozit fix", 360, 70, 130);
  Label(*this, "EtProcent", "Procent", 510, 70, 80);
  for (std::string_view luna : NumeLuni) Timp.AddItem(luna);
  Timp.AddItem("An");
  Ok_Imp.SetVisible(false);
  Cancel_Imp.SetVisible(false);

  Timp.Click = [this] {
    if (Timp.ListIndex() < 0) return;
    bool gasit = false;
    AfisImp(LunaAleasa(), gasit);
  };
  Timp.KeyPress = [this](int& key) {
    if (key != kKeyEnter) return;
    bool gasit = false;
    AfisImp(LunaAleasa(), gasit);
    PrelMod.SetFocus();
  };
  PrelMod.Click = [this] {
    Casete(true);
    bool gasit = false;
    AfisImp(LunaAleasa(), gasit);
    if (gasit)
      BlocScr(LunaAleasa());
    else
      Timp.SetFocus();
  };

  for (std::size_t k = 0; k < 10; ++k) {
    int i = static_cast<int>(k);
    LimMax[k]->LostFocus = [this, i] { IesireLimMax(i); };
    ImpFix[k]->LostFocus = [this, i] { IesireSuma(*ImpFix[static_cast<std::size_t>(i)], i); };
    Procent[k]->LostFocus = [this, i] { IesireSuma(*Procent[static_cast<std::size_t>(i)], i); };
    LimMax[k]->KeyPress = [this, i](int& key) {
      if (key == kKeyEnter) EnterLimMax(i);
    };
    ImpFix[k]->KeyPress = [this, i](int& key) {
      if (key == kKeyEnter) EnterImpFix(i);
    };
    Procent[k]->KeyPress = [this, i](int& key) {
      if (key == kKeyEnter) EnterProcent(i);
    };
  }

  Ok_Imp.Click = [this] { OkImp(); };
  Cancel_Imp.Click = [this] {
    Casete(false);
    BlocDel();
    Timp.SetFocus();
  };
  // The file follows the table each time the screen goes, changed or not.
  Closing = [this](bool&) { SalvImpozit(p_.files, tabel_); };
}

void ImpozitFrm::Deschide(bool doarVizualizare) {
  if (!Visible()) {
    // A screen that opens again starts as new.
    BlocDel();
    Timp.SetListIndex(-1);
    IncarcaImpozitar(p_.files, tabel_);
    Casete(false);
    Timp.SetListIndex(0);
  }
  if (doarVizualizare) PrelMod.SetEnabled(false);
  Show();
}

void ImpozitFrm::Casete(bool deschise) {
  for (const auto* col : {&LimMax, &ImpFix, &Procent})
    for (Control* c : *col) c->SetEnabled(deschise);
}

void ImpozitFrm::BlocDel() {
  for (std::size_t k = 0; k < 10; ++k) {
    LimMin[k]->SetCaption("");
    LimMax[k]->SetText("");
    ImpFix[k]->SetText("");
    Procent[k]->SetText("");
  }
  Ok_Imp.SetVisible(false);
  Cancel_Imp.SetVisible(false);
  Timp.SetEnabled(true);
  PrelMod.SetEnabled(true);
}

void ImpozitFrm::BlocScr(int) {
  Timp.SetEnabled(false);
  PrelMod.SetEnabled(false);
  Ok_Imp.SetVisible(true);
  Cancel_Imp.SetVisible(true);
  LimMax[0]->SetFocus();
}

void ImpozitFrm::AfisImp(int luna, bool& gasit) {
  std::optional<GrupaImpozit> grupa = GrupaInVigoare(tabel_, luna);
  if (!grupa) {
    BlocDel();
    gasit = false;
    return;
  }
  // The lowest bracket goes on top. Rows below the group's keep what the
  // last table shown left there.
  std::size_t k = 0;
  for (std::size_t r = grupa->ultim + 1; r-- > grupa->prim; ++k) {
    if (k >= LimMin.size()) Fail(err::ControlArrayElement);
    const RandImpozit& rand = tabel_[r];
    LimMin[k]->SetCaption(TextCelula(rand[1]));
    LimMax[k]->SetText(TextCelula(rand[2]));
    ImpFix[k]->SetText(TextCelula(rand[3]));
    Procent[k]->SetText(TextCelula(rand[4]));
  }
  gasit = true;
}

void ImpozitFrm::IesireLimMax(int i) {
  auto k = static_cast<std::size_t>(i);
  Control* max = LimMax[k];
  max->SetText(TextDin(V(max)));
  // An emptied limit above the lowest bracket ends the table there.
  if (Gol(max) && LimMin[k]->Caption() != "0") {
    for (std::size_t j = k; j < 10; ++j) {
      LimMin[j]->SetCaption("");
      LimMax[j]->SetText("");
      ImpFix[j]->SetText("");
      Procent[j]->SetText("");
    }
    return;
  }
  // The last row has no row below it to take its limit.
  if (k + 1 >= LimMin.size()) Fail(err::ControlArrayElement);
  LimMin[k + 1]->SetCaption(TextDin(V(max) + 1));
}

void ImpozitFrm::IesireSuma(Control& caseta, int i) {
  caseta.SetText(TextDin(V(&caseta)));
  if (LimMax[static_cast<std::size_t>(i)]->Text().empty() && caseta.Text() == "0")
    caseta.SetText("");
}

void ImpozitFrm::EnterLimMax(int i) {
  auto k = static_cast<std::size_t>(i);
  if (OrdineGresita(LimMax, k)) {
    Warn(p_.dialogs, kOrdine, "  ");
    return;
  }
  if (k == 9 || Gol(LimMax[k])) {
    Ok_Imp.SetFocus();
    return;
  }
  ImpFix[k]->SetFocus();
  LimMin[k + 1]->SetCaption(TextDin(V(LimMax[k]) + 1));
}

void ImpozitFrm::EnterImpFix(int i) {
  auto k = static_cast<std::size_t>(i);
  if (OrdineGresita(ImpFix, k)) {
    Warn(p_.dialogs, kOrdine, "  ");
    return;
  }
  if (V(LimMax[k]) <= V(ImpFix[k])) {
    Warn(p_.dialogs, "Impozit fix mai mare decat limita maxima");
    return;
  }
  if (k == 9)
    Ok_Imp.SetFocus();
  else
    Procent[k]->SetFocus();
}

void ImpozitFrm::EnterProcent(int i) {
  auto k = static_cast<std::size_t>(i);
  // 100 itself is refused, whatever the words say.
  if (V(Procent[k]) >= 100) {
    Warn(p_.dialogs, "Procent mai mare decat 100");
    return;
  }
  if (OrdineGresita(Procent, k)) {
    Warn(p_.dialogs, kOrdine, "  ");
    return;
  }
  if (k == 9)
    Ok_Imp.SetFocus();
  else
    LimMax[k + 1]->SetFocus();
}

void ImpozitFrm::OkImp() {
  if (Gol(LimMax[0])) {
    Casete(false);
    BlocDel();
    Timp.SetFocus();
    return;
  }
  bool limita = false, fix = false, procent = false, gresit = false;
  std::size_t randGresit = 0;
  // The last filled row is only ever a neighbour: k needs a filled row below.
  for (std::size_t k = 1; k <= 8; ++k) {
    if (V(LimMax[k + 1]) == 0) continue;
    limita = limita || NuCreste(LimMax, k);
    fix = fix || NuCreste(ImpFix, k);
    procent = procent || NuCreste(Procent, k);
    if (k == 1) {
      if (ImpozitFixGresit(V(ImpFix[1]), V(LimMax[0]) * V(Procent[0]) / 100)) {
        gresit = true;
        randGresit = 0;
      }
    } else if (V(ImpFix[k]) != 0) {
      double asteptat =
          V(ImpFix[k - 1]) + (V(LimMax[k - 1]) - V(LimMax[k - 2]) - 1) * V(Procent[k - 1]) / 100;
      // The row noted is the one above the row at fault.
      if (ImpozitFixGresit(V(ImpFix[k]), asteptat)) {
        gresit = true;
        randGresit = k - 1;
      }
    }
  }
  auto arata = [this](bool notat, const char* text) {
    if (notat) p_.dialogs.Box(text, Buttons::Ok, Icon::None, "");
  };
  arata(limita, "Limita maxima nu e crescatoare");
  arata(fix, "Impozitul fix nu e crescator");
  arata(procent, "Procentul nu e crescator");
  arata(gresit, "Impozitul fix este gresit");

  if (!limita && !fix && !procent && !gresit) {
    PrelImp();
    Timp.SetEnabled(true);
    PrelMod.SetEnabled(true);
    Timp.SetFocus();
    Casete(false);
    Ok_Imp.SetVisible(false);
    Cancel_Imp.SetVisible(false);
    return;
  }
  Casete(true);
  Control* inapoi = LimMax[0];
  if (fix) inapoi = ImpFix[0];
  if (procent) inapoi = Procent[0];
  if (gresit) inapoi = ImpFix[randGresit];
  inapoi->SetFocus();
}

void ImpozitFrm::PrelImp() {
  double luna = LunaAleasa();
  std::vector<RandImpozit> grupa;
  for (std::size_t k = 10; k-- > 0;)
    if (!LimMax[k]->Text().empty())
      grupa.push_back(
          {luna, Valoare(LimMin[k]->Caption()), V(LimMax[k]), V(ImpFix[k]), V(Procent[k])});
  InlocuiesteGrupa(tabel_, luna, grupa);
}

}  // namespace fisc
