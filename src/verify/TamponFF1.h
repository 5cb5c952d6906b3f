#pragma once
// The FF1 sheets of one employee made into one record: the dates put in the
// normal form for the sort, the first sheet cut to its months, every further
// sheet added in. Coefficients are written back as decimals with ".", amounts
// as whole numbers: "0012" comes back as "12" and an empty field as "0".
#include <string>
#include <string_view>

namespace fisc {

// The date of a foreign file in the form "zz/ll/aaaa" where it can be: a
// year read as 19xx fixed, "." and "-" made "/", a one-digit day padded and
// the DBF form "aaaallzz" turned round.
std::string DataNormala(std::string_view data);

// The month index 0 to 11 of a date: characters 4 and 5, so that "15/3/2002"
// gives 2. A date the checks let through has one; else failure 9.
std::size_t IndexLuna(std::string_view data);

// The sort line of a record: code, start, end, then the record with its two
// dates in the normal form, all joined by commas.
std::string ver_data(std::string_view record);

// The buffer of a first sheet: the months outside start..end emptied to 0,
// Luni no more than the months with a coefficient.
std::string umple_buff_ff1(std::string_view record, std::string_view start, std::string_view end);

// Adds a further sheet of the employee into the buffer over start..end; the
// buffer keeps its start date and takes this end date. A regularisation
// doesn't survive: fields 77 to 83 come out empty.
void aduna_buff_ff1(std::string_view record, std::string& buffer, std::string_view start,
                    std::string_view end, std::string_view sfarsitPrec);

}  // namespace fisc
