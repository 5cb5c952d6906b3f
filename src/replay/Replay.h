#pragma once
// The replay driver: runs the program without a window from a script of the
// actions a person would take, and prints what that person would see outside
// the fields. Exit status: 0 every expect held, 1 an expect failed, 2 the
// script can't be run, 3 a run-time failure ended the program.
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>

namespace fisc {

class Printer;

struct ReplayOptions {
  std::filesystem::path script;
  std::filesystem::path workdir;
  std::filesystem::path drive;
  // Makes the printer that draws into the PDF file a script's "print ok"
  // names; without it the pages are only counted. The window toolkit is
  // kept out of the driver this way.
  std::function<std::unique_ptr<Printer>(const std::filesystem::path&)> pdfPrinter;
};

int RunReplay(const ReplayOptions& options, std::ostream& out, std::ostream& err);

}  // namespace fisc
