#pragma once
// The single-instance test: one program a working directory, so that the work
// files of a rewrite stay private to it. Held for the life of the object.
#include <filesystem>

namespace fisc {

class InstantaUnica {
 public:
  explicit InstantaUnica(const std::filesystem::path& directory);
  ~InstantaUnica();
  InstantaUnica(const InstantaUnica&) = delete;
  InstantaUnica& operator=(const InstantaUnica&) = delete;
  // False when another instance holds the working directory.
  bool Singura() const { return held_; }

 private:
  int fd_ = -1;
  bool held_ = false;
};

}  // namespace fisc
