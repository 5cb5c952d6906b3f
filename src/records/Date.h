#pragma once
// Dates of the records: the text "dd/mm/yyyy", always read day first, and the
// probe of the machine's short date that day-first reading relies on.
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace fisc {

class Clock;
class Dialogs;

// The year of today's date by a clock; without one, by the machine's.
int AnulCurent(const Clock& clock);
int AnulCurent();

// A date text typed on a screen or taken from a file, put in order: blanks
// trimmed; "--", "..", "//", "-  -", ".  .", "/  /" give ""; "." and "-"
// become "/"; a day/month/year that names a real day becomes "dd/mm/yyyy",
// a one- or two-digit year counting in the century of `anCurent`. A text that
// can't be read so comes back with only its separators replaced.
std::string NormalizeazaData(std::string_view text, int anCurent = AnulCurent());

// The day of a text in the exact form "dd/mm/yyyy"; nullopt for anything else.
std::optional<std::chrono::year_month_day> CitesteData(std::string_view text);

// The text "dd/mm/yyyy" of a day.
std::string TextData(std::chrono::year_month_day day);

// Probes how the machine writes today's short date: every date test of the
// program reads day first. Returns DataGresita: 0 when the day stands first
// and the month second, else 1 after warning the user.
int VerificaDataRegionala(const Clock& clock, Dialogs& dialogs);

}  // namespace fisc
