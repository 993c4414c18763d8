#include "Floor.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <linux/usb/ch9.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "Announcement.h"
#include "Operation.h"

namespace trxbench {
namespace {

constexpr const char *kDevicesFolder = "/sys/bus/usb/devices";

// The entries with which getdents64 fills the buffer.
struct Entry {
  std::uint64_t inode;
  std::int64_t offset;
  std::uint16_t length;
  std::uint8_t type;
  char name[256];
};

bool IsDevice(const char *name) {
  return name[0] != '.' && std::strncmp(name, "usb", 3) != 0 && std::strchr(name, ':') == nullptr;
}

void ReadSummary(int folder, const char *name) {
  std::array<char, 300> path;
  stpcpy(stpcpy(path.data(), name), "/uevent");
  std::array<char, 4096> summary;
  const int file = openat(folder, path.data(), O_RDONLY | O_CLOEXEC);
  Require(read(file, summary.data(), summary.size()) > 0, "read the summary of a device");
  close(file);
}

std::string SettingsFilePath() {
  const char *const configuration = std::getenv("XDG_CONFIG_HOME");
  Require(configuration != nullptr, "find the settings: XDG_CONFIG_HOME is not set");
  return std::string(configuration) +
         "/orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist";
}

// The node of the one unit on the bus.
std::string NodeOfUnit() {
  const std::string product = "PRODUCT=" TRX_MIXER_PRODUCT "/";
  for (const auto &device : std::filesystem::directory_iterator(kDevicesFolder)) {
    std::ifstream summary(device.path() / "uevent");
    std::string bus;
    std::string number;
    bool isUnit = false;
    for (std::string line; std::getline(summary, line);) {
      if (line.starts_with(product)) isUnit = true;
      if (line.starts_with("BUSNUM=")) bus = line.substr(7);
      if (line.starts_with("DEVNUM=")) number = line.substr(7);
    }
    if (isUnit && !number.empty())
      return std::string("/dev/bus/usb/").append(bus).append("/").append(number);
  }
  throw std::runtime_error("no mixer is connected");
}

}  // namespace

void BareWalk() {
  alignas(Entry) std::array<char, 32768> entries;
  const int folder = open(kDevicesFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Require(folder >= 0, "open the folder of devices");
  for (;;) {
    const long size = syscall(SYS_getdents64, folder, entries.data(), entries.size());
    if (size <= 0) break;
    for (long at = 0; at < size;) {
      const auto *entry = reinterpret_cast<const Entry *>(entries.data() + at);
      if (IsDevice(entry->name)) ReadSummary(folder, entry->name);
      at += entry->length;
    }
  }
  close(folder);
}

void BareSend() {
  static const std::string node = NodeOfUnit();
  BareWalk();
  const int unit = open(node.c_str(), O_RDWR | O_CLOEXEC);
  Require(unit >= 0, "open the unit");
  std::array<char, USB_DT_DEVICE_SIZE> descriptor;
  Require(pread(unit, descriptor.data(), descriptor.size(), 0) == USB_DT_DEVICE_SIZE,
          "read what the unit is");
  usbdevfs_ctrltransfer transfer = {0x40, 3, 0x0200, 0x8003, 0, 5000, nullptr};
  ioctl(unit, USBDEVFS_CONTROL, &transfer);
  close(unit);
}

std::span<const char> BareRead() {
  static const std::string path = SettingsFilePath();
  static std::array<char, 4096> contents;
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const ssize_t size = read(file, contents.data(), contents.size());
  Require(size > 0, "read the settings file");
  close(file);
  return {contents.data(), static_cast<std::size_t>(size)};
}

// As the library replaces a file so that no change of another program is lost: a look at the file
// that was read, a new file without a name, written durably, then its name, a look for other
// writers, at the file again, the exchange, and a look at what came out of it.
void BareReplace(std::span<const char> contents) {
  static const std::filesystem::path path = SettingsFilePath();
  static const std::string name = path.filename();
  static const std::string announced = "." + name + ".floor";
  const int folder = open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  struct stat status;
  fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
  const int file = openat(folder, ".", O_WRONLY | O_SYNC | O_TMPFILE | O_CLOEXEC, 0600);
  Require(write(file, contents.data(), contents.size()) > 0, "write the settings file");
  fstat(file, &status);
  const std::string unnamed = "/proc/self/fd/" + std::to_string(file);
  Require(linkat(AT_FDCWD, unnamed.c_str(), folder, announced.c_str(), AT_SYMLINK_FOLLOW) == 0,
          "name the new settings file");
  std::array<char, 4096> entries;
  while (syscall(SYS_getdents64, folder, entries.data(), entries.size()) > 0) continue;
  fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
  Require(renameat2(folder, announced.c_str(), folder, name.c_str(), RENAME_EXCHANGE) == 0,
          "exchange the settings file");
  fstatat(folder, announced.c_str(), &status, AT_SYMLINK_NOFOLLOW);
  unlinkat(folder, announced.c_str(), 0);
  close(file);
  fsync(folder);
  close(folder);
}

void BarePost() {
  static const int socket = BusSocket();
  static const std::string message = MarshalledAnnouncement();
  Require(send(socket, message.data(), message.size(), MSG_NOSIGNAL) ==
              static_cast<ssize_t>(message.size()),
          "send to the bus");
}

}  // namespace trxbench
