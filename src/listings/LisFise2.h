#pragma once
// The screen of the FF2 listing: the addressee of the copies, all sheets or
// one, and the signer.
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
struct StareListare;

class LisFise2 : public Form {
 public:
  LisFise2(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa,
           StareListare& listare);

  Control& Combo1;
  Control& Option1_1;  // "- una"
  Control& Option1_0;  // "- toate"
  Control& Dnupren;
  Control& Dfunc;
  Control& Command1;
  Control& Combo3;
  Control& Label20;

  // The opening of the screen: the first addressee, all sheets, and the
  // signer of the last listing.
  void Deschide();

 private:
  // The list of sheets for "- una".
  void UmpleLista();
  void ScrieSiListeaza(std::string_view sursa, std::string_view cod);

  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  StareListare& listare_;
};

}  // namespace fisc
