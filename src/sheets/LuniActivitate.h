#pragma once
// The months of activity of a sheet, from the dates of employment and of
// leaving as the employee screen holds them ("zz/ll/aaaa").
#include <string_view>

namespace fisc {

// The first month of activity, 0 to 11, from "zz/ll/aaaa": 0 for no date or
// a start on the first days of January (day not above PrimaZi).
int LunaPrimaActivitate(std::string_view dataAngajarii, std::string_view primaZi);
// The last month, 11 for no date or an end on the last days of December.
int LunaUltimaActivitate(std::string_view dataIncetarii, std::string_view ultimaZi);
// Both of the above cover the year: the first condition of a regularisation.
bool AnIntreg(std::string_view dataAngajarii, std::string_view dataIncetarii,
              std::string_view primaZi, std::string_view ultimaZi);

}  // namespace fisc
