#pragma once
// The intakes of the verification: the four files of another application
// brought under the working names, as text from the diskette, or as DBF from
// the diskette or the working directory through the converter. Each begins by
// emptying the four working files; the prompt before it warned of that.
#include <string_view>

#include "platform/Platforma.h"
#include "verify/StareVerificare.h"

namespace fisc {

// The year as the converter reads it: tr12.txt, one line, made afresh.
void ScrieAnulConvertorului(Files& files, std::string_view anFiscal);

// The text files of the year from the diskette. A diskette whose employer
// record still has the type as a text field gets it repaired as well.
void copy_txt_disc(Platforma& p, std::string_view anFiscal, StareVerificare& v);

// The DBF files of the year from the diskette, then the converter.
void copy_dbf_disc(Platforma& p, std::string_view anFiscal, StareVerificare& v);

// The DBF files of the year lying in the working directory, then the
// converter. A run-time failure here is not caught: it ends the program.
void tr_dbftxt(Platforma& p, std::string_view anFiscal, StareVerificare& v);

}  // namespace fisc
