#pragma once
// The services of the platform, handed to the program by whoever starts it:
// the Qt front end for a person, the replay driver for a script, a test.
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/Services.h"

namespace fisc {

struct Platforma {
  Files& files;
  Dialogs& dialogs;
  Clock& clock;
  Launcher& launcher;
  Drive& drive;
  Printer& printer;
};

}  // namespace fisc
