#include "verify/Verificare.h"

#include "params/Cuantum.h"
#include "platform/Files.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "verify/ListaErori.h"
#include "verify/Verificari.h"

namespace fisc {

namespace {

void Separator(ListaErori& lista) { lista.Titlu(std::string(100, '-')); }

void Subliniat(ListaErori& lista, std::string_view titlu, std::size_t lungime) {
  lista.Titlu(titlu);
  lista.Titlu(std::string(lungime, '='));
}

// The five cases in which no regularisation is made, above the FF1 errors.
constexpr std::string_view kCaseta[] = {
    "      ====================================================================",
    "     | ATENTIE! NU SE FACE REGULARIZAREA pentru un angajat daca:          |",
    "     |     1. are venituri din alte surse                                 |",
    "     |     2. data inceperii/incetarii activitatii este diferita de       |",
    "     |       inceputul/sfarsitul anului fiscal                            |",
    "     |     3. are coeficienti de deducere egali cu zero                   |",
    "     |     4. este persoana romana fara domiciliu in Romania              |",
    "     |     5. este persoana straina (codul angajatului incepe cu cifra 9) |",
    "      ====================================================================",
};

// The closing box of a run without errors: what was empty, if anything.
std::string MesajFaraErori(const Files& files, const std::string& an) {
  std::string nota = " ";
  int goale = 0;
  auto gol = [&](std::string_view fisier, const std::string& text) {
    if (!FisierGol(files, fisier)) return;
    nota += text;
    ++goale;
  };
  gol(fisier::Repfisc, "Rep_" + an + ".txt e gol, ");
  gol(fisier::Ff1, "Ff1_" + an + ".txt e gol, ");
  gol(fisier::Ff2, "Ff2_" + an + ".txt e gol, ");
  gol(fisier::Deduceri, "Ded_" + an + ".txt e gol. ");
  if (goale == 4) return nota.substr(1);
  return "Verificarea a fost efectuata si nu sunt erori." + nota;
}

}  // namespace

RezultatVerificare but_verif(Files& files, const ParametriAn& parametri,
                             const TabelImpozit& tabel) {
  const std::string& an = parametri.AnFiscal;
  RezultatVerificare r;
  ListaErori lista(files);

  Subliniat(lista, "1.Erori privind inregistrarile multiple, goale sau cu structura eronata.", 71);
  lista.Titlu("     (Fisierele anului " + an + " sunt rescrise in ordinea crescatoare a codului,");
  lista.Titlu("         fara inregistrarile multiple, goale sau cu structura eronata.)");
  lista.Sectiune(1);
  ver_duble(files, lista, an);

  Separator(lista);
  Subliniat(lista, "2.Erori in Rep_" + an + ".txt.", 32);
  lista.Sectiune(2);
  r.CodVerificat = ver_rep(files, lista);

  Separator(lista);
  Subliniat(lista, "3.Erori in FF1_" + an + ".txt.", 32);
  for (std::string_view linie : kCaseta) lista.Titlu(linie);
  lista.Sectiune(3);
  r.CorelareAbandonata = ver_ff1(files, lista, parametri, tabel);

  Separator(lista);
  Subliniat(lista, "4.Erori in FF2_" + an + ".txt.", 32);
  lista.Sectiune(4);
  ver_ff2(files, lista);

  Separator(lista);
  Subliniat(lista, "5.Erori in Ded_" + an + ".txt.", 32);
  lista.Sectiune(5);
  ver_ded(files, lista, an);

  Separator(lista);
  lista.Titlu("6.Erori de corelare coeficienti in FF1_" + an + ".txt si Ded_" + an + ".txt");
  Subliniat(lista, "(COEF.DED.SIT.PROPRIE + COEF.DED.SUPLIM. <> COEF.TOTAL DED).", 62);
  lista.Sectiune(6);
  if (r.CorelareAbandonata) {
    // The file names of this notice stand as written, without the year.
    lista.Nota("   Atentie ! Din cauza erorilor de structura in FF1_aaaa.txt si/sau Ded_aaaa.txt ");
    lista.Nota("procedura de verificare a corelarii a fost abandonata.");
  } else {
    ver_corel_ff1_ded(files, lista);
  }

  lista.Sectiune(0);
  Separator(lista);
  lista.Titlu("                  Sfarsit verificari");
  lista.Inchide();

  r.ExistaErori = lista.ExistaErori();
  r.LiniiSectiune = lista.LiniiSectiune();
  r.NumeCopie = "erori_" + TextDin(Valoare(r.CodVerificat)) + ".txt";
  files.DeleteIfExists(r.NumeCopie);
  if (r.ExistaErori)
    files.Copy("erori.txt", r.NumeCopie);
  else
    r.Mesaj = MesajFaraErori(files, an);
  return r;
}

}  // namespace fisc
