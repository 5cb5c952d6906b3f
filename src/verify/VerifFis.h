#pragma once
// The verification of files from other applications: an intake that brings
// them under the working names, then the error list. The clerk presses the
// two buttons in turn; between them the converter, if any, does its work.
#include <array>
#include <optional>

#include "params/Impozitar.h"
#include "platform/Form.h"
#include "platform/Platforma.h"
#include "verify/StareVerificare.h"
#include "verify/Verificare.h"

namespace fisc {

struct ParametriAn;

class VerifFis : public Form {
 public:
  VerifFis(Desktop& desktop, Platforma& platforma, const ParametriAn& parametri,
           const TabelImpozit& tabel, StareVerificare& stare);

  Control& Frame1;
  std::array<Control*, 2> Option1{};  // ".DBF", ".TXT"
  Control& Frame2;
  std::array<Control*, 2> Option2{};  // "din directorul de lucru", "de pe discheta"
  // Not for the clerk: the sorted list of the record pass.
  Control& Combo1;
  Control& Command1;
  Control& Command2;
  Control& Command3;
  Control& Label1;

  // What the last check pass of this screen found; none before the first.
  const std::optional<RezultatVerificare>& UltimaVerificare() const { return rezultat_; }

 private:
  // The screen as it opens: text files from the working directory.
  void Initializeaza();
  void Verificare();  // "VERIFICARE": the intake
  void ListaErori();  // "Lista erori": the converter's complaint or the check pass

  Platforma& p_;
  const ParametriAn& parametri_;
  const TabelImpozit& tabel_;
  StareVerificare& v_;
  std::optional<RezultatVerificare> rezultat_;
};

}  // namespace fisc
