#include "listings/Cadru.h"

#include <cmath>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordAngajator.h"
#include "sheets/RecordFF1.h"

namespace fisc {

std::string FormatSuma(std::string& valoare) {
  std::string_view semn;
  // Only a text with a minus can read as negative.
  double numar = valoare.find('-') == std::string::npos ? 0 : Valoare(valoare);
  if (numar < 0) {
    semn = "-";
    valoare = TextDin(std::fabs(numar));
  }
  const std::size_t grupe = valoare.size() / 3, rest = valoare.size() % 3;
  std::string text(semn);
  text.reserve(valoare.size() + grupe + 1);
  text.append(valoare, 0, rest);
  for (std::size_t i = 0; i < grupe; ++i) {
    if (i > 0 || rest != 0) text += '.';
    text.append(valoare, rest + 3 * i, 3);
  }
  return text;
}

std::string AliniazaDreapta(std::string_view text, int latime) {
  if (text.size() > static_cast<std::size_t>(latime)) Fail(err::InvalidCall);
  std::string s(static_cast<std::size_t>(latime) - text.size(), ' ');
  s += text;
  return s;
}

std::vector<std::string> Bucati63(std::string_view eticheta, std::string_view text) {
  constexpr std::size_t kBucata = 63;
  std::vector<std::string> linii;
  const std::size_t n = text.size() / kBucata;
  for (std::size_t i = 0; i <= n; ++i) {
    std::string linie = i == 0 ? std::string(eticheta) : std::string(16, ' ');
    if (i * kBucata < text.size()) linie += text.substr(i * kBucata, kBucata);
    linii.push_back(std::move(linie));
  }
  return linii;
}

void NumaraLinie(short& liniePagina, int cate) { liniePagina = CheckedShort(liniePagina + cate); }

std::string AdresaAngajator(const RecordAngajator& r) {
  std::string a = r.AdrP[0];
  if (Majuscule(r.AdrP[0]) != "BUCURESTI") a += ",jud." + r.JudP;
  a += ",str." + r.AdrP[1] + ",nr." + r.AdrP[2];
  if (Valoare(r.AdrP[3]) != 0) a += ",cod postal " + r.AdrP[3];
  if (!r.AdrP[4].empty()) a += ",bl." + r.AdrP[4];
  if (!r.AdrP[5].empty()) a += ",sc." + r.AdrP[5];
  if (!r.AdrP[6].empty()) a += ",et." + r.AdrP[6];
  if (!r.AdrP[7].empty()) a += ",ap." + r.AdrP[7];
  if (Valoare(r.AdrP[8]) != 0) a += ",sect." + r.AdrP[8];
  return a;
}

std::string AdresaAngajat(const AntetFisa& f) {
  std::string a = f.AdrS[0];
  if (Majuscule(f.AdrS[0]) != "BUCURESTI") a += ",jud." + f.JudS;
  a += ",str." + f.AdrS[1] + ",nr." + f.AdrS[2];
  constexpr std::string_view kEtichete[] = {",cod postal ", ",bl.", ",sc.",
                                            ",et.",         ",ap.", ",sect."};
  for (std::size_t i = 3; i <= 8; ++i)
    if (!f.AdrS[i].empty()) {
      a += kEtichete[i - 3];
      a += f.AdrS[i];
    }
  return a;
}

std::vector<std::string> BlocAngajat(const AntetFisa& a) {
  std::vector<std::string> linii{"Cod angajat   : " + a.CodS};
  for (std::string& l : Bucati63("Nume, prenume : ", a.NumeS + " " + a.PrenS))
    linii.push_back(std::move(l));
  for (std::string& l : Bucati63("Domiciliu     : ", AdresaAngajat(a)))
    linii.push_back(std::move(l));
  return linii;
}

std::vector<std::string> BlocSemnatura(std::string_view nume, std::string_view functie) {
  return {"   Sub sanctiunile aplicate faptei de fals in acte publice, declar ca datele din",
          "aceasta fisa fiscala sunt corecte si complete.", "Nume, prenume  " + std::string(nume),
          "Functia  " + std::string(functie),
          "Semnatura si stampila angajatorului__________________________________________"};
}

std::string LiniaExemplar(std::string_view exemplar) {
  std::string cine = Majuscule(Trim(exemplar));
  if (cine == "ANGAJAT" || cine == "UNITATEA FISCALA")
    return "(copie pentru " + std::string(exemplar) + ")";
  if (cine == "ANGAJATOR") return "(original pentru " + std::string(exemplar) + ")";
  return {};
}

BlocAngajator CitesteBlocAngajator(const Files& files) {
  LineReader in = files.Read(fisier::Repfisc);
  std::string linie;
  if (!in.Next(linie)) return {{"Nu sunt date despre angajator"}, false};
  RecordAngajator r = CitesteAngajator(linie);

  std::string primaLinie, eticheta, nume;
  // The type is compared as the number it reads as: "1.5" is neither type,
  // and a value too large for an integer must not be cut down to one.
  const double tip = Valoare(r.TipAngajator);
  if (tip == 1) {
    primaLinie = "1 - cod de inregistrare fiscala/ cod unic de inregistrare";
    eticheta = "Denumire      : ";
    nume = r.DenP;
  } else if (tip == 2) {
    primaLinie = "2 - cod numeric personal/ numar de identificare fiscala";
    eticheta = "Nume,prenume  : ";
    nume = r.NumeP + " " + r.PrenP;
  }
  BlocAngajator bloc;
  bloc.Linii.push_back(primaLinie);
  bloc.Linii.push_back("Cod angajator : " + r.CodP);
  for (std::string& l : Bucati63(eticheta, nume)) bloc.Linii.push_back(std::move(l));
  for (std::string& l : Bucati63("Adresa        : ", AdresaAngajator(r)))
    bloc.Linii.push_back(std::move(l));
  std::string contact;
  if (!r.AdrP[9].empty()) contact = "Telefon : " + r.AdrP[9];
  if (!r.AdrP[10].empty()) contact += " , E-mail : " + r.AdrP[10];
  bloc.Linii.push_back(contact);
  return bloc;
}

void ScrieBlocAngajator(const BlocAngajator& bloc, LineWriter& out, short& liniePagina) {
  for (const std::string& linie : bloc.Linii) {
    out.Line(linie);
    if (bloc.Numarate) NumaraLinie(liniePagina);
  }
}

void DateAngajator(const Files& files, LineWriter& out, short& liniePagina) {
  ScrieBlocAngajator(CitesteBlocAngajator(files), out, liniePagina);
}

void FiltruFise(Files& files, const StareListare& s, std::string& codCurent) {
  LineReader in = files.Read(s.FisierSursa);
  files.DeleteIfExists(s.FisierDeListat);
  LineWriter out = files.Write(s.FisierDeListat);
  std::string linie;
  AntetFisa antet;
  while (in.Next(linie)) {
    CititorCampuri c(linie);
    CitesteAntet(c, antet);
    c.Camp(delim::Text);  // FlagRectif
    bool regularizata = c.Marca(delim::Text) == "X";
    codCurent = antet.CodS;
    if ((s.CondListare == "N" && !regularizata) || (s.CondListare == "R" && regularizata))
      out.Line(linie);
  }
  out.Close();
}

std::string SursaFF1(const Files& files) {
  return std::string(files.Exists(fisier::Ff1Sort1) ? fisier::Ff1Sort1 : fisier::Ff1);
}

std::string SursaFF2(const Files& files) {
  return std::string(files.Exists(fisier::Ff2Sort1) ? fisier::Ff2Sort1 : fisier::Ff2);
}

}  // namespace fisc
