#include "VhciController.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "../Control/UnixSocket.h"
#include "../Model/Desk.h"
#include "KernelModule.h"

namespace trxsim {

namespace fs = std::filesystem;

namespace {

constexpr const char *kPlatformFolder = "sys/devices/platform";
constexpr const char *kFirstController = "sys/devices/platform/vhci_hcd.0";
constexpr const char *kDeviceList = "sys/bus/usb/devices";

// Numbers of the kernel.
constexpr int kFreePort = 4;
constexpr int kHighSpeed = 3;

// The speed of a hub for high-speed devices; that of its companion for SuperSpeed is 5000.
constexpr const char *kHighSpeedHub = "480";

std::string TextOf(const fs::path &file) {
  std::stringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

std::string WordOf(const fs::path &file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

std::optional<int> NumberOf(const fs::path &file) {
  int number = 0;
  return std::ifstream(file) >> number ? std::optional(number) : std::nullopt;
}

// Returns 0 or the error. Sysfs needs the whole text in one write.
int WriteText(const fs::path &file, const std::string &text) {
  const Descriptor descriptor(open(file.c_str(), O_WRONLY | O_CLOEXEC));
  if (!descriptor) return errno;
  const ssize_t count = write(descriptor.Get(), text.data(), text.size());
  return count == static_cast<ssize_t>(text.size()) ? 0 : errno;
}

// Throws unless devices can be attached by writing to `file`.
void RequireAttach(const fs::path &file) {
  if (access(file.c_str(), W_OK) == 0) return;
  if (geteuid() != 0) {
    throw DeskError(
        "plugging mixers into the running kernel needs root: try again with sudo. Without --usbip "
        "no privileges are needed");
  }
  if (access(file.c_str(), F_OK) != 0) LoadKernelModule("vhci-hcd");
  if (access(file.c_str(), W_OK) == 0) return;
  if (errno != ENOENT) {
    throw DeskError("cannot write " + file.string() + ": " + std::strerror(errno));
  }
  throw DeskError(
      "this kernel has no virtual USB host controller, and `modprobe vhci-hcd` brought none; in a "
      "container, run that on the host. Without --usbip no module is needed");
}

}  // namespace

std::vector<VhciPort> ParseVhciStatus(std::string_view text, int controller) {
  std::vector<VhciPort> ports;
  std::istringstream lines{std::string(text)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string hub;
    int number = 0;
    int state = 0;
    if (!(fields >> hub >> number >> state) || hub != "hs") continue;
    ports.push_back({number, controller, static_cast<int>(ports.size()) + 1, state == kFreePort});
  }
  return ports;
}

VhciController::VhciController(fs::path root) : root_(std::move(root)) {
  RequireAttach(root_ / kFirstController / "attach");
}

std::vector<VhciPort> VhciController::Ports() const {
  std::vector<VhciPort> all;
  for (int controller = 0;; ++controller) {
    const std::optional<fs::path> file = StatusFile(controller);
    if (!file) return all;
    const std::vector<VhciPort> some = ParseVhciStatus(TextOf(*file), controller);
    all.insert(all.end(), some.begin(), some.end());
  }
}

VhciPort VhciController::Attach(int socket, unsigned deviceId) const {
  const std::vector<VhciPort> all = Ports();
  for (const VhciPort &port : all) {
    if (!port.isFree) continue;
    char text[64];
    std::snprintf(text, sizeof text, "%d %d %u %d", port.number, socket, deviceId, kHighSpeed);
    const int error = WriteText(root_ / kFirstController / "attach", text);
    if (error == 0) return port;
    // Another program may have taken it meanwhile.
    if (error != EBUSY) {
      throw DeskError("the kernel does not take a mixer at port " + std::to_string(port.number) +
                      ": " + std::strerror(error));
    }
  }
  throw DeskError("all " + std::to_string(all.size()) +
                  " ports of the virtual USB host controllers are taken; `unplug` a unit first");
}

void VhciController::Detach(const VhciPort &port) const {
  WriteText(root_ / kFirstController / "detach", std::to_string(port.number));
}

std::optional<BusAddress> VhciController::AddressAt(const VhciPort &port) const {
  const fs::path device = FolderOf(port);
  const std::optional<int> busNumber = NumberOf(device / "busnum");
  const std::optional<int> deviceNumber = NumberOf(device / "devnum");
  if (!busNumber || !deviceNumber) return std::nullopt;
  const BusAddress address{*busNumber, *deviceNumber};
  return fs::exists(NodeOf(address)) ? std::optional(address) : std::nullopt;
}

// The kernel removes the node first, then the numbers, and the entry in the list of devices last.
bool VhciController::HasTracesOf(const BusAddress &address, const VhciPort &port) const {
  const fs::path device = FolderOf(port);
  return fs::exists(device) &&
         NumberOf(device / "devnum").value_or(address.device) == address.device;
}

// Does not exist when the controller has no bus.
fs::path VhciController::FolderOf(const VhciPort &port) const {
  return root_ / kDeviceList / (BusName(port.controller) + '-' + std::to_string(port.hubPort));
}

fs::path VhciController::NodeOf(const BusAddress &address) const {
  char text[48];
  std::snprintf(text, sizeof text, "dev/bus/usb/%03d/%03d", address.bus, address.device);
  return root_ / text;
}

// The first controller has the status files of all of them.
std::optional<fs::path> VhciController::StatusFile(int controller) const {
  const std::string name = controller == 0 ? "status" : "status." + std::to_string(controller);
  const fs::path file = root_ / kFirstController / name;
  return fs::exists(file) ? std::optional(file) : std::nullopt;
}

// "3" when the controller's high-speed hub is usb3; empty when there is none.
std::string VhciController::BusName(int controller) const {
  constexpr std::string_view kHubPrefix = "usb";
  const fs::path folder = root_ / kPlatformFolder / ("vhci_hcd." + std::to_string(controller));
  std::error_code error;
  for (const fs::directory_entry &entry : fs::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename();
    if (name.starts_with(kHubPrefix) && WordOf(entry.path() / "speed") == kHighSpeedHub) {
      return name.substr(kHubPrefix.size());
    }
  }
  return {};
}

}  // namespace trxsim
