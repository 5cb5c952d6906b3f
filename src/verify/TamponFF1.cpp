#include "verify/TamponFF1.h"

#include <algorithm>
#include <array>

#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "verify/Parcurgere.h"

namespace fisc {

namespace {

// Text fields 2 to 20 end in seventeen "#,": behind the last stands the
// comma that ends field 20, and the dates follow.
constexpr int kInchideriCap = 17;

// Fields 75 to 86 of the tail, by their place.
constexpr std::size_t kLuni = 0, kChAc = 1, kReg10 = 9, kReg11 = 10, kReg12 = 11;

// An FF1 record taken apart by the position of its separators.
struct FF1Desfacut {
  std::string_view cap21;   // up to the comma behind field 21, the start date
  std::string_view data22;  // field 22, the end date
  std::array<double, 12> coefCalc{}, coefProp{};
  std::array<double, 14> venitN{}, impC{};
  std::array<double, 12> coada{};  // fields 75 to 86
};

FF1Desfacut Desface(std::string_view record) {
  FF1Desfacut d;
  Parcurgere p(record);
  p.Sari("#,", kInchideriCap);
  p.Pana(",");
  d.cap21 = record.substr(0, p.Pozitie());
  d.data22 = p.Pana(",");
  for (double& c : d.coefCalc) c = ValZecimal(p.Pana(","));
  for (double& c : d.coefProp) c = ValZecimal(p.Pana(","));
  for (std::size_t i = 0; i < d.venitN.size(); ++i) {
    d.venitN[i] = Valoare(p.Pana(","));
    d.impC[i] = Valoare(p.Pana(","));
  }
  for (std::size_t k = 0; k + 1 < d.coada.size(); ++k) d.coada[k] = Valoare(p.Pana(","));
  d.coada.back() = Valoare(p.Rest());
  return d;
}

// The record form of a buffer; `faraRegularizare` leaves fields 77 to 83 empty.
std::string Compune(std::string_view cap21, std::string_view data22, const FF1Desfacut& d,
                    bool faraRegularizare) {
  std::string r;
  r.reserve(cap21.size() + 400);
  r += cap21;
  r += data22;
  r += ',';
  for (double c : d.coefCalc) r += TextZecimal(c) + ',';
  for (double c : d.coefProp) r += TextZecimal(c) + ',';
  for (std::size_t i = 0; i < d.venitN.size(); ++i) {
    r += TextDin(d.venitN[i]) + ',';
    r += TextDin(d.impC[i]) + ',';
  }
  for (std::size_t k = 0; k < d.coada.size(); ++k) {
    bool regularizare = k >= 2 && k <= 8;
    if (!(faraRegularizare && regularizare)) r += TextDin(d.coada[k]);
    if (k + 1 < d.coada.size()) r += ',';
  }
  return r;
}

}  // namespace

std::size_t IndexLuna(std::string_view data) {
  double luna = Valoare(Mijloc(data, 4, 2));
  if (luna < 1 || luna > 12) Fail(err::SubscriptOutOfRange);
  return static_cast<std::size_t>(luna) - 1;
}

std::string DataNormala(std::string_view text) {
  std::string data(Trim(text));
  // A two-digit year that the other program read as 19xx.
  for (auto [gresit, corect] : {std::pair{"1902", "2002"}, {"1901", "2001"}, {"1900", "2000"}})
    if (data.compare(0, 4, gresit) == 0) data.replace(0, 4, corect);
  for (char& c : data)
    if (c == '.' || c == '-') c = '/';
  if (data.size() >= 2 && data[1] == '/') data.insert(0, "0");
  if (Trim(data) == "/  /") data.clear();
  if (!data.empty() && (data.size() < 3 || data[2] != '/')) {
    std::string_view dbf = data;
    data = std::string(Dreapta(dbf, 2)) + "/" + std::string(Mijloc(dbf, 5, 2)) + "/" +
           std::string(dbf.substr(0, 4));
  }
  return data;
}

std::string ver_data(std::string_view record) {
  Parcurgere p(record);
  std::string_view cod = Inainte(record, ",");
  p.Sari("#,", kInchideriCap);
  std::string_view cap = record.substr(0, p.Pozitie());
  std::string start = DataNormala(p.Pana(","));
  std::string sfarsit = DataNormala(p.Pana(","));
  std::string_view rest = p.Rest();
  std::string linie;
  linie.reserve(2 * record.size() + 8);
  linie += cod;
  linie += ',';
  linie += start;
  linie += ',';
  linie += sfarsit;
  linie += ',';
  linie += cap;
  linie += start;
  linie += ',';
  linie += sfarsit;
  linie += ',';
  linie += rest;
  return linie;
}

std::string umple_buff_ff1(std::string_view record, std::string_view start, std::string_view end) {
  const std::size_t prima = IndexLuna(start), ultima = IndexLuna(end);
  FF1Desfacut d = Desface(record);
  int luniCuCoef = 0;
  for (std::size_t i = 0; i < 12; ++i) {
    if (i < prima || i > ultima) {
      d.coefCalc[i] = d.coefProp[i] = d.venitN[i] = d.impC[i] = 0;
    } else if (d.coefCalc[i] > 0) {
      ++luniCuCoef;
    }
  }
  if (luniCuCoef < d.coada[kLuni]) d.coada[kLuni] = luniCuCoef;
  return Compune(d.cap21, d.data22, d, false);
}

void aduna_buff_ff1(std::string_view record, std::string& buffer, std::string_view start,
                    std::string_view end, std::string_view sfarsitPrec) {
  const std::size_t i1 = IndexLuna(start), i2 = IndexLuna(end), ip = IndexLuna(sfarsitPrec);
  FF1Desfacut b = Desface(buffer);
  const FF1Desfacut r = Desface(record);
  for (std::size_t i = i1; i <= i2; ++i) {
    // A sheet that starts after the last one ended brings its own coefficients;
    // over months both sheets hold, the larger counts.
    b.coefCalc[i] = ip < i1 ? r.coefCalc[i] : std::max(b.coefCalc[i], r.coefCalc[i]);
    b.coefProp[i] = ip < i1 ? r.coefProp[i] : std::max(b.coefProp[i], r.coefProp[i]);
    b.venitN[i] += r.venitN[i];
    b.impC[i] += r.impC[i];
  }
  for (std::size_t i = 12; i < 14; ++i) {
    b.venitN[i] += r.venitN[i];
    b.impC[i] += r.impC[i];
  }
  for (std::size_t k : {kLuni, kChAc, kReg10, kReg11, kReg12}) b.coada[k] += r.coada[k];
  buffer = Compune(b.cap21, end, b, true);
}

}  // namespace fisc
