#include "Mounts.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace trxtest {
namespace {

void Check(int result, const std::string &what) {
  if (result != 0) throw std::system_error(errno, std::generic_category(), what);
}

void WriteMap(const std::string &file, const std::string &text) {
  if (!(std::ofstream("/proc/self/" + file) << text << std::flush)) {
    throw std::system_error(EPERM, std::generic_category(), "write " + file);
  }
}

// A user namespace in which all users keep their numbers: the bus asks for them.
void BecomeRootOfOwnNameSpace() {
  const std::string user = std::to_string(geteuid());
  const std::string group = std::to_string(getegid());
  Check(unshare(CLONE_NEWUSER | CLONE_NEWNS), "have a name space of one's own");
  WriteMap("setgroups", "deny");
  WriteMap("uid_map", user + " " + user + " 1");
  WriteMap("gid_map", group + " " + group + " 1");
}

// In a new namespace, other restrictions of a mount may not be lifted: keep them.
unsigned long RestrictionsOf(const std::string &folder) {
  struct statvfs status = {};
  Check(statvfs(folder.c_str(), &status), "look at " + folder);
  return status.f_flag & (ST_NOSUID | ST_NODEV | ST_NOEXEC);
}

}  // namespace

void HaveOwnMounts() {
  if (unshare(CLONE_NEWNS) != 0) BecomeRootOfOwnNameSpace();
  Check(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "keep mounts to oneself");
}

Mount Mount::Memory(const std::string &folder, const std::string &options) {
  Check(mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()), "mount on " + folder);
  return Mount(folder);
}

Mount Mount::ReadOnly(const std::string &folder) {
  const unsigned long restrictions = RestrictionsOf(folder);
  Check(mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr), "mount on " + folder);
  Check(mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY | restrictions,
              nullptr),
        "make read-only " + folder);
  return Mount(folder);
}

Mount::~Mount() { umount2(folder_.c_str(), MNT_DETACH); }

}  // namespace trxtest
