#include "sheets/FrmGasit.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "platform/Layout.h"
#include "sheets/FisaII.h"
#include "sheets/Stocare.h"

namespace fisc {

namespace {

std::array<Control*, 4> Butoane(Form& f) {
  std::array<Control*, 4> b{};
  for (int k = 0; k < 4; ++k)
    b[static_cast<std::size_t>(k)] =
        &f.Add(ControlKind::Button, "but", k).At(20 + 200 * (k % 2), 50 + 48 * (k / 2), 190, 38);
  return b;
}

// Captions of but(0) to but(3) by what exists; an empty one is disabled.
struct Captiuni {
  std::string_view gasit;
  std::array<std::string_view, 4> texte;
};
constexpr Captiuni kCaptiuni[] = {
    {"F1", {"Modific Fisa 1", "Creez Fisa 2", "Sterg Fisa 1", ""}},
    {"F2", {"Modific Fisa 2", "Creez Fisa 1", "", "Sterg Fisa 2"}},
    {"F1F2", {"Modific Fisa 1", "Modific Fisa 2", "Sterg Fisa 1", "Sterg Fisa 2"}},
};

// Decizie of but(0) and but(1) by what exists, and the state of Ok_Fisa2 and
// Frame1 of the employee screen after the load.
struct Alegere {
  std::string_view gasit;
  int buton;
  int decizie;
  bool fisa2;
  bool cadru;
};
constexpr Alegere kAlegeri[] = {
    {"F1", 0, 1, false, true}, {"F2", 0, 2, true, false}, {"F1F2", 0, 3, false, true},
    {"F1", 1, 4, true, false}, {"F2", 1, 5, false, true}, {"F1F2", 1, 6, true, false},
};

}  // namespace

FrmGasit::FrmGasit(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                   FisaInLucru& fisa)
    : Form(desktop, "frmGasit", "Cod angajat existent !"),
      Label1(Label(*this, "Label1", "  Decizie :", 20, 16, 200)),
      but(Butoane(*this)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa) {
  SetSize(420, 160);
  for (int k = 0; k < 4; ++k) but[static_cast<std::size_t>(k)]->Click = [this, k] { Apasa(k); };
  // The clerk must choose here before working elsewhere.
  Deactivate = [this] { but[0]->SetFocus(); };
  // Closed without a choice: the typed code is dropped.
  Closing = [this](bool&) { Fisa_II->GolesteAngajat(); };
}

void FrmGasit::Arata(std::string_view gasit) {
  for (const Captiuni& c : kCaptiuni) {
    if (c.gasit != gasit) continue;
    for (std::size_t k = 0; k < 4; ++k) {
      but[k]->SetCaption(c.texte[k]);
      but[k]->SetEnabled(!c.texte[k].empty());
    }
  }
  Show();
  but[0]->SetFocus();
}

void FrmGasit::Apasa(int k) {
  FisaInLucru& f = fisa_;
  FisaII& ecran = *Fisa_II;
  const std::string& an = parametri_.AnFiscal;
  for (const Alegere& a : kAlegeri) {
    if (a.gasit != f.Gasit || a.buton != k) continue;
    f.Decizie = a.decizie;
    ecran.IncarcaDupaDecizie();
    ecran.Ok_Fisa1.SetEnabled(false);
    ecran.Ok_Fisa2.SetEnabled(a.fisa2);
    ecran.Frame1.SetVisible(a.cadru);
  }
  bool cuFisa1 = f.Gasit == "F1" || f.Gasit == "F1F2";
  bool cuFisa2 = f.Gasit == "F2" || f.Gasit == "F1F2";
  if (k == 2 && cuFisa1 && !but[2]->Caption().empty()) {
    StergeFF1(p_.files, an, f.CodCurent);
    ecran.GolesteAngajat();
  }
  if (k == 3 && cuFisa2 && !but[3]->Caption().empty()) {
    StergeFF2(p_.files, an, f.CodCurent);
    ecran.GolesteAngajat();
  }
  Hide();
}

}  // namespace fisc
