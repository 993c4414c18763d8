// Reading a file as a whole, and telling apart why it could not be read. Any thread.
#pragma once

#include <cstddef>
#include <string>

#include <sys/stat.h>

#include "File.h"

namespace orv {

enum class ReadOutcome {
  kRead,
  kMissing,
  kLink,       // only where links are not followed
  kNoFile,     // a folder, a pipe, a socket or a device
  kForbidden,  // this process may not read it
  kTooLarge,
  kNotNow,  // the file may well be there and in order
};

/// What was found at a path. The file stays open, so that no other gets its inode number.
struct FileReading {
  ReadOutcome outcome = ReadOutcome::kMissing;
  File file{-1};
  struct stat status = {};  // of what was found, whatever it is
  std::string contents;     // when it was read
};

/// Reads a regular file of at most `most` bytes. The path is relative to `folder`, as for openat;
/// `flags` may add O_NOFOLLOW. Does not wait: not for a pipe's writer, nor for who holds a lease.
FileReading ReadFile(int folder, const std::string &path, std::size_t most, int flags = 0);

}  // namespace orv
