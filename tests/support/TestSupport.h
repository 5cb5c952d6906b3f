#pragma once
// Helpers shared by the test files: a fresh working directory per test and
// reading or writing whole files as bytes.
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Failure.h"

namespace fisc::test {

// A new empty directory under the system's temporary folder, removed with the object.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / std::string(name); }

 private:
  std::filesystem::path path_;
};

std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);
// Lines joined as a file holds them, each ended by CR LF.
std::string Lines(std::initializer_list<std::string> lines);

// The number of the run-time failure that `action` ends in, 0 for none.
template <typename F>
int FailureOf(F&& action) {
  try {
    action();
  } catch (const RuntimeFailure& f) {
    return f.number();
  }
  return 0;
}

// The delivered data folder (Cuantum.txt, Impozitar.txt).
std::filesystem::path DataDir();

}  // namespace fisc::test
