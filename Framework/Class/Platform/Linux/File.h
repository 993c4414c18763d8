// Open files. Any thread.
#pragma once

#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace orv {

/// The descriptor, or a duplicate of it that is not one of the three standard streams; -1 with
/// errno on failure. When a host has closed a standard stream, the next opened file gets its
/// number, and the host's output would go into that file.
inline int AwayFromStandardStreams(int descriptor) noexcept {
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  close(descriptor);
  return moved;
}

/// Owns a newly opened descriptor, never one of the three standard streams.
class File {
 public:
  explicit File(int descriptor) : descriptor_(AwayFromStandardStreams(descriptor)) {}
  File(File &&other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  File &operator=(File &&other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~File() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  int Descriptor() const { return descriptor_; }
  bool IsOpen() const { return descriptor_ >= 0; }

 private:
  int descriptor_;
};

}  // namespace orv
