#pragma once
// The lists from which a clerk chooses a sheet: one entry a sheet, of the form
// "NUME PRENUME--code--FF1", kept in alphabetical order by the list itself.
#include <optional>
#include <string>
#include <string_view>

#include "platform/Control.h"
#include "platform/Files.h"

namespace fisc {

// Adds an entry for every record of `fisier`, each ended by `sufix` ("--FF1").
void AdaugaFise(Control& lista, const Files& files, std::string_view fisier,
                std::string_view sufix);

// The code of an entry: the text between its first "--" and the "--FF" that
// follows, which may be empty; nothing when the entry has no such shape.
std::optional<std::string> CodulDinLista(std::string_view intrare);

}  // namespace fisc
