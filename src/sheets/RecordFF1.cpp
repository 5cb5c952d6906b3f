#include "sheets/RecordFF1.h"

#include "records/Numere.h"

namespace fisc {

namespace {

// A zero is stored as an empty field: coefficients by their decimal value,
// amounts by their whole value.
std::string_view CoefScris(std::string_view text) {
  return ValZecimal(text) == 0 ? std::string_view() : text;
}
std::string_view SumaScrisa(std::string_view text) {
  return Valoare(text) == 0 ? std::string_view() : text;
}

// Fields 77 to 86 hold these regularisation rows, in this order.
constexpr std::array<std::size_t, 10> kRegStocate = {2, 3, 4, 5, 6, 8, 9, 10, 11, 12};

// The screens show dates with "/" only, whatever separator the file holds.
std::string DataCuBare(std::string_view text) {
  std::string data(text);
  for (char& c : data)
    if (c == '.' || c == '-') c = '/';
  return data;
}

// Fields 14 to 22, shared by the full reader and the head reader.
void CitesteMarciSiDate(CititorCampuri& c, FisaFF1& f) {
  f.FlagRectif = c.Marca(delim::Text);
  f.FlagReg = c.Marca(delim::Text);
  f.FlagDedu = c.Marca(delim::Text);
  f.FlagAlteS = c.Marca(delim::Text);
  f.FlagInv1 = c.Marca(delim::Text);
  f.FlagInv2 = c.Marca(delim::Text);
  c.Camp(delim::TextBare);  // field 20, never used
  f.DataAngajarii = c.Camp(delim::Bare);
  f.DataIncetarii = c.Camp(delim::Bare);
}

}  // namespace

bool MarcaSetata(std::string_view marca) {
  std::string_view t = Trim(marca);
  return t.size() == 1 && (t[0] == 'X' || t[0] == 'x');
}

std::string_view MarcaScrisa(std::string_view marca) {
  return MarcaSetata(marca) ? std::string_view("X") : std::string_view();
}

void ScrieAntet(std::string& r, const AntetFisa& a) {
  r += a.CodS;
  r += delim::BareText;
  r += a.NumeS;
  r += delim::Text;
  r += a.PrenS;
  r += delim::Text;
  r += a.AdrS[0];
  r += delim::Text;
  r += a.JudS;
  r += delim::Text;
  r += a.AdrS[1];
  r += delim::Text;
  r += a.AdrS[2];
  r += delim::TextBare;
  r += a.AdrS[3];
  r += delim::BareText;
  r += a.AdrS[4];
  r += delim::Text;
  r += a.AdrS[5];
  r += delim::Text;
  r += a.AdrS[6];
  r += delim::Text;
  r += a.AdrS[7];
  r += delim::TextBare;
  r += a.AdrS[8];
  r += delim::BareText;
}

void CitesteAntet(CititorCampuri& c, AntetFisa& a) {
  a.CodS = c.Camp(delim::BareText);
  a.NumeS = c.Camp(delim::Text);
  a.PrenS = c.Camp(delim::Text);
  a.AdrS[0] = c.Camp(delim::Text);
  a.JudS = c.Camp(delim::Text);
  a.AdrS[1] = c.Camp(delim::Text);
  a.AdrS[2] = c.Camp(delim::TextBare);
  a.AdrS[3] = c.Camp(delim::BareText);
  a.AdrS[4] = c.Camp(delim::Text);
  a.AdrS[5] = c.Camp(delim::Text);
  a.AdrS[6] = c.Camp(delim::Text);
  a.AdrS[7] = c.Camp(delim::TextBare);
  a.AdrS[8] = c.Camp(delim::BareText);
}

std::string RecordFF1(const FisaFF1& f) {
  std::string r;
  r.reserve(512);
  ScrieAntet(r, f.Antet);
  for (const std::string* marca :
       {&f.FlagRectif, &f.FlagReg, &f.FlagDedu, &f.FlagAlteS, &f.FlagInv1, &f.FlagInv2}) {
    r += MarcaScrisa(*marca);
    r += delim::Text;
  }
  r += delim::TextBare;  // field 20 stays empty
  r += f.DataAngajarii;
  r += delim::Bare;
  r += f.DataIncetarii;
  for (const std::string& coef : f.CoefCalc) {
    r += delim::Bare;
    r += CoefScris(coef);
  }
  for (const std::string& coef : f.CoefProp) {
    r += delim::Bare;
    r += CoefScris(coef);
  }
  for (std::size_t i = 0; i < f.VenitN.size(); ++i) {
    r += delim::Bare;
    r += SumaScrisa(f.VenitN[i]);
    r += delim::Bare;
    r += SumaScrisa(f.ImpC[i]);
  }
  r += delim::Bare;
  r += SumaScrisa(f.Luni);
  r += delim::Bare;
  r += SumaScrisa(f.ChAc);
  for (std::size_t i : kRegStocate) {
    r += delim::Bare;
    r += SumaScrisa(f.Reg[i]);
  }
  return r;
}

FisaFF1 CitesteFF1(std::string_view record) {
  FisaFF1 f;
  CititorCampuri c(record);
  CitesteAntet(c, f.Antet);
  CitesteMarciSiDate(c, f);
  for (std::string& coef : f.CoefCalc) coef = c.Camp(delim::Bare);
  for (std::string& coef : f.CoefProp) coef = c.Camp(delim::Bare);
  for (std::size_t i = 0; i < f.VenitN.size(); ++i) {
    f.VenitN[i] = c.Camp(delim::Bare);
    f.ImpC[i] = c.Camp(delim::Bare);
  }
  f.Luni = c.Camp(delim::Bare);
  f.ChAc = c.Camp(delim::Bare);
  for (std::size_t k = 0; k + 1 < kRegStocate.size(); ++k)
    f.Reg[kRegStocate[k]] = c.Camp(delim::Bare);
  f.Reg[12] = c.Rest();
  return f;
}

std::size_t CitesteAntetFF1(std::string_view record, FisaFF1& f) {
  CititorCampuri c(record);
  CitesteAntet(c, f.Antet);
  CitesteMarciSiDate(c, f);
  f.DataAngajarii = DataCuBare(f.DataAngajarii);
  f.DataIncetarii = DataCuBare(f.DataIncetarii);
  return c.Pozitie();
}

void CitesteCorpFF1(std::string_view record, std::size_t pozitie, FisaFF1& f) {
  CititorCampuri c(record, pozitie);
  for (std::string& coef : f.CoefCalc) coef = TextZecimal(c.Camp(delim::Bare));
  for (std::string& coef : f.CoefProp) coef = TextZecimal(c.Camp(delim::Bare));
  for (std::size_t i = 0; i < f.VenitN.size(); ++i) {
    f.VenitN[i] = c.Camp(delim::Bare);
    f.ImpC[i] = c.Camp(delim::Bare);
  }
  // Of the next eleven fields the screen keeps Luni, ChAc, Reg(10), Reg(11);
  // the regularisation in between is computed anew on the screen.
  f.Luni = c.Camp(delim::Bare);
  f.ChAc = c.Camp(delim::Bare);
  for (int skip = 0; skip < 7; ++skip) c.Camp(delim::Bare);
  f.Reg[10] = c.Camp(delim::Bare);
  f.Reg[11] = c.Camp(delim::Bare);
  f.Reg[12] = c.Rest();
}

}  // namespace fisc
