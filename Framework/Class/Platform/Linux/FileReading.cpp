#include "FileReading.h"

#include <cerrno>
#include <cstdint>

namespace orv {
namespace {

// How often a file may be replaced while its status is looked up.
constexpr int kMostLooks = 100;

bool IsSame(const timespec &one, const timespec &other) {
  return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

// Opens the file. If that fails, returns the error and sets the status of what is there. Another
// program may replace the file between the two, so they are repeated until nothing has changed.
int OpenOrLook(int folder, const std::string &path, int flags, FileReading &reading) {
  struct stat before = {};
  for (int look = 0; look < kMostLooks; ++look) {
    reading.file = File(static_cast<int>(TEMP_FAILURE_RETRY(
        openat(folder, path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | flags))));
    if (reading.file.IsOpen()) return 0;
    const int error = errno;
    if (error == ENOENT) return error;
    reading.status = {};
    fstatat(folder, path.c_str(), &reading.status, AT_SYMLINK_NOFOLLOW);
    if (look > 0 && IsUnchanged(before, reading.status)) return error;
    before = reading.status;
  }
  return EAGAIN;
}

// Only errors that clearly say that there is no file, or that this process may not read it, count
// as such. Other failures may pass: no descriptors or memory, a server that does not answer, a
// lease whose holder has been asked to release it.
ReadOutcome OutcomeOf(int error, const struct stat &status) {
  if (error == ENOENT) return ReadOutcome::kMissing;
  if (status.st_mode == 0) return ReadOutcome::kNotNow;
  if (S_ISLNK(status.st_mode)) return ReadOutcome::kLink;
  if (!S_ISREG(status.st_mode)) return ReadOutcome::kNoFile;
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

bool IsUnchanged(const struct stat &before, const struct stat &now) {
  return now.st_ino == before.st_ino && now.st_dev == before.st_dev &&
         now.st_size == before.st_size && IsSame(now.st_mtim, before.st_mtim) &&
         IsSame(now.st_ctim, before.st_ctim);
}

FileReading ReadFile(int folder, const std::string &path, std::size_t most, int flags) {
  FileReading reading;
  if (const int error = OpenOrLook(folder, path, flags, reading); error != 0) {
    reading.outcome = OutcomeOf(error, reading.status);
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
