#pragma once
// The months as the screens name their rows.
#include <array>
#include <string_view>

namespace fisc {

inline constexpr std::array<std::string_view, 12> NumeLuni = {
    "Ianuarie", "Februarie", "Martie",     "Aprilie",   "Mai",       "Iunie",
    "Iulie",    "August",    "Septembrie", "Octombrie", "Noiembrie", "Decembrie"};

}  // namespace fisc
