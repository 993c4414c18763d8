#include "USBDevice.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "BusWalk.h"
#include "OutOfMemory.h"
#include "RequestObserver.h"

namespace orv {
namespace {

// What the host prints must not reach a mixer where a closed standard stream would lend the node
// its number. The node is opened once more instead of moved: software mixers know it by the
// descriptor that opening gave.
int OpenAwayFromStandardStreams(const char *path) {
  const int descriptor = open(path, O_RDWR | O_CLOEXEC);
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int next = OpenAwayFromStandardStreams(path);
  close(descriptor);
  return next;
}

PlatformStatus OpenNode(UnitAddress address, DeviceHandle *handle) {
  std::array<char, sizeof "/dev/bus/usb/65535/65535"> path;
  std::snprintf(path.data(), path.size(), "/dev/bus/usb/%03u/%03u", unsigned{address.bus},
                unsigned{address.device});
  const int descriptor = OpenAwayFromStandardStreams(path.data());
  if (descriptor < 0) return PlatformStatusFromErrno(errno);
  *handle = new (std::nothrow) USBDeviceInterface{descriptor, address};
  if (*handle == nullptr) {
    close(descriptor);
    return kIOReturnNoMemory;
  }
  return kIOReturnSuccess;
}

UnitPlace PlaceOf(UnitAddress address) { return {.bus = address.bus, .address = address.device}; }

}  // namespace

UnitPlace PlaceOf(DeviceHandle unit) noexcept { return PlaceOf(unit->address); }

std::int32_t CheckUSBAudio(ProductId /*productId*/) noexcept {
  return UnlessOutOfMemory(0, [&] { return static_cast<std::int32_t>(ConnectedUnits().size()); });
}

PlatformStatus openUSB(DeviceHandle *handle, std::uint32_t n) noexcept {
  return UnlessOutOfMemory(kIOReturnNoMemory, [&] {
    std::vector<UnitAddress> units = ConnectedUnits();
    if (n >= units.size() || *handle != nullptr) return kIOReturnError;
    const auto chosen = units.begin() + n;
    std::nth_element(units.begin(), chosen, units.end());
    const PlatformStatus status = OpenNode(*chosen, handle);
    if (status != kIOReturnSuccess && IsObserved()) Report({}, PlaceOf(*chosen), OutcomeOf(status));
    return status;
  });
}

PlatformStatus open_pipes(DeviceHandle *handle, std::uint32_t n) noexcept {
  if (handle == nullptr) return kIOReturnError;
  *handle = nullptr;
  return openUSB(handle, n);
}

void closeUSB(DeviceHandle *handle) noexcept {
  if (*handle == nullptr) return;
  close((*handle)->descriptor);
  delete *handle;
  *handle = nullptr;
}

}  // namespace orv
