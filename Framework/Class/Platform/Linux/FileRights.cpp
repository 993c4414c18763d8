#include "FileRights.h"

#include <array>
#include <cerrno>
#include <string>
#include <string_view>

#include <sys/xattr.h>
#include <unistd.h>

namespace orv {
namespace {

constexpr mode_t kAllRights = 0777;
constexpr mode_t kRightsOfOwner = 0700;
constexpr mode_t kRightsOfGroup = 0070;

constexpr const char *kAccessList = "system.posix_acl_access";
constexpr std::string_view kAttributesOfUsers = "user.";
// The largest size of a list of names or of a value.
constexpr std::size_t kLargestAttribute = std::size_t{64} << 10;

bool HasSameOwnerAndGroup(const struct stat &file, const struct stat &old) {
  return file.st_uid == old.st_uid && file.st_gid == old.st_gid;
}

// Returns whether the file has the old one's group afterwards. Only root can change the owner; a
// user can choose among the user's own groups.
bool TakeOwnerAndGroup(const FileWithStatus &file, const struct stat &old) {
  return HasSameOwnerAndGroup(file.status, old) ||
         fchown(file.descriptor, old.st_uid, old.st_gid) == 0 || file.status.st_gid == old.st_gid ||
         fchown(file.descriptor, file.status.st_uid, old.st_gid) == 0;
}

bool CopyAttribute(int from, int to, const char *name) {
  std::string value(kLargestAttribute, '\0');
  const ssize_t size = fgetxattr(from, name, value.data(), value.size());
  return size >= 0 && fsetxattr(to, name, value.data(), static_cast<std::size_t>(size), 0) == 0;
}

struct Attributes {
  std::string names;  // each with a zero byte at its end
  bool hasAccessList = false;
};

Attributes AttributesOf(int descriptor) {
  // Almost every file has none, or only one for a security module.
  std::array<char, 256> few;
  ssize_t size = flistxattr(descriptor, few.data(), few.size());
  std::string names(few.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
  if (size < 0 && errno == ERANGE) {
    names.resize(kLargestAttribute);
    size = flistxattr(descriptor, names.data(), names.size());
    names.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  }
  const std::string inside = '\0' + names;
  const bool hasAccessList = inside.find('\0' + std::string(kAccessList) + '\0') != inside.npos;
  return {std::move(names), hasAccessList};
}

// Returns whether there are any.
bool CopyAttributesOfUsers(int from, int to, std::string_view names) {
  bool isAny = false;
  while (!names.empty()) {
    const std::string_view name = names.substr(0, names.find('\0'));
    if (name.starts_with(kAttributesOfUsers)) {
      CopyAttribute(from, to, name.data());
      isAny = true;
    }
    names.remove_prefix(name.size() + 1);
  }
  return isAny;
}

// The new file may have inherited a list from its folder. Such a list grants no more than the mode
// grants the group.
bool HasNoAccessList(int descriptor, mode_t rights) {
  return (rights & kRightsOfGroup) == 0 || fremovexattr(descriptor, kAccessList) == 0 ||
         errno == ENODATA || errno == EOPNOTSUPP;
}

// The rights that remain when the old file's group cannot be kept: its members now count as others.
mode_t WithoutGroup(mode_t rights) { return rights & (0700 | (rights & kRightsOfGroup) >> 3); }

}  // namespace

bool TakeRights(const FileWithStatus &newFile, const FileWithStatus &oldFile) {
  const Attributes attributes = AttributesOf(oldFile.descriptor);
  bool isChanged =
      CopyAttributesOfUsers(oldFile.descriptor, newFile.descriptor, attributes.names) ||
      attributes.hasAccessList || !HasSameOwnerAndGroup(newFile.status, oldFile.status);
  const bool hasGroup = TakeOwnerAndGroup(newFile, oldFile.status);
  mode_t rights = oldFile.status.st_mode & kAllRights;
  if (attributes.hasAccessList) {
    const bool hasList =
        hasGroup && CopyAttribute(oldFile.descriptor, newFile.descriptor, kAccessList);
    if (!hasList) rights &= kRightsOfOwner;
  } else {
    if (!hasGroup) rights = WithoutGroup(rights);
    if (!HasNoAccessList(newFile.descriptor, rights)) rights &= kRightsOfOwner;
  }
  isChanged |= rights != (newFile.status.st_mode & kAllRights);
  if (isChanged) fchmod(newFile.descriptor, rights);
  return isChanged;
}

bool GiveToOwnerOfFolder(int made, int folder) {
  if (geteuid() != 0) return true;
  struct stat status = {};
  if (fstat(folder, &status) != 0) return false;
  return status.st_uid == 0 || fchown(made, status.st_uid, status.st_gid) == 0;
}

}  // namespace orv
