#pragma once
// The window of the program: runs the application with Qt widgets drawn from
// its screen models.
#include <filesystem>
#include <string>

namespace fisc {

struct WindowOptions {
  std::filesystem::path workdir;
  std::filesystem::path drive;
};

int RunWindow(int argc, char** argv, const WindowOptions& options);

// A problem that keeps the run from starting, in a box of its own.
void ShowStartProblem(int argc, char** argv, const std::string& text);

}  // namespace fisc
