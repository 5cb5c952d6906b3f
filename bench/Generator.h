#pragma once
// A realistic data set for the timings: an employer with N employees, each
// with an FF1 sheet (a third with dependants, some part-year), one in five
// with an FF2 sheet too, written as the per-year files of the year.
#include <filesystem>
#include <string>

namespace fisc::bench {

struct SetDate {
  std::size_t angajati = 0;
  std::size_t persoane = 0;  // dependant rows written
  std::size_t fise2 = 0;
};

// Writes Rep_AN.txt, FF1_AN.txt, FF2_AN.txt and Ded_AN.txt into `dir`, and the
// previous year's employer record as Repfisc.txt, as a normal second run finds them.
SetDate Genereaza(const std::filesystem::path& dir, std::size_t angajati, const std::string& an);

// The code of employee number `i` of the generated set: a valid CNP.
std::string CodAngajat(std::size_t i);

}  // namespace fisc::bench
