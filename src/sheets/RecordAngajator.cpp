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

std::string TipCaCampSimplu(std::string_view line) {
  // The code up to the first ",#", the type from there up to the next "#,#"
  // without its marks, then the rest from the comma of that "#,#".
  std::size_t a = line.find(",#");
  std::size_t b = line.find("#,#", a + 2);
  std::string r(line.substr(0, a));
  r += ',';
  r += line.substr(a + 2, b - a - 2);
  r += line.substr(b + 1);
  return r;
}

}  // namespace fisc
