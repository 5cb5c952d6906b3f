#include "params/Cuantum.h"

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/Numere.h"

namespace fisc {

namespace {

constexpr const char* kFisier = "Cuantum.txt";
constexpr const char* kTemporar = "Temporar.txt";

// Takes the fields of a line, each up to the comma behind it: a missing comma
// asks for a negative length, failure 5.
class Campuri {
 public:
  explicit Campuri(std::string_view line) : line_(line) {}
  std::string_view Urmator() {
    std::size_t comma = line_.find(',', p_);
    if (comma == std::string_view::npos) Fail(err::InvalidCall);
    std::string_view field = line_.substr(p_, comma - p_);
    p_ = comma + 1;
    return field;
  }
  std::string_view Rest() const { return line_.substr(p_); }

 private:
  std::string_view line_;
  std::size_t p_ = 0;
};

// A month's place in an array, as the platform turns a number into an index.
std::size_t Index(double luna, std::size_t size) {
  double i = Rotunjeste(luna - 1);
  if (i < 0 || i >= static_cast<double>(size)) Fail(err::SubscriptOutOfRange);
  return static_cast<std::size_t>(i);
}

std::string Zi(std::string text) { return Valoare(text) < 10 ? "0" + text : text; }

std::string Luna(std::size_t luna) {
  return luna < 10 ? " " + std::to_string(luna) : std::to_string(luna);
}

}  // namespace

void IncarcaCuantum(Files& files, ParametriAn& p) {
  LineReader in = files.Read(kFisier);
  std::string line = in.Line();
  Campuri antet(line);
  p.AnFiscal = TextDin(Valoare(antet.Urmator()));
  p.PrimaZi = Zi(TextDin(Valoare(antet.Urmator())));
  p.UltimaZi = Zi(std::string(antet.Rest()));

  // The end test follows each read, so the last line ("eof") is never parsed.
  line = in.Line();
  while (!in.Eof()) {
    Campuri rand(line);
    double luna = Valoare(rand.Urmator());
    std::string_view f1 = rand.Urmator(), f2 = rand.Urmator(), f3 = rand.Urmator(),
                     f4 = rand.Urmator();
    if (luna < 13) {
      std::size_t i = Index(luna, p.DedLuna.size());
      double ded = Valoare(f1);
      std::string copil = TextZecimal(f2), sotie = TextZecimal(f3), alta = TextZecimal(f4);
      std::size_t j = Index(luna, p.CoefCopil.size());
      p.DedLuna[i] = ded;
      p.CoefCopil[j] = copil;
      p.CoefSotie[j] = sotie;
      p.CoefAlta[j] = alta;
    } else {
      std::string_view f5 = rand.Urmator(), f6 = rand.Urmator(), f7 = rand.Urmator();
      std::size_t i = Index(luna, p.DedLuna.size());
      p.DedLuna[i] = Valoare(f1);
      p.CoefMaxim = TextZecimal(f2);
      p.CoefInv1 = TextZecimal(f3);
      p.CoefInv2 = TextZecimal(f4);
      p.CoefInv3 = TextZecimal(f5);
      p.CoefCheltProf = TextZecimal(f6);
      p.CotaImpFinal = TextZecimal(f7);
    }
    line = in.Line();
  }
}

CampuriCuantum CampuriDin(const ParametriAn& p) {
  CampuriCuantum c;
  c.AnF = p.AnFiscal;
  c.prima_zi = p.PrimaZi;
  c.ultima_zi = p.UltimaZi;
  for (std::size_t i = 0; i < c.Cuanta.size(); ++i) c.Cuanta[i] = TextDin(p.DedLuna[i]);
  c.Copil = p.CoefCopil;
  c.Sotie = p.CoefSotie;
  c.Alta = p.CoefAlta;
  c.Maxi = p.CoefMaxim;
  c.hand1 = p.CoefInv1;
  c.hand2 = p.CoefInv2;
  c.hand3 = p.CoefInv3;
  c.Proc_ch = p.CoefCheltProf;
  c.CotaIF = p.CotaImpFinal;
  return c;
}

void SalveazaCuantum(Files& files, const CampuriCuantum& c, ParametriAn& p) {
  // The old file is deleted first, so a file removed meanwhile stops the save
  // before anything changes.
  if (!files.Exists(kFisier)) Fail(err::FileNotFound);
  files.DeleteIfExists(kTemporar);
  LineWriter out = files.Append(kTemporar);

  p.AnFiscal = c.AnF;
  p.PrimaZi = c.prima_zi;
  p.UltimaZi = c.ultima_zi;
  out.Line(c.AnF + "," + c.prima_zi + "," + c.ultima_zi);
  for (std::size_t i = 0; i < 12; ++i) {
    p.DedLuna[i] = Valoare(c.Cuanta[i]);
    p.CoefCopil[i] = c.Copil[i];
    p.CoefSotie[i] = c.Sotie[i];
    p.CoefAlta[i] = c.Alta[i];
    out.Line(Luna(i + 1) + "," + c.Cuanta[i] + "," + c.Copil[i] + "," + c.Sotie[i] + "," +
             c.Alta[i] + ",");
  }
  p.DedLuna[12] = Valoare(c.Cuanta[12]);
  p.CoefMaxim = c.Maxi;
  p.CoefInv1 = c.hand1;
  p.CoefInv2 = c.hand2;
  p.CoefInv3 = c.hand3;
  p.CoefCheltProf = c.Proc_ch;
  p.CotaImpFinal = c.CotaIF;
  out.Line("13," + c.Cuanta[12] + "," + c.Maxi + "," + c.hand1 + "," + c.hand2 + "," + c.hand3 +
           "," + c.Proc_ch + "," + c.CotaIF + ",");
  out.Line("eof");
  out.Close();
  files.Replace(kTemporar, kFisier);
}

}  // namespace fisc
