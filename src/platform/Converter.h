#pragma once
// The DBF to text converter, a program of its own delivered beside ours. The
// screens start it by the name they know it by; each launcher finds it here.
#include <filesystem>
#include <string_view>

namespace fisc {

inline constexpr std::string_view kConvertor = "transfer.exe";

// True for the name the screens start the converter by, in any case.
bool EsteConvertor(std::string_view program);

// The converter's program: "transfer" in the working directory when one lies
// there (a converter of the employer's own takes precedence), else the one
// beside this program. Empty when neither exists: nothing is started then,
// as if a converter had run and written nothing.
std::filesystem::path GasesteConvertor(const std::filesystem::path& workdir);

// Runs the converter in the working directory, the directory also its one
// argument, and waits for its end. What it prints goes to our standard
// error, so that nothing of it mixes with a transcript on standard output.
void RuleazaConvertor(const std::filesystem::path& program, const std::filesystem::path& workdir);

}  // namespace fisc
