#pragma once
// The converter between the four per-year dBase files and the four text
// working files of a working directory, both ways.
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fisc {

class Files;

// The year of the files: the first line of tr12.txt, trimmed, when it is
// digits only; nullopt when the file is missing or holds no year.
std::optional<std::string> AnDinTr12(const Files& files);

// dBase to text. Checks the structure of the four <x>_aaaa.dbf; on faults
// writes them to ferr.txt, one a line, touches no text file and returns
// them. Else converts the records, every deleted one skipped; a value that
// can't be read is a fault as well, with the same ending. Without faults
// deletes ferr.txt and replaces Repfisc.txt, Ff1.txt, Ff2.txt and
// Deduceri.txt, each through a work file, and returns nothing.
std::vector<std::string> DbfInText(Files& files, std::string_view an);

// Text to dBase: the four working files, a missing one taken as empty, to
// the four <x>_aaaa.dbf, dated `ziua`. Empty lines are skipped. On faults
// (a line of another structure, a value that doesn't fit its field) writes
// nothing and returns them, one a line.
std::vector<std::string> TextInDbf(Files& files, std::string_view an,
                                   std::chrono::year_month_day ziua);

// The four empty templates Rep.dbf, FF1.dbf, FF2.dbf and Ded.dbf, with a
// fixed date, so that they come out the same bytes each time.
void ScrieSabloane(Files& files);

}  // namespace fisc
