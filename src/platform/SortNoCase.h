#pragma once
// The order of the sorted list controls, the program's one sort engine:
// ascending, case folded for A to Z only, equal texts kept in their order.
// Whole files are sorted through it, so it has no limit of size.
#include <string>
#include <string_view>
#include <vector>

namespace fisc {

// Case-insensitive order of two texts.
bool LessNoCase(std::string_view a, std::string_view b);

// Sorts `items` in place in the order of LessNoCase, stably.
void SortNoCase(std::vector<std::string>& items);
// The same for texts kept elsewhere, a whole file in one buffer, say.
void SortNoCase(std::vector<std::string_view>& items);

}  // namespace fisc
