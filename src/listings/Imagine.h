#pragma once
// The preview of the sheet in hand on a sheet screen, before it is saved:
// the sheet written from the screen's values in the layout of its listing,
// then the viewer and the print dialog of every listing.
#include "platform/Platforma.h"
#include "sheets/RecordFF1.h"
#include "sheets/RecordFF2.h"

namespace fisc {

struct FisaInLucru;
struct ParametriAn;
struct StareListare;

// ListF1.txt from `fisa` and the dependants of Ded, with no page headers.
void ImagineFF1(Platforma& p, const ParametriAn& parametri, FisaInLucru& inLucru,
                StareListare& listare, FisaFF1 fisa);

// ListF2.txt from `fisa`.
void ImagineFF2(Platforma& p, const ParametriAn& parametri, StareListare& listare, FisaFF2 fisa);

}  // namespace fisc
