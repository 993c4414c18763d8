#include "USBDevice.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <new>

#include <fcntl.h>
#include <linux/usb/ch9.h>
#include <unistd.h>

#include "BusWalk.h"
#include "OutOfMemory.h"
#include "RequestObserver.h"

namespace orv {
namespace {

// When a host has closed a standard stream, the node may get its number, and the host's output
// would go to the mixer. The node is then opened again, not duplicated: software mixers recognise
// it by the descriptor that open returned.
int OpenAwayFromStandardStreams(const char *path) {
  const int descriptor = open(path, O_RDWR | O_CLOEXEC);
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int next = OpenAwayFromStandardStreams(path);
  close(descriptor);
  return next;
}

// Device numbers are reused, and a process may be stopped between its look and the opening. The
// opened node may by now be another device, which must never get a request for a mixer. The node
// begins with the device's descriptor, with numbers in the byte order of this machine.
PlatformStatus CheckIsMixer(int descriptor) {
  usb_device_descriptor device;
  const ssize_t size = pread(descriptor, &device, sizeof device, 0);
  if (size < 0) return PlatformStatusFromErrno(errno);
  const bool isMixer = size == sizeof device && device.idVendor == kMakerUsbVendorId &&
                       device.idProduct == MIXER_USB_PRODUCT_ID;
  return isMixer ? kIOReturnSuccess : kIOReturnNoDevice;
}

PlatformStatus MakeHandle(int descriptor, UnitAddress address, DeviceHandle *handle) {
  const PlatformStatus status = CheckIsMixer(descriptor);
  if (status != kIOReturnSuccess) return status;
  *handle = new (std::nothrow) USBDeviceInterface{descriptor, address};
  return *handle != nullptr ? kIOReturnSuccess : kIOReturnNoMemory;
}

PlatformStatus OpenUnit(UnitAddress address, DeviceHandle *handle) {
  std::array<char, sizeof "/dev/bus/usb/65535/65535"> path;
  std::snprintf(path.data(), path.size(), "/dev/bus/usb/%03u/%03u", unsigned{address.bus},
                unsigned{address.device});
  const int descriptor = OpenAwayFromStandardStreams(path.data());
  if (descriptor < 0) return PlatformStatusFromErrno(errno);
  const PlatformStatus status = MakeHandle(descriptor, address, handle);
  if (status != kIOReturnSuccess) close(descriptor);
  return status;
}

UnitPlace PlaceOf(UnitAddress address) { return {.bus = address.bus, .address = address.device}; }

}  // namespace

UnitPlace PlaceOf(DeviceHandle unit) noexcept { return PlaceOf(unit->address); }

std::int32_t CheckUSBAudio(ProductId /*productId*/, BusLook *look) noexcept {
  WhileMemoryLasts([&] { *look = LookAtBus(); });
  return static_cast<std::int32_t>(look->size());
}

PlatformStatus openUSB(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept {
  if (n >= look.size() || *handle != nullptr) return kIOReturnError;
  const PlatformStatus status = OpenUnit(look[n], handle);
  if (status != kIOReturnSuccess && IsObserved()) Report({}, PlaceOf(look[n]), OutcomeOf(status));
  return status;
}

PlatformStatus open_pipes(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept {
  if (handle == nullptr) return kIOReturnError;
  *handle = nullptr;
  return openUSB(handle, n, look);
}

void closeUSB(DeviceHandle *handle) noexcept {
  if (*handle == nullptr) return;
  close((*handle)->descriptor);
  delete *handle;
  *handle = nullptr;
}

}  // namespace orv
