#include "FolderOpening.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "FileRights.h"

namespace orv {
namespace {

// The desktop's base directory rules require folders that only their owner can enter.
constexpr mode_t kOwnerOnly = 0700;

constexpr int kFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr int kNode = O_PATH | O_NOFOLLOW | O_CLOEXEC;
constexpr int kFolderOnTheWay = kNode | O_DIRECTORY;

constexpr int kMostLinks = 40;  // as many as the system follows

File OpenWithoutLinks(const std::string &path) {
  const open_how how = {kFolder, 0, RESOLVE_NO_SYMLINKS};
  return File(static_cast<int>(syscall(SYS_openat2, AT_FDCWD, path.c_str(), &how, sizeof how)));
}

File MakeFolder(const File &parent, const std::string &name) {
  const int above = parent.Descriptor();
  if (mkdirat(above, name.c_str(), kOwnerOnly) != 0) {
    // Another program may have made it in the meantime.
    return File(openat(above, name.c_str(), kFolderOnTheWay));
  }
  File made(openat(above, name.c_str(), kFolder | O_NOFOLLOW));
  if (made.IsOpen() && GiveToOwnerOfFolder(made.Descriptor(), above)) return made;
  unlinkat(above, name.c_str(), AT_REMOVEDIR);
  return File(-1);
}

bool MayFollowToFolder(const File &link, const File &folder) {
  if (geteuid() != 0) return true;
  struct stat statusOfLink = {};
  struct stat statusOfFolder = {};
  return fstat(link.Descriptor(), &statusOfLink) == 0 &&
         fstat(folder.Descriptor(), &statusOfFolder) == 0 &&
         MayFollow(statusOfLink, statusOfFolder);
}

enum class Missing { kStays, kIsMade };

// Goes along a path and holds each folder and link open: what is looked at is what is followed,
// even if another user puts a link in the place of a folder at the same time.
class Walk {
 public:
  File Along(std::string_view path, const File &start, Missing missing) {
    File folder(path.starts_with('/') ? open("/", kFolderOnTheWay)
                                      : openat(start.Descriptor(), ".", kFolderOnTheWay));
    while (folder.IsOpen() && !path.empty()) {
      const std::string name(path.substr(0, path.find('/')));
      path.remove_prefix(std::min(name.size() + 1, path.size()));
      if (!name.empty()) folder = Step(folder, name, missing);
    }
    return folder;
  }

 private:
  File Step(const File &folder, const std::string &name, Missing missing) {
    File next(openat(folder.Descriptor(), name.c_str(), kFolderOnTheWay));
    if (next.IsOpen()) return next;
    if (errno == ENOENT && missing == Missing::kIsMade) return MakeFolder(folder, name);
    const File link(openat(folder.Descriptor(), name.c_str(), kNode));
    return link.IsOpen() ? Follow(link, folder) : File(-1);
  }

  File Follow(const File &link, const File &folder) {
    std::array<char, PATH_MAX> text;
    const ssize_t size = readlinkat(link.Descriptor(), "", text.data(), text.size());
    if (size <= 0 || linksLeft_-- == 0) return File(-1);
    const std::string_view path(text.data(), static_cast<std::size_t>(size));
    File target = Along(path, folder, Missing::kStays);
    return target.IsOpen() && MayFollowToFolder(link, target) ? std::move(target) : File(-1);
  }

  int linksLeft_ = kMostLinks;
};

File OpenStepByStep(const std::string &path) {
  const File folder = Walk().Along(path, File(-1), Missing::kIsMade);
  return folder.IsOpen() ? File(openat(folder.Descriptor(), ".", kFolder)) : File(-1);
}

}  // namespace

bool MayFollow(const struct stat &link, const struct stat &target) {
  return link.st_uid == target.st_uid || link.st_uid == geteuid() || link.st_uid == 0;
}

File OpenFolder(const std::string &path) {
  // Usually there are no links on the way, or the user is not root and may follow all.
  File folder = OpenWithoutLinks(path);
  if (!folder.IsOpen() && geteuid() != 0) folder = File(open(path.c_str(), kFolder));
  return folder.IsOpen() ? std::move(folder) : OpenStepByStep(path);
}

}  // namespace orv
