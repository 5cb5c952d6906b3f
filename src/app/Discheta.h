#pragma once
// The diskette for the fiscal unit: the four working files of the year written
// to the removable drive under their per-year names.
#include <string_view>

#include "platform/Platforma.h"

namespace fisc {

// Asks whether the diskette is in, empties it and copies Ff1.txt, Ff2.txt,
// Deduceri.txt and Repfisc.txt to FF1_aaaa.txt, FF2_aaaa.txt, Ded_aaaa.txt
// and Rep_aaaa.txt. A failure of the drive ends the copy with its numbered
// box (52, 61, 71); any other failure ends it without a word.
void SalveazaPeDischeta(Platforma& p, std::string_view anFiscal);

// The number the person sees for a failure met on the drive: a missing
// drive folder is a drive with no diskette, a file in its place a bad drive.
int EroareDischeta(const Drive& drive, int numar);

}  // namespace fisc
