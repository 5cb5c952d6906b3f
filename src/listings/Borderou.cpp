#include "listings/Borderou.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "listings/Cadru.h"
#include "listings/Randuri.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Layout.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr std::string_view kFisier = "Borderou.txt";
constexpr std::array<std::string_view, 5> kTipBorderou = {"", "1", "1 neregularizate",
                                                          "1 regularizate ", "2"};
constexpr std::array<std::string_view, 5> kCondListare = {"T", "U", "N", "R", "D"};
const std::string kLinie(122, '_');
const std::string kLinieTotal = std::string(58, ' ') + std::string(64, '_');

// The wide lines of the table stand whole, as they print.
// clang-format off
constexpr std::string_view kCap1 =
    " Nr.   Cod angajat       Nume si prenume                    Tip fisa Regu- Rec-       Venit net         Impozit calculat  ";
constexpr std::string_view kCap2 =
    " crt.                                                       ________ lari- tifi-                          si retinut      ";
constexpr std::string_view kCap3 =
    "                                                            FF1  FF2 zare  care                                           ";
// clang-format on

struct Numaratoare {
  long long NrCrt = 0, NrFF1 = 0, NrFF2 = 0, NrRegularizate = 0, NrRectificate = 0;
  double TotalVenit1 = 0, TotalImpozit1 = 0, TotalVenit2 = 0, TotalImpozit2 = 0;
};

void ScrieCap(Files& files, LineWriter& out, StareListare& s, const CereriBorderou& c) {
  out.Line(std::string(24, ' ') + "B O R D E R O U   D E   I N S O T I R E");
  out.Line(std::string(22, ' ') + "a dischetei cu fise fiscale " +
           std::string(kTipBorderou[static_cast<std::size_t>(c.Continut)]) + " pentru anul " +
           c.AnFiscal);
  for (int i = 0; i < 3; ++i) out.Line("");
  DateAngajator(files, out, s.LiniePagina);
  out.Line("");
  out.Line("Persoana de contact : " + c.PersoanaContact);
  out.Line("Telefon : " + c.TelefonContact);
  out.Line("");
  out.Line(kLinie);
  out.Line(kCap1);
  out.Line(kCap2);
  out.Line(kCap3);
  out.Line(kLinie);
}

// One row, built in `rand`; `coloaneTip` stands in columns 61 to 76, the kind
// of sheet and the regularisation mark.
void ScrieRand(LineWriter& out, std::string& rand, long long nrCrt, const RandFisa& r,
               std::string_view coloaneTip, bool rectificata) {
  rand.clear();
  AdaugaDreapta(rand, std::to_string(nrCrt), 5);
  rand += ' ';
  AdaugaDreapta(rand, r.Cod, 13);
  rand += ' ';
  const std::size_t inceput = rand.size();
  AdaugaNume(rand, r);
  const std::size_t lungime = rand.size() - inceput;
  // The name is cut at 40 here and goes on in a line of its own.
  std::string rest = lungime > 40 ? rand.substr(inceput + 40) : std::string();
  rand.resize(inceput + 40, ' ');
  rand += coloaneTip;
  rand += rectificata ? "  X " : "    ";
  std::string venit(r.Venit), impozit(r.Impozit);
  AdaugaSuma(rand, venit, 21);
  AdaugaSuma(rand, impozit, 21);
  if (!rest.empty()) {
    rand += "\r\n";
    rand.append(20, ' ');
    rand += rest;
  }
  // The row and its line end in one write: the borderou has a row a sheet.
  rand += "\r\n";
  out.Write(rand);
}

void ScrieRanduriFF1(Files& files, LineWriter& out, const std::string& sursa,
                     std::string& codCurent, Numaratoare& n) {
  LineReader in = files.Read(sursa);
  std::string linie, rand;
  while (in.Next(linie)) {
    RandFisa r = CitesteRandFF1(linie, 13);
    n.NrCrt += 1;
    n.NrFF1 += 1;
    codCurent = r.Cod;
    n.TotalVenit1 += ValoareSuma(r.Venit);
    n.TotalImpozit1 += ValoareSuma(r.Impozit);
    bool regularizata = r.FlagReg == "X", rectificata = r.FlagRectif == "X";
    if (regularizata) n.NrRegularizate += 1;
    if (rectificata) n.NrRectificate += 1;
    ScrieRand(out, rand, n.NrCrt, r, regularizata ? "  X         X   " : "  X             ",
              rectificata);
  }
}

