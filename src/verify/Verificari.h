#pragma once
// The checks of the pass, in the order the driver calls them. Each reads the
// working files as the one before left them and writes its section of the
// error list.
#include <string>
#include <string_view>

#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/Files.h"
#include "verify/ListaErori.h"

namespace fisc {

// A file that is missing counts as empty: the route that verifies the files
// as they lie may lack one, and the warning names both cases.
bool FisierGol(const Files& files, std::string_view nume);

// Section 1: drops empty and malformed lines, sorts every file, drops repeated
// codes and rewrites Repfisc.txt, Ff2.txt and Deduceri.txt; leaves the sorted
// FF1 sheets in ff1_sort.txt for ver_ff1.
void ver_duble(Files& files, ListaErori& lista, std::string_view an);

// Section 2: the employer's code; returns it (CodVerificat), "" without a record.
std::string ver_rep(Files& files, ListaErori& lista);

// Section 3: the FF1 sheets, rewritten one merged record an employee. Returns
// CorelareAbandonata: the last sheet read had a date error.
bool ver_ff1(Files& files, ListaErori& lista, const ParametriAn& p, const TabelImpozit& tabel);

// Section 4: code and totals of each FF2 sheet.
void ver_ff2(Files& files, ListaErori& lista);

// Section 5: each dependant line on its own.
void ver_ded(Files& files, ListaErori& lista, std::string_view an);

// Section 6: each employee's coefficients against his dependants'.
void ver_corel_ff1_ded(Files& files, ListaErori& lista);

}  // namespace fisc
