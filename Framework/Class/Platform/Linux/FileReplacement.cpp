// A writer may be killed at any moment, and what it has begun must not lie about for ever. So the
// new file has no name while it is written: it goes when its writer goes. Complete and durable, it
// gets a name for the moment before it takes the old file's place. That name is the same for all
// writers: who finds it taken first does the other's last step, be that one dead or only slower.
// Only what has been overtaken since, by another file or by the removal of all, is thrown away.
//
// Not every file system has files without a name. There the new file has a name of its own from the
// beginning, and a lock that lasts as long as its writer; nobody waits for it. Who writes next
// removes what is not locked.
#include "FileReplacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "File.h"

namespace orv {
namespace {

constexpr mode_t kOwnerOnly = 0600;
constexpr mode_t kAllRights = 0777;
constexpr mode_t kAllButTheGroups = 0707;

// Each failed attempt is another writer's success.
constexpr int kMostAttempts = 100;

// --- What is replaced ----------------------------------------------------------------------------

struct OldFile {
  std::string path;
  std::optional<struct stat> status;  // nothing when there is no file

  std::string Folder() const { return path.substr(0, path.rfind('/')); }
  std::string Name() const { return path.substr(path.rfind('/') + 1); }
  /// A name beside the file, hidden from listings.
  std::string Beside(const char *ending) const { return Folder() + "/." + Name() + ending; }
};

struct FreeText {
  void operator()(char *text) const { std::free(text); }
};

OldFile FileAt(const std::string &path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) != 0) return {path, std::nullopt};
  if (!S_ISLNK(status.st_mode)) return {path, status};
  const std::unique_ptr<char, FreeText> behind(realpath(path.c_str(), nullptr));
  if (!behind || stat(behind.get(), &status) != 0) return {path, std::nullopt};
  return {std::string(behind.get()), status};
}

// --- The new file --------------------------------------------------------------------------------

bool WriteAll(int descriptor, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t part = write(descriptor, contents.data(), contents.size());
    if (part < 0 && errno == EINTR) continue;
    if (part <= 0) return false;
    contents.remove_prefix(static_cast<std::size_t>(part));
  }
  return true;
}

// Returns whether the file has the old one's group afterwards. Only root can give a file away; a
// user can give it to groups of his.
bool TakeOwnerAndGroup(int descriptor, const struct stat &old) {
  struct stat status = {};
  if (fstat(descriptor, &status) != 0) return false;
  if (status.st_uid == old.st_uid && status.st_gid == old.st_gid) return true;
  return fchown(descriptor, old.st_uid, old.st_gid) == 0 || status.st_gid == old.st_gid ||
         fchown(descriptor, status.st_uid, old.st_gid) == 0;
}

// What the old file's group was allowed, another group is not. Until owner and group are known, the
// new file is its writer's alone.
void TakeRights(int descriptor, const struct stat &old) {
  const bool hasGroup = TakeOwnerAndGroup(descriptor, old);
  fchmod(descriptor, old.st_mode & (hasGroup ? kAllRights : kAllButTheGroups));
}

bool Fill(int descriptor, const OldFile &old, std::string_view contents) {
  if (old.status) TakeRights(descriptor, *old.status);
  return WriteAll(descriptor, contents) && TEMP_FAILURE_RETRY(fsync(descriptor)) == 0;
}

// What a power cut must not undo is not only the contents but also the new name.
void MakeDurable(const std::string &folder) {
  const File file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (file.IsOpen()) fsync(file.Descriptor());
}

// --- Without a name ------------------------------------------------------------------------------

// Whether this is how a system says that it has no files without a name, or cannot name them later.
// Also when it means something else, what comes instead is refused at once and leaves nothing.
bool SaysUnsupported(int error) {
  constexpr std::array kErrors = {EOPNOTSUPP, EISDIR, EINVAL, ENOSYS, ENOENT, EPERM, EACCES};
  return std::find(kErrors.begin(), kErrors.end(), error) != kErrors.end();
}

// Returns 0 or an errno value.
int GiveName(int descriptor, const std::string &name) {
  const std::string unnamed = "/proc/self/fd/" + std::to_string(descriptor);
  return linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0
                                                                                           : errno;
}

// When the file that stood ready is gone, another writer has moved it.
bool MoveInPlace(const std::string &ready, const std::string &path) {
  if (rename(ready.c_str(), path.c_str()) == 0 || errno == ENOENT) return true;
  unlink(ready.c_str());
  return false;
}

