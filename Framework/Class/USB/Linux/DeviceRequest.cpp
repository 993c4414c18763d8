#include <cerrno>

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>

#include "VendorRequest.h"

namespace orv {
namespace {

constexpr std::uint32_t kTimeoutMilliseconds = 5000;

}  // namespace

PlatformStatus DeviceRequest(DeviceHandle handle, std::uint8_t bmRequestType, std::uint8_t bRequest,
                             std::uint16_t wValue, std::uint16_t wIndex, void *data,
                             std::uint16_t *length) noexcept {
  usbdevfs_ctrltransfer transfer = {bmRequestType,        bRequest, wValue, wIndex, *length,
                                    kTimeoutMilliseconds, data};
  int transferred = 0;
  // A host's own timers and signals must not cost it a setting: the kernel gives a request up when
  // one arrives, and all requests may be repeated.
  do {
    transferred = ioctl(handle->descriptor, USBDEVFS_CONTROL, &transfer);
  } while (transferred < 0 && errno == EINTR);
  *length = transferred > 0 ? static_cast<std::uint16_t>(transferred) : std::uint16_t{0};
  return transferred < 0 ? PlatformStatusFromErrno(errno) : kIOReturnSuccess;
}

}  // namespace orv
