#pragma once
// The FF1 sheet screen: four frames on one surface, one shown at a time: the
// employee's own coefficients and the month totals (IV.A, IV.B), the
// dependants (IV.C), income and tax (V), and the regularisation (VI to VIII).
// Its logic is split by frame over the Fisa1F*.cpp files.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "params/Impozitar.h"
#include "platform/Failure.h"
#include "platform/Form.h"
#include "platform/Platforma.h"
#include "sheets/EcraneFise.h"
#include "sheets/RecordFF1.h"
#include "tax/Conditii.h"
#include "tax/Lanturi.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
struct StareListare;
class FisaII;

class Fisa1F : public Form, public EcranFF1 {
 public:
  Fisa1F(Desktop& desktop, Platforma& platforma, ParametriAn& parametri,
         const TabelImpozit& impozitar, FisaInLucru& fisa, StareListare& listare);

  // The buttons that change frames, and the tools beside them.
  Control& Command1;
  Control& Command2;
  Control& Command3;
  Control& Command4;
  Control& Command10;
  Control& Command14;
  Control& Command15;

  // IV.A and IV.B: own coefficient and total coefficient of each month.
  Control& Fisa1_III;
  std::array<Control*, 12> CoefProp{};
  std::array<Control*, 12> CoefCalc{};
  Control& Inv1A;
  Control& Inv2A;
  Control& Inv3A;
  Control& Command9;
  Control& Command11;

  // IV.C: the dependants, one shown at a time from the table Ded.
  Control& Fisa1_IIIC;
  Control& CodI;
  Control& NumeI;
  Control& PrenI;
  Control& Sotie;
  Control& Copil;
  Control& Alta;
  Control& inv1;
  Control& inv2;
  Control& inv3;
  std::array<Control*, 12> CoefI{};
  Control& Frame2;
  std::array<Control*, 2> Option1{};  // 1 "Preiau conditii", 0 "Anulez conditii"
  Control& Command6;
  Control& Ok_persA;
  Control& Ok_PersU;
  Control& Ok_StergP;
  Control& Command7;
  Control& Text2;
  Control& Label34;

  // V: rows 0..11 the months, 12 the holiday bonus, 13 the totals.
  Control& Fisa1_IV;
  std::array<Control*, 14> VenitN{};
  std::array<Control*, 14> ImpP{};
  std::array<Control*, 14> ImpC{};
  std::array<Control*, 13> Bif{};
  Control& LuPrima;
  Control& Command12;
  Control& Luni;
  Control& ChAc;
  Control& Command8;
  Control& Picture1;

  // VI to VIII: items VI.1 to VI.10, then VII and VIII.
  Control& Fisa1_V;
  std::array<Control*, 13> Reg{};
  Control& Command5;

  FisaII* Fisa_II = nullptr;

  // Steps of the employee screen's Command1 from the showing of this screen
  // on: the months of activity, the first taxes, and the coefficients of a
  // new or an existing sheet.
  void Deschide(std::string_view nume, std::string_view prenume) override;

  // The body of an FF1 record from `pozitie`, the position after field 22.
  void IncarcaFF1(std::string_view record, std::size_t pozitie) override;
  // Shows row PersoanaCurenta of Ded.
  void ArataPersoana() override;
  // The tool tips of the person buttons: how many persons there are.
  void ArataNrPersoane() override;
  void ArataPersoanaCurenta(short persoana) override;
  void PreiaInvaliditatea(int inv1, int inv2) override;
  void GolesteFF1();
  // Writes the sheet on the screen and its dependants to the files.
  void SalveazaFF1();
  // The sheet as the screen holds it, head and marks included.
  FisaFF1 FisaDinEcran() const;

  // The actions of the buttons, for the buttons that repeat them.
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();

 private:
  // Construction of the frames' field columns.
  template <std::size_t N>
  std::array<Control*, N> Coloana(Control& frame, ControlKind kind, const std::string& name, int x,
                                  int y, int w, int pas, int maxLength = 0);
  std::array<Control*, 2> Optiuni();

  void LeagaCoeficienti();
  void LeagaPersoane();
  void LeagaVenituri();
  void LeagaRegularizare();

  // IV.A, IV.B
  void IesireCoefProp(int i);
  void calc_coef();
  void Conditii(int alegere);
  // The month's total: own coefficient plus every person's.
  std::string CoefTotal(int luna) const;
  double SumaPersoane(int luna) const;
  void MarciInvaliditateAngajat();

  // IV.C
  bool VerificaPersoana();
  void IntrareCodI();
  void IesireCodI();
  void IesireCoefI(int i);
  void ArataVarsta();
  void DeseneazaRand();
  void MarciPersoana(bool enabled);
  void StingeConditii();
  CalitatePersoana Calitate() const;
  void Ok_persA_Click();
  void Ok_PersU_Click();
  void Ok_StergP_Click();

  // V
  void IesireVenit(int i);
  void IesireImpC(int i);
  void IesireLuPrima();
  void IesireLuni();
  void SumeazaVenitImpP();
  void SumeazaImpC();
  double ImpozitPrimaEcran() const;
  CoeficientiLuni Coeficienti() const;

  // VI
  void Inchide();

  // A field of a month array; an index outside is failure 9, as the control
  // array's own bound would be.
  template <std::size_t N>
  static Control& Camp(const std::array<Control*, N>& campuri, int i) {
    if (i < 0 || i >= static_cast<int>(N)) Fail(err::SubscriptOutOfRange);
    return *campuri[static_cast<std::size_t>(i)];
  }
  void ArataDoar(Control& frame);
  bool FaraDeduceri() const;

  Platforma& p_;
  ParametriAn& parametri_;
  const TabelImpozit& impozitar_;
  FisaInLucru& fisa_;
  StareListare& listare_;
  std::string modPers_;  // "D" while the shown person is new, else "N"
};

}  // namespace fisc
