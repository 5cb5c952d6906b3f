#pragma once
// `fisc --verify`: the verification of the files of another application
// without a window and without a question. It does what a clerk does: start
// the program, open the verification from the main window, choose the intake,
// press "VERIFICARE" (answering Yes), then "Lista erori", and close the
// program, so that the same files come out.
#include <filesystem>
#include <iosfwd>

namespace fisc {

struct VerifyOptions {
  std::filesystem::path workdir;
  std::filesystem::path drive;
  bool dbf = false;        // ".DBF" instead of ".TXT"
  bool fromDrive = false;  // "de pe discheta" instead of the working directory
};

// Prints one summary line on `out`. Exit status: 0 nothing to mend, 1 the
// error list holds errors, 2 the intake was abandoned or the converter
// complained (the message or ferr.txt on `err`), 3 a run-time failure ended
// the program (its report on `err`).
int RunVerify(const VerifyOptions& options, std::ostream& out, std::ostream& err);

}  // namespace fisc
