#include "platform/Converter.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/Files.h"
#include "platform/SortNoCase.h"

namespace fisc {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kProgram = "transfer";

bool Executabil(const fs::path& path) {
  std::error_code ec;
  return fs::is_regular_file(path, ec) && ::access(path.c_str(), X_OK) == 0;
}

fs::path DirectorulProgramului() {
  std::error_code ec;
  fs::path self = fs::read_symlink("/proc/self/exe", ec);
  return ec ? fs::path() : self.parent_path();
}

}  // namespace

bool EsteConvertor(std::string_view program) {
  return !LessNoCase(program, kConvertor) && !LessNoCase(kConvertor, program);
}

fs::path GasesteConvertor(const fs::path& workdir) {
  fs::path local = ResolveName(workdir, kProgram);
  if (Executabil(local)) return local;
  fs::path dir = DirectorulProgramului();
  if (!dir.empty() && Executabil(dir / kProgram)) return dir / kProgram;
  return {};
}

void RuleazaConvertor(const fs::path& program, const fs::path& workdir) {
  std::string exe = program.string(), dir = workdir.string();
  pid_t pid = ::fork();
  if (pid < 0) return;
  if (pid == 0) {
    // Only async-signal-safe calls between fork and exec.
    if (::chdir(dir.c_str()) != 0) ::_exit(127);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    char* argv[] = {exe.data(), dir.data(), nullptr};
    ::execv(exe.c_str(), argv);
    ::_exit(127);
  }
  int status = 0;
  while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace fisc
