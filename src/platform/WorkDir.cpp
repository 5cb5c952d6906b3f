#include "platform/WorkDir.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "platform/Failure.h"
#include "platform/Files.h"

namespace fisc {

namespace fs = std::filesystem;

namespace {

std::string Env(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// A new file made and removed again: the only sure test, since the owner's
// rights say nothing of a read-only medium and root passes every right.
std::string CannotWriteIn(const fs::path& dir) {
  fs::path probe = dir / (".fisc-proba-" + std::to_string(::getpid()));
  int fd = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
  if (fd < 0) return std::strerror(errno);
  ::close(fd);
  ::unlink(probe.c_str());
  return {};
}

}  // namespace

WorkDirEnvironment WorkDirEnvironment::FromProcess() {
  WorkDirEnvironment env;
  std::error_code ec;
  env.current = fs::current_path(ec);
  env.executable = fs::read_symlink("/proc/self/exe", ec);
  env.xdgDataHome = Env("XDG_DATA_HOME");
  env.home = Env("HOME");
  return env;
}

fs::path UserDataDir(const WorkDirEnvironment& env) {
  fs::path xdg = env.xdgDataHome;
  if (xdg.is_absolute()) return xdg / "fisc";
  fs::path home = env.home;
  if (home.is_absolute()) return home / ".local" / "share" / "fisc";
  return {};
}

fs::path DeliveredDir(const WorkDirEnvironment& env) {
  return env.executable.parent_path().parent_path() / "share" / "fisc";
}

WorkDirChoice ChooseWorkDir(const std::optional<fs::path>& option, const WorkDirEnvironment& env) {
  if (option) return {fs::absolute(*option), false};
  if (Files(env.current).Exists("Cuantum.txt")) return {env.current, false};
  return {UserDataDir(env), true};
}

WorkDirProblem PrepareWorkDir(const WorkDirChoice& choice, const fs::path& delivered) {
  const fs::path& dir = choice.dir;
  std::error_code ec;
  if (choice.userData) {
    if (dir.empty()) return {WorkDirProblem::CannotCreate, dir, "HOME is not set"};
    fs::create_directories(dir, ec);
    if (ec || !fs::is_directory(dir))
      return {WorkDirProblem::CannotCreate, dir, ec ? ec.message() : "not a directory"};
  } else if (!fs::is_directory(dir, ec)) {
    return {WorkDirProblem::Missing, dir, {}};
  }
  if (std::string reason = CannotWriteIn(dir); !reason.empty())
    return {WorkDirProblem::CannotWrite, dir, reason};
  if (!choice.userData) return {};

  Files work(dir);
  for (const std::string& name : Files(delivered).List()) {
    if (work.Exists(name)) continue;
    try {
      CopyFileAtomic(delivered / name, dir / name);
    } catch (const RuntimeFailure& failure) {
      return {WorkDirProblem::CannotWrite, dir, name + ": " + failure.description()};
    }
  }
  return {};
}

std::string ProblemLine(const WorkDirProblem& p) {
  std::string dir = p.dir.string();
  switch (p.kind) {
    case WorkDirProblem::None: return {};
    case WorkDirProblem::Missing: return "fisc: no working directory " + dir;
    case WorkDirProblem::CannotCreate:
      return "fisc: cannot create the working directory " + dir + ": " + p.reason;
    case WorkDirProblem::CannotWrite:
      return "fisc: cannot write in the working directory " + dir + ": " + p.reason;
  }
  return {};
}

std::string ProblemMessage(const WorkDirProblem& p) {
  std::string dir = p.dir.string();
  switch (p.kind) {
    case WorkDirProblem::None: return {};
    case WorkDirProblem::Missing:
      return "Directorul de lucru " + dir + " nu exista. Programul se inchide.";
    case WorkDirProblem::CannotCreate:
      return "Directorul de lucru " + dir + " nu poate fi creat (" + p.reason +
             "). Programul se inchide.";
    case WorkDirProblem::CannotWrite:
      return "In directorul de lucru " + dir + " nu se poate scrie (" + p.reason +
             "). Programul se inchide.";
  }
  return {};
}

}  // namespace fisc
