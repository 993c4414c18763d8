#include "PluggedMixer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <linux/landlock.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <systemd/sd-device.h>
#include <systemd/sd-login.h>
#include <unistd.h>

namespace client {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{30};

/// A descriptor that is closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  int Number() const { return number_; }

 private:
  int number_;
};

struct DeviceUnref {
  void operator()(sd_device *device) const { sd_device_unref(device); }
};

/// The file through which the USB device is opened that a device is or belongs to; empty for none.
std::string NodeBehind(const std::string &device) {
  if (device.starts_with("/dev/")) return device;
  sd_device *raw = nullptr;
  const int found = sd_device_new_from_syspath(&raw, device.c_str());
  const std::unique_ptr<sd_device, DeviceUnref> owner(raw);
  if (found < 0) return "";
  const char *node = nullptr;
  const char *kind = nullptr;
  sd_device *usb = raw;
  if (sd_device_get_devtype(raw, &kind) < 0 || std::string_view(kind) != "usb_device") {
    // The parent belongs to the device itself.
    if (sd_device_get_parent_with_subsystem_devtype(raw, "usb", "usb_device", &usb) < 0) return "";
  }
  return sd_device_get_devname(usb, &node) < 0 ? "" : node;
}

/// Whether the system gives out seats, and this user has none.
bool IsWithoutSeat() {
  return sd_get_seats(nullptr) > 0 && sd_uid_get_seats(getuid(), 0, nullptr) == 0;
}

bool IsMatterOfRights(int refusal) { return refusal == EACCES || refusal == EPERM; }

/// Waits until something has changed in a watched folder. False when time is over.
bool WaitForChange(int watch, Clock::time_point deadline) {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
  if (left <= 0) return false;
  pollfd wait{watch, POLLIN, 0};
  poll(&wait, 1, static_cast<int>(left));
  alignas(inotify_event) std::array<char, 4096> events;
  while (read(watch, events.data(), events.size()) > 0) {
  }
  return true;
}

}  // namespace

std::optional<Mixer> PluggedMixer(const std::string &device) {
  const std::string node = NodeBehind(device);
  const std::vector<Mixer> mixers = ConnectedMixers();
  const auto found = std::find_if(mixers.begin(), mixers.end(),
                                  [&node](const Mixer &mixer) { return mixer.node == node; });
  return found == mixers.end() ? std::nullopt : std::optional(*found);
}

AccessWait WaitForAccess(const Mixer &mixer) {
  const auto deadline = Clock::now() + kPatience;
  const Descriptor watch(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
  // Watched before the first attempt, so that no change falls between the two.
  inotify_add_watch(watch.Number(), std::filesystem::path(mixer.node).parent_path().c_str(),
                    IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVE);
  for (;;) {
    const int refusal = RefusalToOpen(mixer);
    if (!IsMatterOfRights(refusal)) return {refusal};
    if (IsWithoutSeat()) return {refusal, true};
    if (!WaitForChange(watch.Number(), deadline)) return {refusal};
  }
}

bool LeaveOtherMixersAlone(const Mixer &mixer) {
  const landlock_ruleset_attr handled{.handled_access_fs = LANDLOCK_ACCESS_FS_WRITE_FILE};
  const Descriptor rules(
      static_cast<int>(syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0)));
  const Descriptor node(open(mixer.node.c_str(), O_PATH | O_CLOEXEC));
  const landlock_path_beneath_attr allowed{.allowed_access = LANDLOCK_ACCESS_FS_WRITE_FILE,
                                           .parent_fd = node.Number()};
  return rules.Number() >= 0 && node.Number() >= 0 &&
         syscall(SYS_landlock_add_rule, rules.Number(), LANDLOCK_RULE_PATH_BENEATH, &allowed, 0) ==
             0 &&
         prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         syscall(SYS_landlock_restrict_self, rules.Number(), 0) == 0;
}

}  // namespace client
