// fisc: the income tax sheets of one fiscal year. `fisc --help` tells the
// options and where the data of a run live.
#include <filesystem>
#include <iostream>

#include "app/CommandLine.h"
#include "platform/WorkDir.h"
#include "platform/qt/FrontEnd.h"
#include "platform/qt/QtPrinter.h"
#include "replay/Replay.h"
#include "replay/VerifyCommand.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  using Mode = fisc::CommandLine::Mode;
  const fisc::CommandLine line = fisc::ParseCommandLine(argc, argv);
  switch (line.mode) {
    case Mode::Help: std::cout << fisc::Usage(); return 0;
    case Mode::Version: std::cout << "fisc " FISC_VERSION "\n"; return 0;
    case Mode::Wrong:
      std::cerr << "fisc: unknown or incomplete option " << line.wrong << "\n" << fisc::Usage();
      return 2;
    default: break;
  }

  // Nothing of the run starts before its directory is sure to take files.
  const auto env = fisc::WorkDirEnvironment::FromProcess();
  const fisc::WorkDirChoice choice = fisc::ChooseWorkDir(line.workdir, env);
  if (const fisc::WorkDirProblem problem = fisc::PrepareWorkDir(choice, fisc::DeliveredDir(env))) {
    if (line.mode == Mode::Window)
      fisc::ShowStartProblem(argc, argv, fisc::ProblemMessage(problem));
    else
      std::cerr << fisc::ProblemLine(problem) << '\n';
    return 2;
  }
  const fs::path workdir = choice.dir;
  // The fiscal unit's drive: a folder named "a" in the working directory
  // unless another is given.
  const fs::path drive = line.drive ? fs::absolute(*line.drive) : workdir / "a";
  if (line.mode == Mode::Replay)
    return fisc::RunReplay({line.script, workdir, drive, fisc::MakePdfPrinter}, std::cout,
                           std::cerr);
  if (line.mode == Mode::Verify)
    return fisc::RunVerify({workdir, drive, line.dbf, line.fromDrive}, std::cout, std::cerr);
  return fisc::RunWindow(argc, argv, {workdir, drive});
}