void ScrieRanduriFF2(Files& files, LineWriter& out, const std::string& sursa,
                     std::string& codCurent, Numaratoare& n) {
  LineReader in = files.Read(sursa);
  std::string linie, rand;
  while (in.Next(linie)) {
    RandFisa r = CitesteRandFF2(linie, 12);
    n.NrCrt += 1;
    n.NrFF2 += 1;
    codCurent = r.Cod;
    n.TotalVenit2 += ValoareSuma(r.Venit);
    n.TotalImpozit2 += ValoareSuma(r.Impozit);
    bool rectificata = r.FlagRectif == "X";
    if (rectificata) n.NrRectificate += 1;
    ScrieRand(out, rand, n.NrCrt, r, "        X       ", rectificata);
  }
}

// A sum of two totals is a new value at each call of FormatSuma, so unlike a
// single total it keeps its sign and its width.
std::string CelulaSumaNoua(double suma, int latime) {
  std::string valoare = TextSuma(suma);
  return AliniazaDreapta(FormatSuma(valoare), latime);
}

void ScrieSfarsit(LineWriter& out, Numaratoare& n, const CereriBorderou& c) {
  out.Line(kLinie);
  std::string total = "      TOTAL                                              ";
  total += PeDreapta(std::to_string(n.NrFF1), 6);
  total += PeDreapta(std::to_string(n.NrFF2), 6);
  total += PeDreapta(std::to_string(n.NrRegularizate), 6);
  // The rectified count stands behind four blanks whatever its length.
  total += "    " + std::to_string(n.NrRectificate);
  total += CelulaSumaNoua(n.TotalVenit1 + n.TotalVenit2, 21);
  total += CelulaSumaNoua(n.TotalImpozit1 + n.TotalImpozit2, 21);
  out.Line(total);
  out.Line(kLinie);
  const std::pair<const char*, std::pair<double, double>> linii[] = {
      {"Total fise fiscale 1 :", {n.TotalVenit1, n.TotalImpozit1}},
      {"Total fise fiscale 2 :", {n.TotalVenit2, n.TotalImpozit2}}};
  for (const auto& [eticheta, sume] : linii) {
    std::string venit = TextSuma(sume.first), impozit = TextSuma(sume.second);
    std::string linie = std::string(58, ' ') + eticheta;
    linie += CelulaSuma(venit, 21);
    linie += CelulaSuma(impozit, 21);
    out.Line(linie);
    out.Line(kLinieTotal);
  }
  out.Line("");
  out.Line("");
  out.Line("   Sub sanctiunile aplicate faptei de fals in acte publice, declar ca datele din ");
  out.Line("aceste fise fiscale sunt corecte si complete.");
  out.Line("Nume, prenume  " + Majuscule(c.Nume));
  out.Line("Functia  " + Majuscule(c.Functie));
  out.Line("Semnatura si stampila angajatorului__________________________________________");
}

}  // namespace

void ScrieBorderou(Files& files, StareListare& s, std::string& codCurent, const CereriBorderou& c) {
  if (c.Continut < 0 || c.Continut >= static_cast<int>(ContinutBorderou.size()))
    Fail(err::SubscriptOutOfRange);
  const auto continut = static_cast<std::size_t>(c.Continut);
  files.DeleteIfExists(kFisier);
  LineWriter out = files.Write(kFisier);
  s.CondListare = kCondListare[continut];
  ScrieCap(files, out, s, c);

  Numaratoare n;
  if (continut <= 3) {
    if (continut <= 1) {
      s.FisierDeListat = SursaFF1(files);
    } else {
      s.FisierSursa = SursaFF1(files);
      s.FisierDeListat = continut == 2 ? listare::Ff1N : listare::Ff1R;
      FiltruFise(files, s, codCurent);
    }
    ScrieRanduriFF1(files, out, s.FisierDeListat, codCurent, n);
  }
  if (continut == 0 || continut == 4) {
    s.FisierDeListat = SursaFF2(files);
    ScrieRanduriFF2(files, out, s.FisierDeListat, codCurent, n);
  }
  ScrieSfarsit(out, n, c);
  out.Close();
}

}  // namespace fisc

