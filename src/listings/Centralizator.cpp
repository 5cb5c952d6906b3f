#include "listings/Centralizator.h"
#include "params/Cuantum.h"
#include "sheets/FisaInLucru.h"

#include "listings/Cadru.h"
#include "listings/Randuri.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Layout.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr std::string_view kFisier = "Listab4.txt";
const std::string kLinie(86, '_');
constexpr std::size_t kNume = 37;

void ScrieCap(Files& files, LineWriter& out, StareListare& s, const CereriCentralizator& c) {
  out.Line(std::string(25, ' ') + "S I T U A T I E   C E N T R A L I Z A T O A R E");
  out.Line("");
  out.Line(std::string(29, ' ') + "fise fiscale " + (c.FF1 ? "1" : "2") + " pentru luna " +
           std::string(LuniCentralizator[static_cast<std::size_t>(c.Luna)]) + " " + c.AnFiscal);
  for (int i = 0; i < 3; ++i) out.Line("");
  DateAngajator(files, out, s.LiniePagina);
  out.Line(kLinie);
  out.Line(" Nr.   Cod angajat       Nume ,prenume                          Venit net     Impozit");
  out.Line(" crt.                                                                         retinut");
  out.Line(kLinie);
  out.Line(
      "                                                                     1            2   ");
  out.Line(kLinie);
}

// A name too long for its cell goes on in lines of its own. The tail is
// taken in steps of 37 but 36 wide, then written whole once more: a long
// name repeats its last characters, which the listing keeps.
void ScrieRestNume(LineWriter& out, std::string_view nume) {
  if (nume.size() < kNume) return;
  std::string_view rest = nume.substr(kNume - 1);
  const std::size_t n = rest.size() / kNume;
  const std::string margine(21, ' ');
  for (std::size_t k = 1; k <= n; ++k) {
    std::size_t start = kNume * k;
    out.Line(margine + std::string(start < rest.size() ? rest.substr(start, kNume - 1) : ""));
  }
  if (!rest.empty()) out.Line(margine + std::string(rest));
}

}  // namespace

void ScrieCentralizator(Files& files, StareListare& s, std::string& codCurent,
                        const CereriCentralizator& c) {
  if (c.Luna < 0 || c.Luna >= static_cast<int>(LuniCentralizator.size()))
    Fail(err::SubscriptOutOfRange);
  s.FisierDeListat = c.FF1 ? SursaFF1(files) : SursaFF2(files);
  files.DeleteIfExists(kFisier);
  LineWriter out = files.Write(kFisier);
  ScrieCap(files, out, s, c);

  double totalVenit = 0, totalImpozit = 0;
  long long nr = 0;
  {
    LineReader in = files.Read(s.FisierDeListat);
    std::string linie;
    while (in.Next(linie)) {
      nr += 1;
      RandFisa r = c.FF1 ? CitesteRandFF1(linie, c.Luna) : CitesteRandFF2(linie, c.Luna);
      codCurent = r.Cod;
      std::string nume = NumeComplet(r);
      std::string rand = PeStanga(std::to_string(nr), 6);
      rand += PeStanga(r.Cod, 15);
      rand += nume.size() < kNume ? PeStanga(nume, kNume) : nume.substr(0, kNume - 1) + " ";
      double v = ValoareSuma(r.Venit), t = ValoareSuma(r.Impozit);
      totalVenit += v;
      totalImpozit += t;
      rand += AliniazaDreapta(TextSuma(v), 14);
      rand += AliniazaDreapta(TextSuma(t), 14);
      out.Line(rand);
      ScrieRestNume(out, nume);
    }
  }

  out.Line(kLinie);
  out.Line("      TOTAL" + std::string(47, ' ') + AliniazaDreapta(TextSuma(totalVenit), 14) +
           AliniazaDreapta(TextSuma(totalImpozit), 14));
  out.Line(kLinie);
  out.Line("");
  out.Line("Nume, prenume  ");
  out.Line("Functia  ");
  out.Line("Semnatura si stampila angajatorului__________________________________________");
  out.Close();
}

}  // namespace fisc

namespace fisc {

ListabIV::ListabIV(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
                   FisaInLucru& fisa, StareListare& listare)
    : Form(desktop, "ListabIV", "Conditii listare centralizator lunar"),
      Combo2(Add(ControlKind::ComboBox, "Combo2").SetListOnly(true).At(250, 20, 200, 22)),
      Option1(Add(ControlKind::OptionButton, "Option1")
                  .SetCaption("Fise fiscala 1")
                  .At(250, 60, 200, 22)),
      Option2(Add(ControlKind::OptionButton, "Option2")
                  .SetCaption("Fise fiscale 2")
                  .At(250, 90, 200, 22)),
      Command1(Button(*this, "Command1", "Listare", 250, 140, 150, 32)),
      p_(platforma),
      parametri_(parametri),
      fisa_(fisa),
      listare_(listare) {
  SetSize(480, 200);
  Label(*this, "EtCombo2", "Luna pentru centralizare date :", 20, 20, 220);
  for (std::string_view luna : LuniCentralizator) Combo2.AddItem(luna);

  Command1.Click = [this] {
    Warn(p_.dialogs, AvertizareVizualizare, "");
    CereriCentralizator c{Combo2.ListIndex(), Option1.Value() == 1, parametri_.AnFiscal};
    ScrieCentralizator(p_.files, listare_, fisa_.CodCurent, c);
    ArataSiListeaza(p_.launcher, p_.files, p_.printer, listare_.LiniePagina, "Listab4.txt",
                    ListeazaFise);
  };
}

void ListabIV::Deschide() {
  bool deschis = Visible();
  Show();
  if (deschis) return;
  Combo2.SetListIndex(0);
  Option1.SetValue(1);
}

}  // namespace fisc
