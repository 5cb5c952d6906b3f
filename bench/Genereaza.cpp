// Writes the generated data set into a folder, for the scripts of bench/:
//   fisc_generate DIR EMPLOYEES [YEAR]
// Prints the code of the employee in the middle of the set.
#include <cstdlib>
#include <iostream>

#include "Generator.h"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: fisc_generate DIR EMPLOYEES [YEAR]\n";
    return 2;
  }
  std::size_t n = std::strtoul(argv[2], nullptr, 10);
  fisc::bench::Genereaza(argv[1], n, argc > 3 ? argv[3] : "2002");
  std::cout << fisc::bench::CodAngajat(n / 2) << "\n";
  return 0;
}
