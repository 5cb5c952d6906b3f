#include "yearops/AlteFunctii.h"

#include <string>

#include "platform/Layout.h"
#include "records/Numere.h"
#include "yearops/PreluareAnPrecedent.h"
#include "yearops/RegularizareAnuala.h"
#include "yearops/Subdirector.h"
#include "yearops/UnireDischete.h"

namespace fisc {

namespace {

constexpr std::string_view kIntrari[] = {
    "1. PRELUARE fise fiscale  din anul precedent (initializate si fara fisele celor plecati).",
    "2. REGULARIZARE   fise fiscale 1",
    "3. RESTAURARE   fisiere de date  (din subdirector in directorul de lucru)",
    "4. SALVARE   fisiere de date  (intr-un subdirector desemnat prin cod angajator)",
    "5. UNIRE  fisiere de date preluate de pe una sau mai multe dischete",
};

// The years stand in this text as they were written for this year's program.
constexpr std::string_view kPreluareAbandonata =
    "   Preluare abandonata. Fisierele text sunt goale sau nu \r\n"
    "contin date pentru anul 2001.\r\n"
    "   Pentru a prelua datele din anul 2001, iesiti din aplicatie \r\n"
    "si copiati fisierele text Repfisc,Ff1,Ff2 si Deduceri in\r\n"
    "directorul aplicatiei. Dupa preluare, fisierele Repfisc,Ff1,Ff2\r\n"
    "si Deduceri preiau structura anului 2002.";

constexpr std::string_view kUnire =
    "    Fiecare angajator trebuie sa predea la unitatea fiscala cate un singur fisier "
    "Rep_aaaa.txt, Ff1_aaaa.txt, Ff2_aaaa.txt, Ded_aaaa.txt.\r\n\r\n"
    "    Daca ati incarcat fise fiscale pe mai multe statii de lucru, salvati-le pe dischete si "
    "apoi utilizati functia de 'Unire dischete'.   In caz de manevrare gresita a dischetelor, "
    "puteti relua de la capat operatia de unire. \r\n"
    "   ATENTIE ! Apeland functia de 'Unire dischete' se sterg datele introduse pe acest "
    "calculator.\r\n\r\n"
    "   PASI DE URMAT inainte de unire dischete, daca ati incarcat fise fiscale pe ACEST "
    "calculator : \r\n"
    "        1. SALVATI fisierele in subdirector (se poate reveni cu RESTAURARE din "
    "subdirector).\r\n"
    "        2. SALVATI fisierele pe discheta.\r\n"
    "Dischetele de la toate statiile de lucru (inclusiv statia de fata) se vor introduce pe "
    "rand pentru a fi unite.\r\n\r\n"
    "   Continuati unirea fisierelor text ?";

}  // namespace

AlteFunctii::AlteFunctii(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                         const TabelImpozit& impozitar)
    : Form(desktop, "AlteFunctii", "Alte functii ale aplicatiei"),
      Label1(Label(*this, "Label1", "Alegeti functia dorita :", 20, 16, 300)),
      List1(Add(ControlKind::ListBox, "List1").At(20, 44, 600, 110)),
      Command11(Button(*this, "Command11", "Help", 520, 166, 100)),
      p_(platforma),
      parametri_(parametri),
      impozitar_(impozitar) {
  SetSize(640, 210);
  for (std::string_view intrare : kIntrari) List1.AddItem(intrare);
  List1.Click = [this] {
    switch (List1.ListIndex()) {
      case 0: butPrelAnPrec(); break;
      case 1: butRegText(); break;
      case 2: Restaurare(); break;
      case 3: Salvare(); break;
      case 4: butUnire(); break;
      default: break;
    }
  };
  Command11.Click = [this] { p_.launcher.Start("notepad", "help1.txt"); };
}

void AlteFunctii::butPrelAnPrec() {
  Dialogs& d = p_.dialogs;
  const std::string& an = parametri_.AnFiscal;
  std::string precedent = AnPrecedent(an);
  d.Busy(true);
  if (PreluareImposibila(p_.files, an)) {
    Warn(d, kPreluareAbandonata, "");
    d.Busy(false);
    return;
  }
  std::string intrebare = "Se preiau datele anului " + precedent +
                          " pentru a fi actualizate cu informatii din statele de plata aferente "
                          "anului " +
                          an + " (venituri, impozite, fise noi). Continuati ? ";
  if (!AskYesNo(d, intrebare, "")) {
    d.Busy(false);
    return;
  }
  ContoarePreluare n = PreiaAnPrecedent(p_.files, an);
  d.Box("Preluarea fiselor din " + precedent + " a fost efectuata: " + std::to_string(n.FF1Scrise) +
            " fise '1' (din " + std::to_string(n.FF1Citite) + ") si " +
            std::to_string(n.FF2Scrise) + " fise '2' (din " + std::to_string(n.FF2Citite) + ").",
        Buttons::Ok, Icon::None, " ");
  d.Busy(false);
}

void AlteFunctii::butRegText() {
  Dialogs& d = p_.dialogs;
  d.Busy(true);
  RezultatRegularizare r = RegularizeazaToate(p_.files, parametri_, impozitar_);
  d.Busy(false);
  switch (r) {
    case RezultatRegularizare::FaraDeducereAnuala:
      Warn(d,
           "  Nu se face regularizarea decat pentru o grila \r\ncorecta de calcul a impozitului "
           "pe venitul global\r\nrealizat in anul " +
               parametri_.AnFiscal + " .",
           "");
      break;
    case RezultatRegularizare::FaraFisier: Warn(d, "  Lipseste fisierul Ff1_aaaa.txt .", ""); break;
    case RezultatRegularizare::Efectuata:
      d.Box("Regularizarea a fost efectuata.", Buttons::Ok, Icon::None, "");
      break;
  }
}

void AlteFunctii::Restaurare() {
  Dialogs& d = p_.dialogs;
  std::string cod = d.Input("Dati CF/CNP angajator de restaurat : ", "", "").value_or("");
  switch (Restaureaza(p_.files, cod, parametri_.AnFiscal)) {
    case RezultatRestaurare::Refuzata:
      d.Box("Restaurarea nu a fost efectuata.", Buttons::Ok, Icon::None, " ");
      break;
    case RezultatRestaurare::FaraSubdirector:
      d.Box("Subdirectorul " + CaleSubdirector(p_.files, cod) +
                "din care se doreste restaurarea nu exista.",
            Buttons::Ok, Icon::None, "");
      break;
    case RezultatRestaurare::Efectuata:
      d.Box("Restaurarea a fost efectuata.", Buttons::Ok, Icon::None, " ");
      break;
  }
}

void AlteFunctii::Salvare() {
  Dialogs& d = p_.dialogs;
  RezultatSalvare r = SalveazaInSubdirector(p_.files, parametri_.AnFiscal);
  if (r.stare == RezultatSalvare::FisiereGoale) {
    Warn(d, "Fisiere goale.", "");
    return;
  }
  if (r.stare == RezultatSalvare::Refuzata) {
    d.Box("Salvarea nu a fost efectuata.", Buttons::Ok, Icon::None, " ");
    return;
  }
  if (AskYesNo(d, "Doriti sa stergeti fisierele text de date din directorul de lucru ?", "")) {
    GolesteFisiereLucru(p_.files);
    if (GolesteAngajator) GolesteAngajator();
  }
  d.Box("Salvarea a fost efectuata in subdirectorul " + r.cale, Buttons::Ok, Icon::None, " ");
}

void AlteFunctii::butUnire() {
  Dialogs& d = p_.dialogs;
  if (!AskYesNo(d, kUnire, "Unire fisiere text preluate de pe mai multe dischete  ")) {
    d.Busy(false);
    return;
  }
  d.Busy(true);
  std::optional<RezultatUnire> r =
      UnesteDischete(p_.files, p_.drive, d, p_.clock, parametri_.AnFiscal);
  d.Busy(false);
  if (!r) return;
  d.Box("S-au restaurat " + std::to_string(r->FF1) + " fise fiscale tip 1 si " +
            std::to_string(r->FF2) + " fise fiscale tip 2 de pe " + std::to_string(r->NrDischete) +
            " dischete.",
        Buttons::Ok, Icon::None, " ");
}

}  // namespace fisc
