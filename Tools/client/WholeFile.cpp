#include "WholeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace client {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kAsTheUserWants = 0666;
constexpr mode_t kOwnerOnly = 0700;

/// An open file, or the reason why there is none.
class OpenFile {
 public:
  OpenFile(const std::string &path, int flags, mode_t mode = 0)
      : descriptor_(open(path.c_str(), flags | O_CLOEXEC, mode)),
        reason_(descriptor_ < 0 ? errno : 0) {}
  OpenFile(const OpenFile &) = delete;
  OpenFile &operator=(const OpenFile &) = delete;
  ~OpenFile() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  int Descriptor() const { return descriptor_; }
  int Reason() const { return reason_; }

 private:
  int descriptor_;
  int reason_;
};

std::string FolderOf(const std::string &path) {
  const std::string folder = fs::path(path).parent_path();
  return folder.empty() ? "." : folder;
}

int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return fsync(descriptor) == 0 ? 0 : errno;
}

// What a power cut must not undo is not only the contents but also the name.
void MakeNamesDurable(const std::string &folder) {
  const OpenFile file(folder, O_RDONLY | O_DIRECTORY);
  if (file.Reason() == 0) fsync(file.Descriptor());
}

/// Writes a new file with a name that no other has, and tells the name.
int WriteBeside(const std::string &path, std::string_view bytes, std::string &temporary) {
  const std::string beginning = FolderOf(path) + "/.profile-" + std::to_string(getpid()) + '-';
  for (int number = 0;; ++number) {
    temporary = beginning + std::to_string(number);
    const OpenFile file(temporary, O_WRONLY | O_CREAT | O_EXCL, kAsTheUserWants);
    // Another process of this number was killed.
    if (file.Reason() == EEXIST) continue;
    return file.Reason() != 0 ? file.Reason() : WriteAll(file.Descriptor(), bytes);
  }
}

/// Whether this is how a file system says that it has no second names for a file, as those of
/// memory sticks have not.
bool SaysNoLinks(int reason) {
  constexpr std::array kReasons{EPERM, EOPNOTSUPP, ENOTSUP, ENOSYS, EMLINK};
  return std::find(kReasons.begin(), kReasons.end(), reason) != kReasons.end();
}

int GiveName(const std::string &temporary, const std::string &path, OldFile oldFile) {
  if (oldFile == OldFile::kIsKept) {
    // Unlike rename(), this refuses a name that is taken.
    if (link(temporary.c_str(), path.c_str()) == 0) {
      unlink(temporary.c_str());
      return 0;
    }
    if (!SaysNoLinks(errno)) return errno;
    if (access(path.c_str(), F_OK) == 0) return EEXIST;
  }
  return rename(temporary.c_str(), path.c_str()) == 0 ? 0 : errno;
}

/// Where a file lies that is to be replaced: behind a link, if it is one.
int Resolve(std::string &path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return 0;
  if (fs::is_directory(status)) return EISDIR;
  if (!fs::is_regular_file(status)) return EINVAL;
  path = fs::canonical(path, error);
  return error.value();
}

}  // namespace

FileContents ReadWholeFile(const std::string &path, std::size_t mostBytes) {
  const OpenFile file(path, O_RDONLY);
  if (file.Reason() != 0) return {file.Reason()};
  FileContents contents;
  std::array<char, 4096> part{};
  while (contents.bytes.size() < mostBytes) {
    const std::size_t wanted = std::min(part.size(), mostBytes - contents.bytes.size());
    const ssize_t size = read(file.Descriptor(), part.data(), wanted);
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) return {errno};
    if (size == 0) break;
    contents.bytes.append(part.data(), static_cast<std::size_t>(size));
  }
  return contents;
}

int WriteWholeFile(const std::string &path, std::string_view bytes, OldFile oldFile) {
  std::string place = path;
  if (oldFile == OldFile::kIsReplaced) {
    if (const int reason = Resolve(place)) return reason;
  }
  std::string temporary;
  int reason = WriteBeside(place, bytes, temporary);
  if (reason == 0) reason = GiveName(temporary, place, oldFile);
  if (reason != 0) {
    unlink(temporary.c_str());
    return reason;
  }
  MakeNamesDurable(FolderOf(place));
  return 0;
}

int RemoveFile(const std::string &path) {
  if (unlink(path.c_str()) != 0) return errno;
  MakeNamesDurable(FolderOf(path));
  return 0;
}

int MakePrivateFolder(const std::string &path) {
  if (mkdir(path.c_str(), kOwnerOnly) == 0) {
    MakeNamesDurable(FolderOf(path));
    return 0;
  }
  if (errno == ENOENT && FolderOf(path) != path) {
    const int reason = MakePrivateFolder(FolderOf(path));
    return reason == 0 ? MakePrivateFolder(path) : reason;
  }
  const int reason = errno;
  std::error_code ignored;
  return reason == EEXIST && fs::is_directory(path, ignored) ? 0 : reason;
}

}  // namespace client
