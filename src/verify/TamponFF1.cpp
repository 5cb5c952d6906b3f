#include "verify/TamponFF1.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "verify/Parcurgere.h"

namespace fisc {

namespace {

// Fields 1 to 20 are the head: the dates follow it.
constexpr int kCampuriCap = 20;

// Fields 75 to 86 of the tail, by their place.
constexpr std::size_t kLuni = 0, kChAc = 1, kReg10 = 9, kReg11 = 10, kReg12 = 11;

// An FF1 record taken apart by the position of its separators.
struct FF1Desfacut {
  std::string_view cap21;   // up to the comma behind field 21, the start date
  std::string_view data22;  // field 22, the end date
  std::array<double, 12> coefCalc{}, coefProp{};
  std::array<double, 14> venitN{}, impC{};
  std::array<double, 12> coada{};  // fields 75 to 86
  // The texts of the numbers as the record holds them, while they still say
  // what the numbers say: a text already in the written form is copied.
  std::array<std::string_view, 12> textCalc, textProp;
  std::array<std::string_view, 14> textVenit, textImp;
  std::array<std::string_view, 12> textCoada;
  bool texte = true;
};

FF1Desfacut Desface(std::string_view record) {
  FF1Desfacut d;
  Parcurgere p(record);
  p.Sari(kCampuriCap + 1);
  d.cap21 = record.substr(0, p.Pozitie());
  d.data22 = p.Camp();
  for (std::size_t i = 0; i < 12; ++i) d.coefCalc[i] = ValZecimal(d.textCalc[i] = p.Camp());
  for (std::size_t i = 0; i < 12; ++i) d.coefProp[i] = ValZecimal(d.textProp[i] = p.Camp());
  for (std::size_t i = 0; i < d.venitN.size(); ++i) {
    d.venitN[i] = Valoare(d.textVenit[i] = p.Camp());
    d.impC[i] = Valoare(d.textImp[i] = p.Camp());
  }
  for (std::size_t k = 0; k + 1 < d.coada.size(); ++k)
    d.coada[k] = Valoare(d.textCoada[k] = p.Camp());
  d.coada.back() = Valoare(d.textCoada.back() = p.Rest());
  return d;
}

// TextDin of an amount behind `r`: a whole one, as nearly all are, without a
// text of its own.
void AdaugaSuma(std::string& r, double valoare) {
  if (valoare != 0 && std::fabs(valoare) < 1e15 && valoare == std::trunc(valoare)) {
    char text[24];
    r.append(text, std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(valoare)).ptr);
  } else {
    r += TextDin(valoare);
  }
}

// TextZecimal of a coefficient behind `r`. One of one decimal, as 0.5 and
// 1.5 are, prints as its tenths: fifteen digits round it to just that.
void AdaugaCoef(std::string& r, double valoare) {
  const double zecimi = valoare * 10;
  if (valoare == std::trunc(valoare)) {
    AdaugaSuma(r, valoare);
  } else if (zecimi == std::trunc(zecimi) && std::fabs(zecimi) < 1e13) {
    auto z = static_cast<std::int64_t>(zecimi);
    if (z < 0) r += '-';
    z = z < 0 ? -z : z;
    char text[24];
    r.append(text, std::to_chars(text, text + sizeof text, z / 10).ptr);
    r += '.';
    r += static_cast<char>('0' + z % 10);
  } else {
    r += TextZecimal(valoare);
  }
}

// A number whose text is already what TextDin and TextZecimal would write:
// digits alone, no more than fifteen, without a leading zero.
bool FormaScrisa(std::string_view text) {
  if (text.empty() || text.size() > 15 || (text[0] == '0' && text.size() > 1)) return false;
  for (char c : text)
    if (c < '0' || c > '9') return false;
  return true;
}

// The record form of a buffer; `faraRegularizare` leaves fields 77 to 83 empty.
std::string Compune(std::string_view cap21, std::string_view data22, const FF1Desfacut& d,
                    bool faraRegularizare) {
  std::string r;
  r.reserve(cap21.size() + 400);
  r += cap21;
  r += data22;
  r += ',';
  auto coef = [&](std::string_view text, double valoare) {
    if (d.texte && FormaScrisa(text))
      r += text;
    else
      AdaugaCoef(r, valoare);
  };
  auto suma = [&](std::string_view text, double valoare) {
    if (d.texte && FormaScrisa(text))
      r += text;
    else
      AdaugaSuma(r, valoare);
  };
  for (std::size_t i = 0; i < 12; ++i) {
    coef(d.textCalc[i], d.coefCalc[i]);
    r += ',';
  }
  for (std::size_t i = 0; i < 12; ++i) {
    coef(d.textProp[i], d.coefProp[i]);
    r += ',';
  }
  for (std::size_t i = 0; i < d.venitN.size(); ++i) {
    suma(d.textVenit[i], d.venitN[i]);
    r += ',';
    suma(d.textImp[i], d.impC[i]);
    r += ',';
  }
  for (std::size_t k = 0; k < d.coada.size(); ++k) {
    bool regularizare = k >= 2 && k <= 8;
    if (!(faraRegularizare && regularizare)) suma(d.textCoada[k], d.coada[k]);
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

void ver_data(std::string_view record, std::string& linie) {
  Parcurgere p(record);
  std::string_view cod = Inainte(record, ",");
  p.Sari(kCampuriCap);
  std::string_view cap = record.substr(0, p.Pozitie());
  std::string start = DataNormala(p.Camp());
  std::string sfarsit = DataNormala(p.Camp());
  std::string_view rest = p.Rest();
  linie.clear();
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
}

std::string umple_buff_ff1(std::string_view record, std::string_view start, std::string_view end) {
  const std::size_t prima = IndexLuna(start), ultima = IndexLuna(end);
  FF1Desfacut d = Desface(record);
  int luniCuCoef = 0;
  for (std::size_t i = 0; i < 12; ++i) {
    if (i < prima || i > ultima) {
      d.coefCalc[i] = d.coefProp[i] = d.venitN[i] = d.impC[i] = 0;
      d.textCalc[i] = d.textProp[i] = d.textVenit[i] = d.textImp[i] = "0";
    } else if (d.coefCalc[i] > 0) {
      ++luniCuCoef;
    }
  }
  if (luniCuCoef < d.coada[kLuni]) {
    d.coada[kLuni] = luniCuCoef;
    d.textCoada[kLuni] = {};
  }
  return Compune(d.cap21, d.data22, d, false);
}

void aduna_buff_ff1(std::string_view record, std::string& buffer, std::string_view start,
                    std::string_view end, std::string_view sfarsitPrec) {
  const std::size_t i1 = IndexLuna(start), i2 = IndexLuna(end), ip = IndexLuna(sfarsitPrec);
  FF1Desfacut b = Desface(buffer);
  b.texte = false;  // the sums and maxima below are numbers only
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
