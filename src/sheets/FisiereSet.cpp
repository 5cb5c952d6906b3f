#include "sheets/FisiereSet.h"

namespace fisc {

namespace {
std::string_view PrefixAnual(Familie familie) {
  switch (familie) {
    case Familie::Rep: return "Rep_";
    case Familie::FF1: return "FF1_";
    case Familie::FF2: return "FF2_";
    case Familie::Ded: return "Ded_";
  }
  return {};
}
}  // namespace

std::string_view NumeLucru(Familie familie) {
  switch (familie) {
    case Familie::Rep: return fisier::Repfisc;
    case Familie::FF1: return fisier::Ff1;
    case Familie::FF2: return fisier::Ff2;
    case Familie::Ded: return fisier::Deduceri;
  }
  return {};
}

std::string NumeAnual(Familie familie, std::string_view an) {
  std::string nume(PrefixAnual(familie));
  nume += an;
  nume += ".txt";
  return nume;
}

}  // namespace fisc
