#pragma once
// The options of the program. Arguments that don't begin with "--" belong to
// the window toolkit ("-platform offscreen") and are left to it.
#include <filesystem>
#include <optional>
#include <string>

namespace fisc {

struct CommandLine {
  enum class Mode { Window, Replay, Verify, Help, Version, Wrong } mode = Mode::Window;
  std::filesystem::path script;                  // --replay
  std::optional<std::filesystem::path> workdir;  // --workdir
  std::optional<std::filesystem::path> drive;    // --drive
  bool dbf = false, fromDrive = false;           // --verify's intake
  std::string wrong;                             // the argument refused
};

CommandLine ParseCommandLine(int argc, const char* const* argv);

// The usage text: every option and where the data of a run live.
std::string Usage();

}  // namespace fisc
