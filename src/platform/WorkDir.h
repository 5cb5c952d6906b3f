#pragma once
// Which directory holds the data of a run, and the first start from the
// desktop: the clerk's data directory is made and given the files delivered
// with the program. No toolkit here, so the window and the replay share it.
#include <filesystem>
#include <optional>
#include <string>

namespace fisc {

// What the rule looks at, taken from the process by `FromProcess`.
struct WorkDirEnvironment {
  std::filesystem::path current;     // the current directory
  std::filesystem::path executable;  // the program's own file
  std::string xdgDataHome, home;     // empty when unset
  static WorkDirEnvironment FromProcess();
};

// The clerk's data directory: $XDG_DATA_HOME/fisc, else ~/.local/share/fisc.
// A relative XDG_DATA_HOME is ignored, as the desktop's rules ask. Empty when
// neither variable gives an absolute path.
std::filesystem::path UserDataDir(const WorkDirEnvironment& env);

// The files delivered with the program: share/fisc beside its bin/ folder.
// The build tree has the same shape, made from data/.
std::filesystem::path DeliveredDir(const WorkDirEnvironment& env);

struct WorkDirChoice {
  std::filesystem::path dir;
  bool userData = false;  // the clerk's data directory: made and filled if need be
};

// --workdir DIR when given; else the current directory when it holds
// Cuantum.txt; else the clerk's data directory.
WorkDirChoice ChooseWorkDir(const std::optional<std::filesystem::path>& option,
                            const WorkDirEnvironment& env);

struct WorkDirProblem {
  enum Kind { None, Missing, CannotCreate, CannotWrite } kind = None;
  std::filesystem::path dir;
  std::string reason;
  explicit operator bool() const { return kind != None; }
};

// Makes the chosen directory ready before anything of the run touches it: a
// given directory must exist, the clerk's is made when missing and receives
// every delivered file it lacks (a file already there, in any case of its
// name, is never overwritten); either must take a new file.
WorkDirProblem PrepareWorkDir(const WorkDirChoice& choice, const std::filesystem::path& delivered);

// The problem in one line: English for standard error, Romanian for the box.
std::string ProblemLine(const WorkDirProblem& problem);
std::string ProblemMessage(const WorkDirProblem& problem);

}  // namespace fisc
