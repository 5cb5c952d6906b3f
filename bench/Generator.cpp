#include "Generator.h"

#include <random>

#include "platform/Files.h"
#include "records/Judete.h"
#include "records/Numere.h"
#include "sheets/RecordDed.h"
#include "sheets/RecordFF1.h"
#include "sheets/RecordFF2.h"

namespace fisc::bench {

namespace {
const char* kNume[] = {"POPESCU", "IONESCU", "POPA",     "RADU",   "DUMITRU",
                       "STAN",    "STOICA",  "GHEORGHE", "MATEI",  "CONSTANTIN",
                       "MARIN",   "DINU",    "BARBU",    "NISTOR", "FLOREA"};
const char* kPrenume[] = {"ION",       "MARIA",      "GHEORGHE", "ELENA", "VASILE",
                          "ANA",       "CONSTANTIN", "IOANA",    "MIHAI", "ANDREEA",
                          "ALEXANDRU", "CRISTINA",   "DAN"};

std::string Cnp(int sex, int an, int luna, int zi, std::size_t serie) {
  char base[16];
  std::snprintf(base, sizeof base, "%d%02d%02d%02d%05zu", sex, an % 100, luna, zi, serie % 100000);
  const char* key = "279146358279";
  int sum = 0;
  for (int i = 0; i < 12; ++i) sum += (base[i] - '0') * (key[i] - '0');
  return std::string(base) + std::to_string(sum % 11).substr(0, 1);
}
}  // namespace

std::string CodAngajat(std::size_t i) {
  return Cnp(1 + static_cast<int>(i % 2), 1950 + static_cast<int>(i / 100000 % 40),
             1 + static_cast<int>(i / 31 % 12), 1 + static_cast<int>(i % 28), i);
}

SetDate Genereaza(const std::filesystem::path& dir, std::size_t angajati, const std::string& an) {
  Files files(dir);
  std::mt19937 rng(20020101);
  auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
  SetDate set;
  set.angajati = angajati;

  LineWriter rep = files.Write("Rep_" + an + ".txt");
  rep.Line(
      "12345674,1,#SC GENERAT SA#,##,##,#BRASOV#,#BRASOV#,#STR. "
      "FABRICII#,#1#,500100,##,##,##,##,,#0268000000#,#OFFICE@GENERAT.RO#");
  rep.Close();
  LineWriter old = files.Write("Repfisc.txt");
  old.Line(
      "12345674,#SC GENERAT SA#,##,##,#BRASOV#,#BRASOV#,#STR. "
      "FABRICII#,#1#,##,##,500100,##,##,##,##,");
  old.Close();

  LineWriter ff1 = files.Write("FF1_" + an + ".txt");
  LineWriter ff2 = files.Write("FF2_" + an + ".txt");
  LineWriter ded = files.Write("Ded_" + an + ".txt");
  for (std::size_t i = 0; i < angajati; ++i) {
    FisaFF1 f;
    f.Antet.CodS = CodAngajat(i);
    f.Antet.NumeS = kNume[pick(15)];
    f.Antet.PrenS = kPrenume[pick(13)];
    f.Antet.AdrS[0] = "BRASOV";
    f.Antet.JudS = std::string(Judete[8]);
    f.Antet.AdrS[1] = "STR. LUNGA";
    f.Antet.AdrS[2] = std::to_string(1 + pick(200));
    f.Antet.AdrS[3] = "500" + std::to_string(100 + pick(800));
    f.Antet.AdrS[4] = pick(2) ? "B" + std::to_string(pick(30)) : "";
    int prima = pick(6) == 0 ? pick(12) : 0;
    if (prima > 0)
      f.DataAngajarii =
          "15/" + std::string(prima < 9 ? "0" : "") + std::to_string(prima + 1) + "/" + an;
    int persoane = pick(3) == 0 ? 1 + pick(3) : 0;
    double venitTotal = 0, impTotal = 0;
    TabelDed tabel;
    for (int p = 1; p <= persoane; ++p) {
      tabel(p, ded::CodI) =
          Cnp(5 + p % 2, 2000 - p, 1 + p, 10 + p, i * 7 + static_cast<std::size_t>(p));
      tabel(p, 2) = f.Antet.NumeS;
      tabel(p, 3) = kPrenume[pick(13)];
      tabel(p, p == 1 ? 4 : 5) = "X";
    }
    for (int m = 0; m < 12; ++m) {
      if (m < prima) continue;
      double coef = 1 + 0.5 * persoane;
      f.CoefProp[static_cast<std::size_t>(m)] = "1";
      f.CoefCalc[static_cast<std::size_t>(m)] = TextZecimal(coef);
      for (int p = 1; p <= persoane; ++p) tabel(p, ded::CoefI + m) = "0.5";
      double venit = 3000000 + pick(9000) * 1000;
      double imp = venit * 0.2;
      f.VenitN[static_cast<std::size_t>(m)] = TextDin(venit);
      f.ImpC[static_cast<std::size_t>(m)] = TextDin(imp);
      venitTotal += venit;
      impTotal += imp;
    }
    f.VenitN[13] = TextDin(venitTotal);
    f.ImpC[13] = TextDin(impTotal);
    f.Luni = TextDin(12 - prima);
    f.ChAc = TextDin(240000.0 * (12 - prima));
    ff1.Line(RecordFF1(f));
    for (int p = 1; p <= persoane; ++p) ded.Line(RecordDed(f.Antet.CodS, tabel, p));
    set.persoane += static_cast<std::size_t>(persoane);
    if (pick(5) == 0) {
      FisaFF2 g;
      g.Antet = f.Antet;
      g.TAS[3] = "X";
      double total = 0;
      for (std::size_t m = 0; m < 12; ++m) {
        double v = pick(3) ? 0 : 500000 + pick(2000) * 1000;
        g.VenitCS[m] = TextDin(v);
        g.ImpS[m] = TextDin(v * 0.18);
        total += v;
      }
      g.VenitCS[12] = TextDin(total);
      g.ImpS[12] = TextDin(total * 0.18);
      ff2.Line(RecordFF2(g));
      ++set.fise2;
    }
  }
  ff1.Close();
  ff2.Close();
  ded.Close();
  return set;
}

}  // namespace fisc::bench
