#include "RemoteDevices.h"

#include <cerrno>
#include <system_error>

#include <Control/UnixSocket.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "RegistryProtocol.h"

namespace trxtest {
namespace {

// The location id of the first place of the bus on a Mac.
constexpr UInt32 kFirstLocation = 0x14000000;

// One connection for each request: none is shared between threads or with a forked child.
template <typename Answer>
std::size_t Ask(const std::string &path, const RegistryRequest &request, Answer *answer,
                std::size_t size) {
  const trxsim::Descriptor registry(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
  sockaddr_un address = {AF_UNIX, {}};
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  if (connect(registry.Get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 &&
      send(registry.Get(), &request, sizeof request, MSG_NOSIGNAL) == sizeof request) {
    const ssize_t received = recv(registry.Get(), answer, size, 0);
    if (received >= 0) return static_cast<std::size_t>(received);
  }
  throw std::system_error(errno, std::generic_category(), path);
}

// The platform's status for a plug-in of a device that it cannot open.
IOReturn PlugInStatus(trxsim::OpenFault fault) {
  switch (fault) {
    case trxsim::OpenFault::kNone:
      return kIOReturnSuccess;
    case trxsim::OpenFault::kRefuse:
      return kIOReturnNoResources;
    case trxsim::OpenFault::kDeny:
      return kIOReturnNotPermitted;
    case trxsim::OpenFault::kHold:
      break;
  }
  return kIOReturnExclusiveAccess;
}

IOReturn StatusOf(trxsim::Outcome outcome) {
  switch (outcome) {
    case trxsim::Outcome::kDone:
      return kIOReturnSuccess;
    case trxsim::Outcome::kStalled:
      return kIOUSBPipeStalled;
    case trxsim::Outcome::kNoReply:
      return kIOUSBTransactionTimeout;
    case trxsim::Outcome::kUnplugged:
    case trxsim::Outcome::kGone:
      break;
  }
  return kIOReturnNoDevice;
}

}  // namespace

std::vector<UsbDevice> RemoteDevices::Devices() {
  std::vector<RegistryDevice> places(kMostDevices);
  const std::size_t size =
      Ask(path_, RegistryRequest(), places.data(), places.size() * sizeof places[0]);
  places.resize(size / sizeof places[0]);
  std::vector<UsbDevice> devices;
  for (const RegistryDevice &place : places) {
    UsbDevice &device = devices.emplace_back();
    device.number = place.device;
    device.vendor = place.vendor;
    device.product = place.product;
    device.location = kFirstLocation + static_cast<UInt32>(place.device);
    device.faults.plugIn = PlugInStatus(place.fault);
  }
  return devices;
}

TransferAnswer RemoteDevices::Transfer(int device, const IOUSBDevRequest &request) {
  const RegistryRequest asked = {
      true,
      device,
      {request.bmRequestType, request.bRequest, request.wValue, request.wIndex, request.wLength}};
  RegistryAnswer answer;
  Ask(path_, asked, &answer, sizeof answer);
  return {StatusOf(answer.outcome), {answer.bytes.begin(), answer.bytes.begin() + answer.size}, {}};
}

}  // namespace trxtest
