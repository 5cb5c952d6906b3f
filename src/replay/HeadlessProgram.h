#pragma once
// The program over the headless services: what the replay driver and the
// verify command run, a whole program without a window.
#include <filesystem>

#include "app/Aplicatie.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"

namespace fisc {

struct HeadlessProgram {
  // The converter is run and waited for: what comes next in a script or in
  // the command comes after its window would have closed.
  HeadlessProgram(const std::filesystem::path& workdir, const std::filesystem::path& driveRoot,
                  HeadlessPrinter::PdfMaker pdf = {})
      : files(workdir),
        drive(driveRoot),
        printer(workdir, std::move(pdf)),
        platforma{files, dialogs, clock, launcher, drive, printer},
        app(platforma) {
    launcher.workdir = workdir;
  }

  Files files;
  HeadlessDialogs dialogs;
  HeadlessClock clock;
  HeadlessLauncher launcher;
  Drive drive;
  HeadlessPrinter printer;
  Platforma platforma;
  Aplicatie app;
};

}  // namespace fisc
