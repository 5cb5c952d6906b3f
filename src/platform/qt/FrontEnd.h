#pragma once
// The window of the program: runs the application with Qt widgets drawn from
// its screen models.
#include <filesystem>

namespace fisc {

struct WindowOptions {
  std::filesystem::path workdir;
  std::filesystem::path drive;
};

int RunWindow(int argc, char** argv, const WindowOptions& options);

}  // namespace fisc
