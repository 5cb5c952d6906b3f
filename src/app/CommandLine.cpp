#include "app/CommandLine.h"

#include <string_view>

namespace fisc {

CommandLine ParseCommandLine(int argc, const char* const* argv) {
  CommandLine c;
  bool verify = false, verifyOption = false;
  auto wrong = [&c](std::string_view arg) {
    c.mode = CommandLine::Mode::Wrong;
    c.wrong = arg;
    return c;
  };
  for (int i = 1; i < argc; ++i) {
    std::string_view arg = argv[i];
    auto value = [&]() -> const char* { return i + 1 < argc ? argv[++i] : nullptr; };
    const char* v = nullptr;
    if (arg == "--help" || arg == "-h") {
      c.mode = CommandLine::Mode::Help;
      return c;
    } else if (arg == "--version") {
      c.mode = CommandLine::Mode::Version;
      return c;
    } else if (arg == "--replay") {
      if (!(v = value())) return wrong(arg);
      c.mode = CommandLine::Mode::Replay;
      c.script = v;
    } else if (arg == "--workdir") {
      if (!(v = value())) return wrong(arg);
      c.workdir = v;
    } else if (arg == "--drive") {
      if (!(v = value())) return wrong(arg);
      c.drive = v;
    } else if (arg == "--verify") {
      verify = true;
    } else if (arg == "--dbf") {
      c.dbf = verifyOption = true;
    } else if (arg == "--from-drive") {
      c.fromDrive = verifyOption = true;
    } else if (arg.starts_with("--")) {
      return wrong(arg);
    }
  }
  if (verify && c.mode == CommandLine::Mode::Replay) return wrong("--verify");
  if (verifyOption && !verify) return wrong(c.dbf ? "--dbf" : "--from-drive");
  if (verify) c.mode = CommandLine::Mode::Verify;
  return c;
}

std::string Usage() {
  return R"(usage: fisc [--workdir DIR] [--drive DIR]
       fisc --replay SCRIPT [--workdir DIR] [--drive DIR]
       fisc --verify [--dbf] [--from-drive] [--workdir DIR] [--drive DIR]
       fisc --help | --version

The first form opens the window.
  --replay SCRIPT  run the user actions of SCRIPT without a window and print
                   what a person would see
  --verify         check the year's files of another application without a
                   window and write erori.txt; --dbf takes the .dbf files
                   through the converter, --from-drive takes the files from
                   the drive
  --workdir DIR    the working directory, with Cuantum.txt, Impozitar.txt and
                   the data files
  --drive DIR      the removable drive of the fiscal unit, a folder
  --help           this text
  --version        the version of the program

Working directory: --workdir DIR when given; else the current directory when
it holds Cuantum.txt; else the clerk's data directory, $XDG_DATA_HOME/fisc or
~/.local/share/fisc, made on the first start and given the files delivered
with the program (Cuantum.txt, Impozitar.txt, ...); a file already there is
kept. Drive: --drive DIR, else the folder "a" in the working directory.
)";
}

}  // namespace fisc
