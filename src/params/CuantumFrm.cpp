#include "params/CuantumFrm.h"

#include <string>
#include <vector>

#include "platform/Layout.h"
#include "records/Luni.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr int kSus = 112;  // the top of January's row
constexpr int kRand = 24;

template <std::size_t N>
std::array<Control*, N> Coloana(Form& f, const std::string& name, int x, int w) {
  std::array<Control*, N> c{};
  for (std::size_t i = 0; i < N; ++i) {
    int k = static_cast<int>(i);
    c[i] = &TextBox(f, name, 0, x, kSus + kRand * k, w, k).SetAlignRight(true);
  }
  return c;
}

Control& Camp(Form& f, std::string name, int x, int y, int w) {
  return TextBox(f, std::move(name), 0, x, y, w).SetAlignRight(true);
}

// A day of the year's edges: never 0, always two digits.
std::string Zi(std::string_view text) {
  double v = Valoare(text);
  if (v == 0) v = 1;
  std::string zi = TextDin(v);
  if (v < 10) zi.insert(0, 1, '0');
  return zi;
}

}  // namespace

CuantumFrm::CuantumFrm(Desktop& desktop, Platforma& platforma, ParametriAn& parametri)
    : Form(desktop, "CuantumFrm", "Deducere personala de baza si coeficienti de deducere"),
      AnF(Camp(*this, "AnF", 330, 14, 70)),
      prima_zi(Camp(*this, "prima_zi", 330, 44, 40)),
      ultima_zi(Camp(*this, "ultima_zi", 380, 44, 40)),
      Cuanta(Coloana<13>(*this, "Cuanta", 110, 120)),
      Copil(Coloana<12>(*this, "Copil", 250, 70)),
      Sotie(Coloana<12>(*this, "Sotie", 330, 70)),
      Alta(Coloana<12>(*this, "Alta", 410, 70)),
      Maxi(Camp(*this, "Maxi", 700, kSus, 70)),
      hand1(Camp(*this, "hand1", 540, kSus + 70, 70)),
      hand2(Camp(*this, "hand2", 620, kSus + 70, 70)),
      hand3(Camp(*this, "hand3", 700, kSus + 70, 70)),
      Proc_ch(Camp(*this, "Proc_ch", 700, kSus + 120, 70)),
      CotaIF(Camp(*this, "CotaIF", 700, kSus + 170, 70)),
      Command1(Button(*this, "Command1", "OK", 620, kSus + 240, 150, 34)),
      p_(platforma),
      par_(parametri) {
  SetSize(800, kSus + kRand * 13 + 24);
  Label(*this, "EtAnF", "Anul fiscal pentru care se face preluarea :", 20, 14, 300);
  Label(*this, "EtZile", "Prima / ultima  zi lucratoare din an :", 20, 44, 300);
  Label(*this, "EtCuanta", "Deducere personala", 110, 86, 140);
  Label(*this, "EtCoef", "Coef.de deducere ", 250, 66, 230);
  Label(*this, "EtCopil", "Copil", 250, 86, 70);
  Label(*this, "EtSotie", "Sotie", 330, 86, 70);
  Label(*this, "EtAlta", "Alta pers.", 410, 86, 70);
  for (std::size_t i = 0; i < 12; ++i)
    Label(*this, "EtLuna", NumeLuni[i], 20, kSus + kRand * static_cast<int>(i), 85);
  Label(*this, "EtCuanta12", "<-  deducere actualizata cu inflatia", 250, kSus + kRand * 12, 280);
  Label(*this, "EtMaxi", "Maxim", 540, kSus, 150);
  Label(*this, "EtHand", "Coef. de invalid.I/II/alta", 540, kSus + 44, 230);
  Label(*this, "EtProc_ch", "Coeficient pentru cheltuieli profesionale", 540, kSus + 100, 150, 44);
  Label(*this, "EtCotaIF", "Cota impozit final", 540, kSus + 170, 150);

  // Leaving a field puts its value in order; nothing is refused.
  auto intreg = [](Control& c) { c.LostFocus = [&c] { c.SetText(TextDin(Valoare(c.Text()))); }; };
  auto zi = [](Control& c) { c.LostFocus = [&c] { c.SetText(Zi(c.Text())); }; };
  auto zecimal = [](Control& c) { c.LostFocus = [&c] { c.SetText(TextZecimal(c.Text())); }; };
  intreg(AnF);
  zi(prima_zi);
  zi(ultima_zi);
  for (Control* c : Cuanta) intreg(*c);
  for (const auto* col : {&Copil, &Sotie, &Alta})
    for (Control* c : *col) zecimal(*c);
  for (Control* c : {&Maxi, &hand1, &hand2, &hand3, &Proc_ch, &CotaIF}) zecimal(*c);

  // Enter walks the fields in their order, with a few steps of its own.
  auto enter = [](Control& de, Control* la) {
    de.KeyPress = [la](int& key) {
      if (key == kKeyEnter && la) la->SetFocus();
    };
  };
  std::vector<Control*> toate = Toate();
  for (std::size_t i = 0; i + 1 < toate.size(); ++i) enter(*toate[i], toate[i + 1]);
  enter(AnF, Cuanta[0]);
  enter(hand2, &Proc_ch);
  enter(hand3, nullptr);
  enter(CotaIF, &Command1);

  // The button and the window's frame close alike, through the writer.
  Command1.Click = [this] {
    SalveazaCuantum(p_.files, Campuri(), par_);
    Hide();
  };
  Closing = [this](bool&) { SalveazaCuantum(p_.files, Campuri(), par_); };
}