bool IsEarlier(const timespec &one, const timespec &other) {
  return one.tv_sec != other.tv_sec ? one.tv_sec < other.tv_sec : one.tv_nsec < other.tv_nsec;
}

// Whether what stands ready is older than what it would replace, or would bring back what has been
// removed: its writer died, and the world went on. The settings are looked at first, so that what
// another writer makes ready meanwhile counts as the newer.
bool IsOvertaken(const std::string &ready, const std::string &path) {
  struct stat now = {};
  struct stat then = {};
  if (stat(path.c_str(), &now) != 0) return errno == ENOENT;
  return lstat(ready.c_str(), &then) == 0 && IsEarlier(then.st_ctim, now.st_ctim);
}

// Clears the way for one's own. Returns whether that can have worked.
bool FinishForOther(const std::string &ready, const std::string &path) {
  if (!IsOvertaken(ready, path)) return MoveInPlace(ready, path);
  return unlink(ready.c_str()) == 0 || errno == ENOENT;
}

// Where there was nothing, one step does. What a dead writer had ready for the file that is gone,
// goes as well.
bool IsFirst(int descriptor, const OldFile &old, const std::string &ready) {
  if (old.status) return false;
  unlink(ready.c_str());
  return GiveName(descriptor, old.path) == 0;
}

// Returns whether the file was replaced; nothing when it cannot be done in this way.
std::optional<bool> ReplaceByUnnamedFile(const OldFile &old, std::string_view contents) {
  const File file(open(old.Folder().c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kOwnerOnly));
  if (!file.IsOpen()) return SaysUnsupported(errno) ? std::nullopt : std::optional(false);
  if (!Fill(file.Descriptor(), old, contents)) return false;
  const std::string ready = old.Beside(".new");
  if (IsFirst(file.Descriptor(), old, ready)) return true;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    const int error = GiveName(file.Descriptor(), ready);
    if (error != 0 && error != EEXIST) {
      return SaysUnsupported(error) ? std::nullopt : std::optional(false);
    }
    if (error == 0) return MoveInPlace(ready, old.path);
    if (!FinishForOther(ready, old.path)) return false;
  }
  return false;
}

// --- With a name ---------------------------------------------------------------------------------

constexpr std::string_view kPlaceholder = "XXXXXX";

// False when another writer has taken the file for left behind, between its making and this. On a
// system without locks nobody can, and nothing is removed.
bool ShowLife(int descriptor) {
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
  struct stat status = {};
  return fstat(descriptor, &status) != 0 || status.st_nlink > 0;
}

void RemoveUnlessAlive(const std::string &path) {
  const File file(open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (file.IsOpen() && flock(file.Descriptor(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
}

struct CloseFolder {
  void operator()(DIR *folder) const { closedir(folder); }
};

void RemoveWhatIsLeftBehind(const OldFile &old) {
  const std::unique_ptr<DIR, CloseFolder> folder(opendir(old.Folder().c_str()));
  if (!folder) return;
  const std::string beginning = "." + old.Name() + ".";
  while (const dirent *entry = readdir(folder.get())) {
    const std::string_view name = entry->d_name;
    if (name.starts_with(beginning) && name.size() == beginning.size() + kPlaceholder.size()) {
      RemoveUnlessAlive(old.Folder() + "/" + entry->d_name);
    }
  }
}

bool ReplaceByNamedFile(const OldFile &old, std::string_view contents) {
  RemoveWhatIsLeftBehind(old);
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    std::string temporary = old.Beside(".").append(kPlaceholder);
    const File file(mkostemp(temporary.data(), O_CLOEXEC));
    if (file.IsOpen() && !ShowLife(file.Descriptor())) continue;
    if (file.IsOpen() && Fill(file.Descriptor(), old, contents) &&
        rename(temporary.c_str(), old.path.c_str()) == 0) {
      return true;
    }
    unlink(temporary.c_str());
    return false;
  }
  return false;
}

}  // namespace

bool ReplaceFile(const std::string &path, std::string_view contents) {
  const OldFile old = FileAt(path);
  std::optional<bool> isReplaced = ReplaceByUnnamedFile(old, contents);
  if (!isReplaced) isReplaced = ReplaceByNamedFile(old, contents);
  if (*isReplaced) MakeDurable(old.Folder());
  return *isReplaced;
}

}  // namespace orv
