#include "app/Aplicatie.h"

#include "app/Schimb.h"

namespace fisc {

Aplicatie::Aplicatie(Platforma& platforma)
    : p_(platforma),
      intro(desktop_, p_, stare_.Parametri, stare_.DataGresita, stare_.Angajator, stare_.Fisa,
            stare_.Listare),
      fisaI(desktop_, p_, stare_.Parametri, stare_.Angajator, stare_.Fisa),
      fisaII(desktop_, p_, stare_.Parametri, stare_.Fisa) {
  intro.Fisa_I = &fisaI;
  fisaI.Intro = &intro;
  fisaI.Fisa_II = &fisaII;
  fisaII.Intro = &intro;
  fisaII.Fisa1_F = &fisa1F;
  fisaII.Fisa2 = &fisa2;
  fisaII.frmGasit = &frmGasit;
  fisa1F.Fisa_II = &fisaII;
  fisa2.Fisa_II = &fisaII;
  frmGasit.Fisa_II = &fisaII;
  intro.Borderou = &lisBord;
  intro.Centralizator = &listabIV;
  intro.ListareF1 = &lisFise1;
  intro.ListareF2 = &lisFise2;
  intro.Verif_fis = &verifFis;
}

bool Aplicatie::Porneste() {
  instanta_ = std::make_unique<InstantaUnica>(p_.files.Directory());
  if (!instanta_->Singura()) return false;

  // From here on a failing step is passed over. A load that fails after
  // opening its file leaves the file open, and the later reads of the
  // start-up then fail on it as well.
  bool canalBlocat = false;
  auto incarca = [&](auto&& load) {
    try {
      if (canalBlocat) Fail(err::FileAlreadyOpen);
      load();
    } catch (const RuntimeFailure& f) {
      if (f.number() != err::FileNotFound) canalBlocat = true;
    }
  };
  incarca([&] { IncarcaCuantum(p_.files, stare_.Parametri); });
  incarca([&] { IncarcaImpozitar(p_.files, stare_.Impozitar); });
  SchimbLaPornire(p_.files, stare_.Parametri.AnFiscal, canalBlocat);
  desktop_.Dispatch([&] { intro.Show(); });
  return true;
}

}  // namespace fisc
