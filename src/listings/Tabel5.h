#pragma once
// The table of regularised FF1: the figures of section VI of every
// regularised sheet, in alphabetical order, with totals. It has no screen of
// its own: the main window's button runs it.
#include <string>

namespace fisc {

class Control;
class Files;
struct StareListare;

// Sorts Ff1.txt into ff1_sort.txt through the sorted list `lista`, keeps its
// regularised sheets in Ff1R.txt and writes tab5.txt from them. Nothing is
// written when Ff1.txt doesn't exist; false then.
bool ScrieTabel5(Files& files, Control& lista, StareListare& s, std::string& codCurent,
                 const std::string& anFiscal);

}  // namespace fisc
