#pragma once
#include <array>
#include <string>

#include "params/Impozitar.h"

namespace fisc {
class Files;
struct ParametriAn;
struct RezultatVerificare {
  bool ExistaErori = false;
  bool CorelareAbandonata = false;
  std::string CodVerificat;             // the employer code of the last Repfisc.txt record
  std::string NumeCopie;                // "erori_<cod>.txt", the code taken as a number
  std::string Mesaj;                    // the text of the closing box when ExistaErori is false
  std::array<long, 6> LiniiSectiune{};  // lines written under each of the six section headings
};
// The whole check pass over the working files (steps 1 to 11 of `but_verif`
// without the screen): writes and closes erori.txt, rewrites the four working
// files as the checks say, deletes the older kept copy and, when there are
// errors, copies erori.txt to it. The caller shows the hourglass, then either
// starts the viewer on erori.txt (ExistaErori) or shows Mesaj in a plain box.
RezultatVerificare but_verif(Files& files, const ParametriAn& parametri, const TabelImpozit& tabel);
}  // namespace fisc
