#include "platform/InstantaUnica.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fisc {

InstantaUnica::InstantaUnica(const std::filesystem::path& directory) {
  // A lock on the directory itself leaves no file behind among the data.
  fd_ = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  held_ = fd_ < 0 || ::flock(fd_, LOCK_EX | LOCK_NB) == 0;
}

InstantaUnica::~InstantaUnica() {
  if (fd_ >= 0) ::close(fd_);
}

}  // namespace fisc
