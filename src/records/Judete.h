#pragma once
// The counties of the employer's and the employee's address, in the order of
// their lists; entry 0 is a blank.
#include <array>
#include <string_view>

namespace fisc {

inline constexpr std::array<std::string_view, 43> Judete = {" ",
                                                            "ALBA",
                                                            "ARAD",
                                                            "ARGES",
                                                            "BACAU",
                                                            "BIHOR",
                                                            "BISTRITA-NASAUD",
                                                            "BOTOSANI",
                                                            "BRASOV",
                                                            "BRAILA",
                                                            "BUCURESTI",
                                                            "BUZAU",
                                                            "CARAS SEVERIN",
                                                            "CALARASI",
                                                            "CLUJ",
                                                            "CONSTANTA",
                                                            "COVASNA",
                                                            "DAMBOVITA",
                                                            "DOLJ",
                                                            "GALATI",
                                                            "GIURGIU",
                                                            "GORJ",
                                                            "HARGHITA",
                                                            "HUNEDOARA",
                                                            "IALOMITA",
                                                            "IASI",
                                                            "ILFOV",
                                                            "MARAMURES",
                                                            "MEHEDINTI",
                                                            "MURES",
                                                            "NEAMT",
                                                            "OLT",
                                                            "PRAHOVA",
                                                            "SATU MARE",
                                                            "SALAJ",
                                                            "SIBIU",
                                                            "SUCEAVA",
                                                            "TELEORMAN",
                                                            "TIMIS",
                                                            "TULCEA",
                                                            "VASLUI",
                                                            "VALCEA",
                                                            "VRANCEA"};

}  // namespace fisc
