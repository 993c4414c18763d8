#include "FolderCreation.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "File.h"
#include "FileRights.h"

namespace orv {
namespace {

// The desktop's base directory rules require folders that only their owner can enter.
constexpr mode_t kOwnerOnly = 0700;

constexpr int kFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int kParent = O_PATH | O_DIRECTORY | O_CLOEXEC;

}  // namespace

void MakeFolder(const std::string &path) {
  const std::size_t slash = path.rfind('/');
  if (slash == path.npos) return;
  const std::string parent = path.substr(0, slash == 0 ? 1 : slash);
  const std::string name = path.substr(slash + 1);
  File above(open(parent.c_str(), kParent));
  if (!above.IsOpen() && errno == ENOENT && parent != "/") {
    MakeFolder(parent);
    above = File(open(parent.c_str(), kParent));
  }
  if (!above.IsOpen() || mkdirat(above.Descriptor(), name.c_str(), kOwnerOnly) != 0) return;
  const File made(openat(above.Descriptor(), name.c_str(), kFolder));
  if (made.IsOpen() && GiveToOwnerOfFolder(made.Descriptor(), above.Descriptor())) return;
  unlinkat(above.Descriptor(), name.c_str(), AT_REMOVEDIR);
}

}  // namespace orv