std::vector<Control*> CuantumFrm::Toate() const {
  std::vector<Control*> toate{&AnF, &prima_zi, &ultima_zi};
  toate.insert(toate.end(), Cuanta.begin(), Cuanta.end());
  for (const auto* col : {&Copil, &Sotie, &Alta})
    toate.insert(toate.end(), col->begin(), col->end());
  toate.insert(toate.end(), {&Maxi, &hand1, &hand2, &hand3, &Proc_ch, &CotaIF});
  return toate;
}

void CuantumFrm::Deschide(bool doarVizualizare) {
  bool nou = !Visible();
  IncarcaCuantum(p_.files, par_);
  Umple(CampuriDin(par_));
  if (nou) {
    for (Control* c : Toate()) c->SetEnabled(true);
    Command1.SetVisible(true);
  }
  Show();
  if (doarVizualizare) {
    for (Control* c : Toate()) c->SetEnabled(false);
    Command1.SetVisible(false);
  }
}

void CuantumFrm::Umple(const CampuriCuantum& c) {
  AnF.SetText(c.AnF);
  prima_zi.SetText(c.prima_zi);
  ultima_zi.SetText(c.ultima_zi);
  for (std::size_t i = 0; i < 13; ++i) Cuanta[i]->SetText(c.Cuanta[i]);
  for (std::size_t i = 0; i < 12; ++i) {
    Copil[i]->SetText(c.Copil[i]);
    Sotie[i]->SetText(c.Sotie[i]);
    Alta[i]->SetText(c.Alta[i]);
  }
  Maxi.SetText(c.Maxi);
  hand1.SetText(c.hand1);
  hand2.SetText(c.hand2);
  hand3.SetText(c.hand3);
  Proc_ch.SetText(c.Proc_ch);
  CotaIF.SetText(c.CotaIF);
}

CampuriCuantum CuantumFrm::Campuri() const {
  CampuriCuantum c;
  c.AnF = AnF.Text();
  c.prima_zi = prima_zi.Text();
  c.ultima_zi = ultima_zi.Text();
  for (std::size_t i = 0; i < 13; ++i) c.Cuanta[i] = Cuanta[i]->Text();
  for (std::size_t i = 0; i < 12; ++i) {
    c.Copil[i] = Copil[i]->Text();
    c.Sotie[i] = Sotie[i]->Text();
    c.Alta[i] = Alta[i]->Text();
  }
  c.Maxi = Maxi.Text();
  c.hand1 = hand1.Text();
  c.hand2 = hand2.Text();
  c.hand3 = hand3.Text();
  c.Proc_ch = Proc_ch.Text();
  c.CotaIF = CotaIF.Text();
  return c;
}

}  // namespace fisc
