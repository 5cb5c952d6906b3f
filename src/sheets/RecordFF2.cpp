#include "sheets/RecordFF2.h"

#include "platform/Failure.h"

namespace fisc {

std::string RecordFF2(const FisaFF2& f) {
  std::string r;
  r.reserve(384);
  ScrieAntet(r, f.Antet);
  r += MarcaScrisa(f.FlagRectif);
  for (const std::string& tas : f.TAS) {
    r += delim::Text;
    r += MarcaScrisa(tas);
  }
  r += delim::TextBare;
  for (std::size_t i = 0; i < f.VenitCS.size(); ++i) {
    if (i > 0) r += delim::Bare;
    r += f.VenitCS[i];
    r += delim::Bare;
    r += f.ImpS[i];
  }
  return r;
}

FisaFF2 CitesteFF2(std::string_view record) {
  FisaFF2 f;
  CititorCampuri c(record);
  CitesteAntet(c, f.Antet);
  f.FlagRectif = c.Marca(delim::Text);
  for (std::size_t i = 0; i < f.TAS.size(); ++i)
    f.TAS[i] = c.Marca(i + 1 < f.TAS.size() ? delim::Text : delim::TextBare);
  for (std::size_t i = 0; i < 12; ++i) {
    f.VenitCS[i] = c.Camp(delim::Bare);
    f.ImpS[i] = c.Camp(delim::Bare);
  }
  f.VenitCS[12] = c.Camp(delim::Bare);
  f.ImpS[12] = c.Rest();
  return f;
}

std::size_t CitesteAntetFF2(std::string_view record, FisaFF2& f) {
  CititorCampuri c(record);
  CitesteAntet(c, f.Antet);
  f.FlagRectif = c.Marca(delim::Text);
  return c.Pozitie();
}

void CitesteCorpFF2(std::string_view record, std::size_t pozitie, FisaFF2& f) {
  CititorCampuri c(record, pozitie);
  // Each mark ends at the first "#," and the next one begins three characters
  // on, past "#,#"; the last one is followed by the first amount.
  for (std::size_t i = 0; i < f.TAS.size(); ++i) {
    f.TAS[i] = c.Marca(delim::TextBare);
    if (i + 1 < f.TAS.size()) c.Sari(1);
  }
  for (std::size_t i = 0; i < 12; ++i) {
    f.VenitCS[i] = c.Camp(delim::Bare);
    f.ImpS[i] = c.Camp(delim::Bare);
  }
  // The totals are split at the last comma of the line.
  std::string_view rest = c.Rest();
  std::size_t virgula = rest.rfind(',');
  if (virgula == std::string_view::npos) Fail(err::InvalidCall);
  f.VenitCS[12] = rest.substr(0, virgula);
  f.ImpS[12] = rest.substr(virgula + 1);
}

}  // namespace fisc
