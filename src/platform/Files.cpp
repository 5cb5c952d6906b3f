#include "platform/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/Failure.h"

namespace fisc {
namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBufferSize = 1 << 20;

bool EqualNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    unsigned char x = static_cast<unsigned char>(a[i]), y = static_cast<unsigned char>(b[i]);
    if (x != y && std::tolower(x) != std::tolower(y)) return false;
  }
  return true;
}

// The failure the platform reports for an operating system error.
[[noreturn]] void FailFromErrno(int error) {
  switch (error) {
    case ENOENT: Fail(err::FileNotFound);
    case ENOSPC:
    case EDQUOT: Fail(err::DiskFull);
    case EACCES:
    case EPERM:
    case EROFS: Fail(err::PermissionDenied);
    case ENOTDIR: Fail(err::PathNotFound);
    case EIO: Fail(err::DeviceIO);
    case ENAMETOOLONG:
    case EINVAL: Fail(err::BadFileName);
    default: Fail(err::PathFileAccess);
  }
}

void SyncAndClose(std::FILE* file) {
  bool ok = std::fflush(file) == 0;
  int error = errno;
  if (ok && ::fsync(fileno(file)) != 0) {
    ok = false;
    error = errno;
  }
  if (std::fclose(file) != 0 && ok) {
    ok = false;
    error = errno;
  }
  if (!ok) FailFromErrno(error);
}

// Asks the fault plan, when there is one, whether the operation fails.
void Consult(FaultPlan* faults, FileOp op, const fs::path& path) {
  if (!faults) return;
  if (int error = faults->Before(op, path)) FailFromErrno(error);
}

// Makes a rename durable: the directory entry reaches the disk too.
void SyncDirectory(const fs::path& directory) {
  int fd = ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace

// ---- LineReader

LineReader::LineReader(const fs::path& path) {
  file_ = std::fopen(path.c_str(), "rb");
  if (!file_) FailFromErrno(errno);
  buffer_ = std::make_unique_for_overwrite<char[]>(kBufferSize);
}

LineReader::LineReader(LineReader&& other) noexcept { *this = std::move(other); }

LineReader& LineReader::operator=(LineReader&& other) noexcept {
  if (this != &other) {
    if (file_) std::fclose(file_);
    file_ = std::exchange(other.file_, nullptr);
    buffer_ = std::move(other.buffer_);
    begin_ = other.begin_;
    end_ = other.end_;
    atEnd_ = other.atEnd_;
  }
  return *this;
}

LineReader::~LineReader() {
  if (file_) std::fclose(file_);
}

bool LineReader::Fill() {
  if (begin_ < end_) return true;
  if (atEnd_ || !file_) return false;
  begin_ = 0;
  end_ = std::fread(buffer_.get(), 1, kBufferSize, file_);
  if (end_ == 0) {
    atEnd_ = true;
    return false;
  }
  return true;
}

bool LineReader::Eof() { return !Fill(); }

std::string LineReader::Line() {
  std::string line;
  if (!Next(line)) Fail(err::InputPastEnd);
  return line;
}

bool LineReader::Next(std::string& line) {
  line.clear();
  if (!Fill()) return false;
  for (;;) {
    const char* start = buffer_.get() + begin_;
    std::size_t n = end_ - begin_;
    // Lines end mostly in CR LF: find the LF, then any CR before it.
    auto* lf = static_cast<const char*>(std::memchr(start, '\n', n));
    std::size_t span = lf ? static_cast<std::size_t>(lf - start) : n;
    auto* cr = static_cast<const char*>(std::memchr(start, '\r', span));
    const char* stop = cr ? cr : lf;
    if (!stop) {
      line.append(start, n);
      begin_ = end_;
      if (!Fill()) return true;
      continue;
    }
    line.append(start, stop);
    begin_ += static_cast<std::size_t>(stop - start) + 1;
    if (*stop == '\r' && Fill() && buffer_[begin_] == '\n') ++begin_;
    return true;
  }
}

// ---- LineWriter

LineWriter::LineWriter(const fs::path& path, bool append, FaultPlan* faults) : faults_(faults) {
  if (faults_) path_ = path;
  Consult(FileOp::Create);
  file_ = std::fopen(path.c_str(), append ? "ab" : "wb");
  if (!file_) FailFromErrno(errno);
  buffer_ = std::make_unique_for_overwrite<char[]>(kBufferSize);
  std::setvbuf(file_, buffer_.get(), _IOFBF, kBufferSize);
}

LineWriter::LineWriter(LineWriter&& other) noexcept { *this = std::move(other); }

LineWriter& LineWriter::operator=(LineWriter&& other) noexcept {
  if (this != &other) {
    if (file_) std::fclose(file_);
    file_ = std::exchange(other.file_, nullptr);
    buffer_ = std::move(other.buffer_);
    faults_ = other.faults_;
    path_ = std::move(other.path_);
  }
  return *this;
}

void LineWriter::Consult(FileOp op) { fisc::Consult(faults_, op, path_); }

LineWriter::~LineWriter() {
  if (file_) std::fclose(file_);
}

void LineWriter::Write(std::string_view bytes) {
  if (bytes.empty()) return;
  Consult(FileOp::Write);
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) FailFromErrno(errno);
}

