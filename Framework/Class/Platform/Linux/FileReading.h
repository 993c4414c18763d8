// Reads a whole file, and says why it could not be read. Any thread.
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
  kNotNow,  // failed; the file may exist and be in order
};

/// The result of reading a path. The file stays open, so that no other gets its inode number.
struct FileReading {
  ReadOutcome outcome = ReadOutcome::kMissing;
  File file{-1};
  struct stat status = {};  // of the found file, link or other node
  std::string contents;     // if it was read
};

/// Reads a regular file of at most `most` bytes. The path is relative to `folder`, as for openat;
/// `flags` may add O_NOFOLLOW. Never waits for a pipe's writer or the holder of a lease.
FileReading ReadFile(int folder, const std::string &path, std::size_t most, int flags = 0);

/// Whether two statuses are of the same file and nothing has changed it in between.
bool IsUnchanged(const struct stat &before, const struct stat &now);

}  // namespace orv
