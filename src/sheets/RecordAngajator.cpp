#include "sheets/RecordAngajator.h"

#include "records/CititorCampuri.h"
#include "records/Numere.h"

namespace fisc {

RecordAngajator CitesteAngajator(std::string_view line) {
  RecordAngajator r;
  CititorCampuri c(line);
  r.CodP = c.CampText(delim::Bare);
  r.TipAngajator = c.CampText(delim::BareText);
  r.DenP = c.CampText(delim::Text);
  r.NumeP = c.CampText(delim::Text);
  r.PrenP = c.CampText(delim::Text);
  r.AdrP[0] = c.CampText(delim::Text);
  r.JudP = c.CampText(delim::Text);
  r.AdrP[1] = c.CampText(delim::Text);
  r.AdrP[2] = c.CampText(delim::TextBare);
  r.AdrP[3] = c.CampText(delim::BareText);
  r.AdrP[4] = c.CampText(delim::Text);
  r.AdrP[5] = c.CampText(delim::Text);
  r.AdrP[6] = c.CampText(delim::Text);
  r.AdrP[7] = c.CampText(delim::TextBare);
  r.AdrP[8] = c.CampText(delim::BareText);
  r.AdrP[9] = c.CampText(delim::Text);
  r.AdrP[10] = c.CampText("#");
  return r;
}

std::string ScrieAngajator(const RecordAngajator& r) {
  std::string s = r.CodP;
  if (Valoare(r.TipAngajator) == 1)
    s += ",1,#" + r.DenP + "#,##,##,#";
  else
    s += ",2,##,#" + r.NumeP + "#,#" + r.PrenP + "#,#";
  s += r.AdrP[0] + "#,#" + r.JudP + "#,#" + r.AdrP[1] + "#,#" + r.AdrP[2] + "#," + r.AdrP[3] +
       ",#" + r.AdrP[4] + "#,#" + r.AdrP[5] + "#,#" + r.AdrP[6] + "#,#" + r.AdrP[7] + "#," +
       r.AdrP[8] + ",#" + r.AdrP[9] + "#,#" + r.AdrP[10] + "#";
  return s;
}

std::string AngajatorCuTipNumeric(std::string_view line) {
  std::size_t a = line.find(",#");
  std::size_t b = a == std::string_view::npos ? a : line.find("#,#", a + 2);
  if (b == std::string_view::npos) return std::string(line);
  // The code, the type without its marks, then all from the comma behind it.
  std::string s(line.substr(0, a));
  s += ',';
  s += line.substr(a + 2, b - a - 2);
  s += line.substr(b + 1);
  return s;
}

}  // namespace fisc
