#include "support/TestSupport.h"

#include <fstream>
#include <random>
#include <sstream>

namespace fisc::test {

TempDir::TempDir() {
  std::random_device rd;
  for (;;) {
    path_ = std::filesystem::temp_directory_path() / ("fisc-test-" + std::to_string(rd()));
    if (std::filesystem::create_directory(path_)) break;
  }
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

void WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Lines(std::initializer_list<std::string> lines) {
  std::string s;
  for (const auto& l : lines) s += l + "\r\n";
  return s;
}

std::filesystem::path DataDir() { return FISC_DATA_DIR; }

}  // namespace fisc::test
