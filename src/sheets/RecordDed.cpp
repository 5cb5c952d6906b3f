#include "sheets/RecordDed.h"

#include "platform/Failure.h"
#include "records/CititorCampuri.h"
#include "records/Numere.h"
#include "sheets/RecordFF1.h"

namespace fisc {

namespace {
bool InTabel(int rand, int coloana) {
  return rand >= 0 && rand <= ded::Randuri && coloana >= 0 && coloana <= ded::Coloane;
}
}  // namespace

std::string& TabelDed::operator()(int rand, int coloana) {
  if (!InTabel(rand, coloana)) Fail(err::SubscriptOutOfRange);
  return celule_[static_cast<std::size_t>(rand)][static_cast<std::size_t>(coloana)];
}

const std::string& TabelDed::operator()(int rand, int coloana) const {
  if (!InTabel(rand, coloana)) Fail(err::SubscriptOutOfRange);
  return celule_[static_cast<std::size_t>(rand)][static_cast<std::size_t>(coloana)];
}

void TabelDed::Goleste() {
  for (auto& rand : celule_)
    for (std::string& celula : rand) celula.clear();
}

std::string RecordDed(std::string_view codAngajat, const TabelDed& t, int rand) {
  std::string r;
  r.reserve(128);
  r += codAngajat;
  r += delim::Bare;
  r += t(rand, ded::CodI);
  r += delim::BareText;
  r += t(rand, ded::NumeI);
  r += delim::Text;
  r += t(rand, ded::PrenI);
  for (int coloana = ded::Sotie; coloana <= ded::Inv2; ++coloana) {
    r += delim::Text;
    r += MarcaScrisa(t(rand, coloana));
  }
  r += delim::Text;
  r += delim::TextBare;  // "Alte situatii" is never stored
  for (int luna = 0; luna < 12; ++luna) {
    if (luna > 0) r += delim::Bare;
    const std::string& coef = t(rand, ded::CoefI + luna);
    if (ValZecimal(coef) != 0) r += coef;
  }
  return r;
}

std::string_view CitesteRandDed(std::string_view record, TabelDed& t, int rand) {
  CititorCampuri c(record);
  std::string_view cod = c.Camp(delim::Bare);
  t(rand, ded::CodI) = c.Camp(delim::BareText);
  t(rand, ded::NumeI) = c.Camp(delim::Text);
  t(rand, ded::PrenI) = c.Camp(delim::Text);
  for (int coloana = ded::Sotie; coloana <= ded::Inv2; ++coloana)
    t(rand, coloana) = c.Marca(delim::Text);
  t(rand, ded::Inv3) = c.Marca(delim::TextBare);
  for (int luna = 0; luna < 11; ++luna) t(rand, ded::CoefI + luna) = c.Camp(delim::Bare);
  t(rand, ded::CoefI + 11) = c.Rest();
  return cod;
}

}  // namespace fisc
