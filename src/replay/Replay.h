#pragma once
// The replay driver: runs the program without a window from a script of the
// actions a person would take, and prints what that person would see outside
// the fields. Exit status: 0 every expect held, 1 an expect failed, 2 the
// script can't be run, 3 a run-time failure ended the program.
#include <filesystem>
#include <iosfwd>

namespace fisc {

struct ReplayOptions {
  std::filesystem::path script;
  std::filesystem::path workdir;
  std::filesystem::path drive;
};

int RunReplay(const ReplayOptions& options, std::ostream& out, std::ostream& err);

}  // namespace fisc
