#include "Mounts.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace trxtest {
namespace {

namespace fs = std::filesystem;

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

// A folder in memory for what a mount needs beside its place.
std::string MakeStore() {
  std::string store = "/dev/shm/trx-mount-XXXXXX";
  if (mkdtemp(store.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), "make a folder in memory");
  }
  return store;
}

// On the system as it is, whatever software mixers put in its place.
void Run(const std::string &command) {
  if (std::system(("env -u LD_PRELOAD " + command).c_str()) != 0) {
    throw std::runtime_error("failed: " + command);
  }
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

Mount Mount::NewDisk(const std::string &folder) {
  Mount mount(folder, MakeStore());
  const std::string disk = mount.store_ + "/disk";
  std::ofstream(disk).close();
  fs::resize_file(disk, std::uintmax_t{16} << 20);
  Run("mkfs.ext4 -q '" + disk + "'");
  Run("mount -o loop '" + disk + "' '" + folder + "'");
  fs::remove(folder + "/lost+found");
  return mount;
}

Mount Mount::Overlay(const std::string &folder) {
  Mount overlay(folder, MakeStore());
  fs::create_directory(overlay.store_ + "/upper");
  fs::create_directory(overlay.store_ + "/work");
  const std::string options = "lowerdir=" + folder + ",upperdir=" + overlay.store_ +
                              "/upper,workdir=" + overlay.store_ + "/work";
  Check(mount("overlay", folder.c_str(), "overlay", 0, options.c_str()), "mount on " + folder);
  return overlay;
}

Mount Mount::ReadOnly(const std::string &folder) {
  const unsigned long restrictions = RestrictionsOf(folder);
  Check(mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr), "mount on " + folder);
  Check(mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY | restrictions,
              nullptr),
        "make read-only " + folder);
  return Mount(folder);
}

Mount::Mount(Mount &&other) noexcept
    : folder_(std::exchange(other.folder_, "")), store_(std::exchange(other.store_, "")) {}

Mount::~Mount() {
  if (!folder_.empty()) umount2(folder_.c_str(), MNT_DETACH);
  std::error_code ignored;
  if (!store_.empty()) fs::remove_all(store_, ignored);
}

}  // namespace trxtest
