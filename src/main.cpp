// fisc: the income tax sheets of one fiscal year.
//   fisc [--workdir DIR] [--drive DIR]                 the window
//   fisc --replay SCRIPT [--workdir DIR] [--drive DIR]  a script, without a window
//   fisc --verify [--dbf] [--from-drive] [--workdir DIR] [--drive DIR]
//                                                      the verification, without a window
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>

#include "platform/qt/FrontEnd.h"
#include "platform/qt/QtPrinter.h"
#include "replay/Replay.h"
#include "replay/VerifyCommand.h"

namespace {

int Usage() {
  std::cerr << "usage: fisc [--replay SCRIPT | --verify [--dbf] [--from-drive]] [--workdir DIR] "
               "[--drive DIR]\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  fs::path script, workdir = fs::current_path(), drive;
  bool replay = false, verify = false, dbf = false, fromDrive = false;
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    auto value = [&]() -> const char* { return i + 1 < argc ? argv[++i] : nullptr; };
    const char* v = nullptr;
    if (arg == "--replay" && (v = value())) {
      replay = true;
      script = v;
    } else if (arg == "--verify") {
      verify = true;
    } else if (arg == "--dbf") {
      dbf = true;
    } else if (arg == "--from-drive") {
      fromDrive = true;
    } else if (arg == "--workdir" && (v = value())) {
      workdir = v;
    } else if (arg == "--drive" && (v = value())) {
      drive = v;
    } else if (arg.rfind("--", 0) == 0) {
      return Usage();
    }
    // Anything else belongs to the window toolkit ("-platform offscreen").
  }
  if ((replay && verify) || ((dbf || fromDrive) && !verify)) return Usage();
  std::error_code ec;
  if (!fs::is_directory(workdir, ec)) {
    std::cerr << "fisc: no working directory " << workdir << '\n';
    return 2;
  }
  workdir = fs::absolute(workdir);
  // The fiscal unit's drive: a folder named "a" in the working directory
  // unless another is given.
  if (drive.empty()) drive = workdir / "a";
  if (verify)
    return fisc::RunVerify({workdir, fs::absolute(drive), dbf, fromDrive}, std::cout, std::cerr);
  if (replay)
    return fisc::RunReplay({script, workdir, fs::absolute(drive), fisc::MakePdfPrinter}, std::cout,
                           std::cerr);
  return fisc::RunWindow(argc, argv, {workdir, fs::absolute(drive)});
}