namespace fisc {

LisBord::LisBord(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                 FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "LisBord", "Conditii pentru listare Borderou"),
      Combo2(Add(ControlKind::ComboBox, "Combo2").SetListOnly(true).At(250, 20, 330, 22)),
      Dnupren(TextBox(*this, "Dnupren", 0, 250, 70, 330)),
      Dfunc(TextBox(*this, "Dfunc", 0, 250, 100, 330)),
      Dtel(TextBox(*this, "Dtel", 0, 250, 130, 200)),
      DpersC(TextBox(*this, "DpersC", 0, 250, 160, 330)),
      Command1(Button(*this, "Command1", "Listare", 250, 250, 150, 32)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa),
      listare_(listare) {
  SetSize(620, 300);
  Label(*this, "EtCombo2", "Continutul borderoului de listat", 20, 20, 220);
  Label(*this, "EtDnupren", "Nume si prenume :", 20, 70, 220);
  Label(*this, "EtDfunc", "Functie :", 20, 100, 220);
  Label(*this, "EtDtel", "Telefon :", 20, 130, 220);
  Label(*this, "EtDpersC", "Pers. de contact :", 20, 160, 220);
  Label(*this, "EtNota",
        "Pentru o incadrare buna in pagina in format A4 la listarea sub WordPad, setati Font "
        "Size=9.",
        20, 200, 580);
  for (std::string_view item : ContinutBorderou) Combo2.AddItem(item);

  const std::pair<Control*, Control*> ordine[] = {
      {&Dnupren, &Dfunc}, {&Dfunc, &Dtel}, {&Dtel, &DpersC}, {&DpersC, &Command1}};
  for (const auto& pereche : ordine) {
    Control* urmator = pereche.second;
    pereche.first->KeyPress = [urmator](int& key) {
      if (key == kKeyEnter) urmator->SetFocus();
    };
  }
  Dnupren.LostFocus = [this] { Dnupren.SetText(Majuscule(Dnupren.Text())); };
  Dfunc.LostFocus = [this] { Dfunc.SetText(Majuscule(Dfunc.Text())); };
  Dtel.LostFocus = [this] { TelefonContact = Dtel.Text(); };
  DpersC.LostFocus = [this] {
    DpersC.SetText(Majuscule(DpersC.Text()));
    PersoanaContact = DpersC.Text();
  };

  Command1.Click = [this] {
    Warn(p_.dialogs, AvertizareVizualizare, "");
    StareListare& l = listare_;
    l.SemnatarFunctie = Dfunc.Text();
    l.SemnatarNume = Dnupren.Text();
    CereriBorderou c{Combo2.ListIndex(), parametri_.AnFiscal, PersoanaContact,
                     TelefonContact,     Dnupren.Text(),      Dfunc.Text()};
    ScrieBorderou(p_.files, l, fisa_.CodCurent, c);
    ArataSiListeaza(p_.launcher, p_.files, p_.printer, l.LiniePagina, "borderou.txt",
                    ListeazaBorderou);
  };
}

void LisBord::Deschide() {
  // A screen already open is only brought forward, as it stands.
  bool deschis = Visible();
  Show();
  if (deschis) return;
  Combo2.SetListIndex(0);
  Dnupren.SetText(listare_.SemnatarNume);
  Dfunc.SetText(listare_.SemnatarFunctie);
  Dtel.SetText("");
  DpersC.SetText("");
}

}  // namespace fisc
