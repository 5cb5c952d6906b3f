#pragma once
// The names of the files that hold the employer and the sheets. New files
// take these spellings; the files service finds any other spelling on disk.
#include <string>
#include <string_view>

namespace fisc {

// The four record families, each with a working file and a file per year.
enum class Familie { Rep, FF1, FF2, Ded };

namespace fisier {
// Working names: during a run they hold the current year.
inline constexpr std::string_view Repfisc = "Repfisc.txt";
inline constexpr std::string_view Ff1 = "Ff1.txt";
inline constexpr std::string_view Ff2 = "Ff2.txt";
inline constexpr std::string_view Deduceri = "Deduceri.txt";

// Work files, each in the record format of the file it stands for.
inline constexpr std::string_view Temporar = "Temporar.txt";
inline constexpr std::string_view Temp1 = "temp1.txt";
inline constexpr std::string_view Ff1Sort1 = "ff1_sort1.txt";
inline constexpr std::string_view Ff2Sort1 = "ff2_sort1.txt";
inline constexpr std::string_view Ff1Sort = "ff1_sort.txt";
inline constexpr std::string_view Ff2Sort = "ff2_sort.txt";
// The verification sorts the dependants into Dedu_sort.txt; the clean-up at
// the end of the run deletes ded_sort.txt, which nothing makes. Both are kept.
inline constexpr std::string_view DeduSort = "Dedu_sort.txt";
inline constexpr std::string_view DedSort = "ded_sort.txt";
inline constexpr std::string_view RepSort = "rep_sort.txt";
}  // namespace fisier

// "Ff1.txt" for FF1, and so on.
std::string_view NumeLucru(Familie familie);

// The per-year file of a family: "FF1_2002.txt"; an empty year gives "FF1_.txt".
std::string NumeAnual(Familie familie, std::string_view an);

}  // namespace fisc
