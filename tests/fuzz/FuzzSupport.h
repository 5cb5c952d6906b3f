#pragma once
// What the fuzz targets share: a working directory of their own for the
// loaders that read files, and the input cut into lines as a file holds them.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fisc::fuzz {

// One directory per process, made at the first call and removed at the exit;
// in memory when the system has a folder for it, since every rewrite syncs.
inline const std::filesystem::path& Director() {
  static const struct Dir {
    std::filesystem::path path;
    Dir() {
      std::error_code ec;
      std::filesystem::path root = "/dev/shm";
      if (!std::filesystem::is_directory(root, ec)) root = std::filesystem::temp_directory_path();
      path = root / ("fisc-fuzz-" + std::to_string(::getpid()));
      std::filesystem::create_directories(path);
    }
    ~Dir() {
      std::error_code ec;
      std::filesystem::remove_all(path, ec);
    }
  } dir;
  return dir.path;
}

inline void ScrieFisier(std::string_view nume, std::string_view bytes) {
  std::FILE* f = std::fopen((Director() / std::string(nume)).c_str(), "wb");
  if (!f) return;
  std::fwrite(bytes.data(), 1, bytes.size(), f);
  std::fclose(f);
}

// A delivered file of data/, read whole. The fuzz timer's signal may break
// a copy between files, so the targets write these bytes themselves.
inline std::string Livrat(std::string_view nume) {
  std::string bytes;
  std::FILE* f =
      std::fopen((std::filesystem::path(FISC_FUZZ_DATA) / std::string(nume)).c_str(), "rb");
  if (!f) return bytes;
  char buf[4096];
  for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, f)) > 0;) bytes.append(buf, n);
  std::fclose(f);
  return bytes;
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The lines of the input, ended by LF, CR LF or CR as the reader takes them.
inline std::vector<std::string_view> Linii(std::string_view text) {
  std::vector<std::string_view> linii;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = text.size();
    linii.push_back(text.substr(start, end - start));
    start = end + 1;
    if (end < text.size() && text[end] == '\r' && start < text.size() && text[start] == '\n')
      ++start;
  }
  return linii;
}

}  // namespace fisc::fuzz