void LineWriter::Line(std::string_view text) {
  Write(text);
  Write("\r\n");
}

void LineWriter::Close() {
  if (!file_) return;
  if (faults_) {
    // A failing close loses what it had not written yet.
    try {
      Consult(FileOp::Close);
    } catch (...) {
      std::fclose(std::exchange(file_, nullptr));
      throw;
    }
  }
  SyncAndClose(std::exchange(file_, nullptr));
}

// ---- Files

fs::path ResolveName(const fs::path& directory, std::string_view name) {
  fs::path exact = directory / fs::path(std::string(name));
  std::error_code ec;
  if (fs::exists(exact, ec)) return exact;
  fs::path parent = exact.parent_path();
  std::string leaf = exact.filename().string();
  for (const auto& entry : fs::directory_iterator(parent, ec)) {
    std::string candidate = entry.path().filename().string();
    if (EqualNoCase(candidate, leaf)) return entry.path();
  }
  return exact;
}

Files::Files(fs::path directory) : directory_(std::move(directory)) {}

void Files::Consult(FileOp op, const fs::path& path) const { fisc::Consult(faults_, op, path); }

fs::path Files::Path(std::string_view name) const { return ResolveName(directory_, name); }

bool Files::Exists(std::string_view name) const {
  std::error_code ec;
  return fs::is_regular_file(Path(name), ec);
}

std::uintmax_t Files::Length(std::string_view name) const {
  std::error_code ec;
  auto size = fs::file_size(Path(name), ec);
  if (ec) Fail(err::FileNotFound);
  return size;
}

void Files::Delete(std::string_view name) {
  fs::path path = Path(name);
  Consult(FileOp::Delete, path);
  if (::unlink(path.c_str()) != 0) FailFromErrno(errno);
}

void Files::DeleteIfExists(std::string_view name) {
  if (Exists(name)) Delete(name);
}

void Files::CreateEmpty(std::string_view name) { Write(name).Close(); }

void CopyFileAtomic(const fs::path& from, const fs::path& to, FaultPlan* faults) {
  std::FILE* in = std::fopen(from.c_str(), "rb");
  if (!in) FailFromErrno(errno);
  fs::path work = to.parent_path() / (".~" + to.filename().string());
  if (faults) {
    try {
      Consult(faults, FileOp::Create, work);
    } catch (...) {
      std::fclose(in);
      throw;
    }
  }
  std::FILE* out = std::fopen(work.c_str(), "wb");
  if (!out) {
    int error = errno;
    std::fclose(in);
    FailFromErrno(error);
  }
  auto buffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
  std::size_t n;
  while ((n = std::fread(buffer.get(), 1, kBufferSize, in)) > 0) {
    int injected = faults ? faults->Before(FileOp::Write, work) : 0;
    if (injected || std::fwrite(buffer.get(), 1, n, out) != n) {
      int error = injected ? injected : errno;
      std::fclose(in);
      std::fclose(out);
      ::unlink(work.c_str());
      FailFromErrno(error);
    }
  }
  std::fclose(in);
  int closing = faults ? faults->Before(FileOp::Close, work) : 0;
  if (closing) {
    std::fclose(out);
    ::unlink(work.c_str());
    FailFromErrno(closing);
  }
  try {
    SyncAndClose(out);
  } catch (...) {
    ::unlink(work.c_str());
    throw;
  }
  int error = 0;
  if (faults) error = faults->Before(FileOp::Rename, to);
  if (error || std::rename(work.c_str(), to.c_str()) != 0) {
    if (!error) error = errno;
    ::unlink(work.c_str());
    FailFromErrno(error);
  }
  SyncDirectory(to.parent_path());
}

void Files::Copy(std::string_view from, std::string_view to) {
  CopyFileAtomic(Path(from), Path(to), faults_);
}

void Files::Replace(std::string_view work, std::string_view target) {
  fs::path source = Path(work);
  if (!fs::exists(source)) Fail(err::FileNotFound);
  fs::path destination = Path(target);
  Consult(FileOp::Rename, destination);
  if (std::rename(source.c_str(), destination.c_str()) != 0) FailFromErrno(errno);
  SyncDirectory(directory_);
}

LineReader Files::Read(std::string_view name) const { return LineReader(Path(name)); }

LineWriter Files::Write(std::string_view name) { return LineWriter(Path(name), false, faults_); }

LineWriter Files::Append(std::string_view name) { return LineWriter(Path(name), true, faults_); }

std::vector<std::string> Files::List(std::string_view subdirectory) const {
  std::vector<std::string> names;
  std::error_code ec;
  fs::path dir = subdirectory.empty() ? directory_ : Path(subdirectory);
  for (const auto& entry : fs::directory_iterator(dir, ec))
    if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
  return names;
}

bool Files::IsDirectory(std::string_view name) const {
  std::error_code ec;
  return fs::is_directory(Path(name), ec);
}

void Files::MakeDirectory(std::string_view name) {
  if (::mkdir(Path(name).c_str(), 0777) != 0) FailFromErrno(errno);
}

// A subfolder is the same disk: it fails as the folder does.
Files Files::Subdirectory(std::string_view name) const {
  Files sub(Path(name));
  sub.SetFaultPlan(faults_);
  return sub;
}

}  // namespace fisc
