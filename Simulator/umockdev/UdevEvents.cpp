#include "UdevEvents.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace trxsim {

namespace fs = std::filesystem;

namespace {

// How udev's messages begin. Listeners let the kernel drop what is not theirs by the hashes.
struct MessageHeader {
  char prefix[8] = "libudev";
  std::uint32_t magic = htonl(0xfeedcafe);
  std::uint32_t headerSize = sizeof(MessageHeader);
  std::uint32_t propertiesOffset = sizeof(MessageHeader);
  std::uint32_t propertiesLength = 0;
  std::uint32_t subsystemHash = htonl(0x0577c5e5);   // MurmurHash2 of "usb"
  std::uint32_t deviceTypeHash = htonl(0x27f8f50c);  // and of "usb_device"
  std::uint32_t tagBloomHigh = 0;
  std::uint32_t tagBloomLow = 0;
};

// "/sys/devices/..." as udev names it, without "/sys".
std::string DevicePath(const UsbDevice &device) {
  return device.SysPath().substr(std::strlen("/sys"));
}

std::string Message(const std::string &action, const UsbDevice &device, unsigned long number) {
  std::string properties;
  for (const auto &[name, value] : {std::pair<std::string, std::string>{"ACTION", action},
                                    {"DEVPATH", DevicePath(device)},
                                    {"SUBSYSTEM", "usb"},
                                    {"DEVTYPE", "usb_device"},
                                    {"DEVNAME", device.NodePath()},
                                    {"SEQNUM", std::to_string(number)}}) {
    properties.append(name).append("=").append(value).push_back('\0');
  }
  MessageHeader header;
  header.propertiesLength = static_cast<std::uint32_t>(properties.size());
  return std::string(reinterpret_cast<const char *>(&header), sizeof header) + properties;
}

// libumockdev gives each listener a socket "event<descriptor>" in the testbed's folder.
void SendTo(int sender, const fs::path &listener, std::string_view message) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = listener.string();
  if (path.size() >= sizeof address.sun_path) return;
  std::copy(path.begin(), path.end(), address.sun_path);
  sendto(sender, message.data(), message.size(), MSG_DONTWAIT | MSG_NOSIGNAL,
         reinterpret_cast<const sockaddr *>(&address), sizeof address);
}

}  // namespace

UdevEvents::UdevEvents(fs::path root) : root_(std::move(root)) {}

void UdevEvents::Send(const std::string &action, const UsbDevice &device) {
  const std::string message = Message(action, device, ++count_);
  const int sender = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (sender < 0) return;
  for (const fs::directory_entry &entry : fs::directory_iterator(root_)) {
    if (entry.is_socket() && entry.path().filename().string().starts_with("event")) {
      SendTo(sender, entry.path(), message);
    }
  }
  close(sender);
}

}  // namespace trxsim
