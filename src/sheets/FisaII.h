#pragma once
// The employee screen: identifies one employee and chooses the sheet to work
// on, a new FF1 or FF2 or one already on file, and hands over to the sheet
// screens. Its Command1 takes the employee's situation over and prepares the
// FF1 screen.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/Platforma.h"
#include "sheets/RecordFF1.h"
#include "sheets/Stocare.h"

namespace fisc {

struct ParametriAn;
struct FisaInLucru;
class EcranFF1;
class EcranFF2;
class FrmGasit;

class FisaII : public Form {
 public:
  FisaII(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri, FisaInLucru& fisa);

  Control& AnFisc;
  Control& Option1;
  Control& Option2;
  Control& Combo1;
  Control& Command2;
  Control& Label20;
  Control& Xrectif;
  Control& CodS;
  Control& NumeS;
  Control& PrenS;
  // AdrS: 0 Localitate, 1 Strada, 2 Numar, 3 Cod postal, 4 Bloc, 5 Scara,
  // 6 Etaj, 7 Apartament, 8 Sector. The county list stands between AdrS(0)
  // and AdrS(1) in the focus order.
  std::array<Control*, 9> AdrS{};
  Control& JudS;
  Control& Ok_Fisa1;
  Control& Ok_Fisa2;
  Control& but_sterg_fisa;
  Control& Frame1;
  Control& Xreg;
  Control& Xdedu;
  Control& XAlteS;
  Control& Inv1A;
  Control& Inv2A;
  Control& Inv3A;
  Control& Job0;
  Control& Job1;
  Control& Command3;
  Control& Command1;

  Form* Intro = nullptr;  // shown again when this screen closes
  EcranFF1* Fisa1_F = nullptr;
  EcranFF2* Fisa2 = nullptr;
  FrmGasit* frmGasit = nullptr;

  // Fills the head of a record into this screen: names, address, county,
  // the marks (those of FF1 only from an FF1 record) and the dates. Returns
  // the position after the head, where the body of the sheet begins.
  std::size_t IncarcaAntet(std::string_view record);
  // Loads what the existing-code decision asked for.
  void IncarcaDupaDecizie();
  // Empties the screen for the next employee; the focus goes to Option1.
  void GolesteAngajat();
  // The screen as the FF2 screen leaves it when it closes.
  void ReiaDupaFF2();
  // Fields 1 to 13 of a record, as the screen holds them.
  AntetFisa Antet() const;

 private:
  Control& AdaugaAdresa(int i, std::string_view eticheta, int x, int y, int w);
  void CautaCodul(const std::string& cod);
  void IntrareCodS();
  void IesireCodS();
  void UmpleLista();
  void AlegeDinLista();
  void IesireData(Control& camp);
  void Command1_Click();
  void Ok_Fisa2_Click();
  // Ok_Fisa1, Ok_Fisa2 or Command1, the first that is enabled.
  Control& PrimulButonActiv();

  Platforma& p_;
  const ParametriAn& parametri_;
  FisaInLucru& fisa_;
  struct LiniiGasite {
    std::string Cod;
    LinieGasita FF1, FF2;
  };
  LiniiGasite gasite_;
};

}  // namespace fisc
