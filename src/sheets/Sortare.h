#pragma once
// The alphabetical copies of the sheet files: the records in the order of the
// employee's name and first name, so that the listings come out alphabetical.
// The order is that of a sorted list control, the program's only sort engine.
#include <string>
#include <string_view>

namespace fisc {

class Control;
class Files;

// The key of a record: the text after the first "," and its "#" up to the
// next "#", a blank, and the next text field. A record without those
// delimiters is failure 5.
std::string CheieSortare(std::string_view record);

// Writes the records of `sursa` into a new `tinta`, in the order that the
// sorted list `lista` gives the key, "$$", the record and "@". A record that
// holds "@" is cut there. The list is emptied again afterwards.
void SorteazaAlfabetic(Files& files, Control& lista, std::string_view sursa,
                       std::string_view tinta);

// The action of the main window's check box: deletes both alphabetical copies,
// and makes them anew from the working files that exist when `bifat`.
void PregatesteSortare(Files& files, Control& lista, bool bifat);

}  // namespace fisc
