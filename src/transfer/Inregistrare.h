#pragma once
// A text record as the row of its field texts, by the table of its file: the
// delimiter between two fields follows from their forms, as in every record
// of the working files.
#include <string>
#include <string_view>
#include <vector>

#include "transfer/StructuriDbf.h"

namespace fisc {

// The line of a record, without a line end; `valori` holds one text a field.
std::string ScrieInregistrare(const FisierDbf& fisier, const std::vector<std::string>& valori);

// Takes a line apart into `valori`, one text a field; false when its structure
// isn't the template of the file.
bool CitesteInregistrare(const FisierDbf& fisier, std::string_view linie,
                         std::vector<std::string>& valori);

}  // namespace fisc
