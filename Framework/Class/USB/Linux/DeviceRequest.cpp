#include <algorithm>
#include <cerrno>
#include <chrono>

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>

#include "VendorRequest.h"

namespace orv {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kPatience(5000);

// A host's own timers and signals must not cost it a setting: the kernel gives a request up when
// one arrives, and all requests may be repeated. The time that was waited before counts.
int Transfer(int descriptor, usbdevfs_ctrltransfer &transfer) {
  const auto deadline = steady_clock::now() + kPatience;
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - steady_clock::now());
    transfer.timeout = static_cast<std::uint32_t>(std::max(left, milliseconds(1)).count());
    const int transferred = ioctl(descriptor, USBDEVFS_CONTROL, &transfer);
    if (transferred >= 0 || errno != EINTR) return transferred;
    if (left <= milliseconds(0)) {
      errno = ETIMEDOUT;
      return transferred;
    }
  }
}

}  // namespace

PlatformStatus DeviceRequest(DeviceHandle handle, std::uint8_t bmRequestType, std::uint8_t bRequest,
                             std::uint16_t wValue, std::uint16_t wIndex, void *data,
                             std::uint16_t *length) noexcept {
  usbdevfs_ctrltransfer transfer = {bmRequestType, bRequest, wValue, wIndex, *length, 0, data};
  const int transferred = Transfer(handle->descriptor, transfer);
  *length = transferred > 0 ? static_cast<std::uint16_t>(transferred) : std::uint16_t{0};
  return transferred < 0 ? PlatformStatusFromErrno(errno) : kIOReturnSuccess;
}

}  // namespace orv
