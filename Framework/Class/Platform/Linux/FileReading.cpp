#include "FileReading.h"

#include <cerrno>
#include <cstdint>

namespace orv {
namespace {

// Only errors that clearly say that there is no file, or that this process may not read it, count
// as such. Other failures may pass: no descriptors or memory, a server that does not answer, a
// lease whose holder has been asked to release it.
ReadOutcome OutcomeOf(int error, int folder, const std::string &path, FileReading &reading) {
  if (error == ENOENT) return ReadOutcome::kMissing;
  if (fstatat(folder, path.c_str(), &reading.status, AT_SYMLINK_NOFOLLOW) != 0) {
    return ReadOutcome::kNotNow;
  }
  if (S_ISLNK(reading.status.st_mode)) return ReadOutcome::kLink;
  if (!S_ISREG(reading.status.st_mode)) return ReadOutcome::kNoFile;
  return error == EACCES || error == EPERM ? ReadOutcome::kForbidden : ReadOutcome::kNotNow;
}

bool ReadAll(int descriptor, std::string &contents) {
  std::size_t size = 0;
  while (size < contents.size()) {
    const ssize_t part =
        pread(descriptor, contents.data() + size, contents.size() - size, static_cast<off_t>(size));
    if (part < 0 && errno == EINTR) continue;
    if (part < 0) return false;
    if (part == 0) break;
    size += static_cast<std::size_t>(part);
  }
  contents.resize(size);
  return true;
}

}  // namespace

FileReading ReadFile(int folder, const std::string &path, std::size_t most, int flags) {
  FileReading reading;
  reading.file = File(static_cast<int>(TEMP_FAILURE_RETRY(
      openat(folder, path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | flags))));
  if (!reading.file.IsOpen()) {
    reading.outcome = OutcomeOf(errno, folder, path, reading);
    return reading;
  }
  if (fstat(reading.file.Descriptor(), &reading.status) != 0) {
    reading.outcome = ReadOutcome::kNotNow;
  } else if (!S_ISREG(reading.status.st_mode)) {
    reading.outcome = ReadOutcome::kNoFile;
  } else if (static_cast<std::uint64_t>(reading.status.st_size) > most) {
    reading.outcome = ReadOutcome::kTooLarge;
  } else {
    reading.contents.resize(static_cast<std::size_t>(reading.status.st_size));
    const bool isRead = ReadAll(reading.file.Descriptor(), reading.contents);
    reading.outcome = isRead ? ReadOutcome::kRead : ReadOutcome::kNotNow;
  }
  return reading;
}

}  // namespace orv
