#pragma once
// The data files of one working directory. File names are compared without
// regard to case: any spelling reaches the file that exists, and a new file
// takes the spelling its caller gives. Nothing else in the program touches
// paths. Failures are the run-time failures the platform would raise.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fisc {

// The operations that change the disk, as a test double of the disk sees them.
enum class FileOp { Create, Write, Close, Rename, Delete };

// Consulted before each operation that changes the disk, so that a test can
// make the k-th one fail as a real disk does. A run of the program has none.
class FaultPlan {
 public:
  virtual ~FaultPlan() = default;
  // The operating system error (ENOSPC, EACCES, EIO ...) that the operation
  // fails with, or 0 to let it run.
  virtual int Before(FileOp op, const std::filesystem::path& path) = 0;
};

// Reads a text file line by line through a large buffer. A line ends at
// CR LF, a bare LF or a bare CR; the end is not part of the line.
class LineReader {
 public:
  explicit LineReader(const std::filesystem::path& path);  // 53 when missing
  LineReader(LineReader&&) noexcept;
  LineReader& operator=(LineReader&&) noexcept;
  ~LineReader();

  // True when nothing is left to read.
  bool Eof();
  // The next line; reading past the end is failure 62.
  std::string Line();
  // The next line into `line`; false at the end, leaving `line` empty.
  bool Next(std::string& line);

 private:
  bool Fill();
  std::FILE* file_ = nullptr;
  std::unique_ptr<char[]> buffer_;
  std::size_t begin_ = 0, end_ = 0;
  bool atEnd_ = false;
};

// Writes lines ended by CR LF through a large buffer. Close() flushes and
// syncs the data to the disk; an unclosed writer still flushes when destroyed.
class LineWriter {
 public:
  LineWriter(const std::filesystem::path& path, bool append, FaultPlan* faults = nullptr);
  LineWriter(LineWriter&&) noexcept;
  LineWriter& operator=(LineWriter&&) noexcept;
  ~LineWriter();

  void Line(std::string_view text);
  void Write(std::string_view bytes);  // no line end
  void Close();

 private:
  void Consult(FileOp op);
  std::FILE* file_ = nullptr;
  std::unique_ptr<char[]> buffer_;
  FaultPlan* faults_ = nullptr;
  std::filesystem::path path_;
};

class Files {
 public:
  explicit Files(std::filesystem::path directory);

  const std::filesystem::path& Directory() const { return directory_; }
  // Every later change of the disk consults `plan` first (nullptr for none).
  void SetFaultPlan(FaultPlan* plan) { faults_ = plan; }
  FaultPlan* Faults() const { return faults_; }
  // The path of the file with this name in any case, or the name as spelled
  // when no such file exists.
  std::filesystem::path Path(std::string_view name) const;

  bool Exists(std::string_view name) const;
  std::uintmax_t Length(std::string_view name) const;  // 53 when missing
  void Delete(std::string_view name);                  // 53 when missing
  void DeleteIfExists(std::string_view name);
  void CreateEmpty(std::string_view name);  // replaces what was there
  // Copies `from` over `to`; the target is replaced in one rename, so it is
  // whole before and after.
  void Copy(std::string_view from, std::string_view to);
  // Renames `work` over `target` after syncing it: the end of every rewrite.
  void Replace(std::string_view work, std::string_view target);

  LineReader Read(std::string_view name) const;  // 53 when missing
  LineWriter Write(std::string_view name);       // a new, empty file
  LineWriter Append(std::string_view name);      // created when missing

  // Names of the files of a directory below the working one ("" for it).
  std::vector<std::string> List(std::string_view subdirectory = "") const;

  // Directories below the working one, their names compared as file names.
  bool IsDirectory(std::string_view name) const;
  // Fails as the platform does: 75 when something stands there already.
  void MakeDirectory(std::string_view name);
  // The files of such a directory, served the same way.
  Files Subdirectory(std::string_view name) const;

 private:
  void Consult(FileOp op, const std::filesystem::path& path) const;
  std::filesystem::path directory_;
  FaultPlan* faults_ = nullptr;
};

// Copies one file to another path, replacing the target in one rename.
// Failures: 53 for a missing source, 76 for a missing folder, 61 for a full disk.
void CopyFileAtomic(const std::filesystem::path& from, const std::filesystem::path& to,
                    FaultPlan* faults = nullptr);

// Resolves `name` inside `directory` without regard to case.
std::filesystem::path ResolveName(const std::filesystem::path& directory, std::string_view name);

}  // namespace fisc
