#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>

#include <linux/usbdevice_fs.h>
#include <pthread.h>
#include <sys/ioctl.h>

#include "VendorRequest.h"

namespace orv {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kPatience(5000);

// Blocks all signals for this thread until the object ends.
class HeldBackSignals {
 public:
  HeldBackSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  HeldBackSignals(const HeldBackSignals &) = delete;
  HeldBackSignals &operator=(const HeldBackSignals &) = delete;
  ~HeldBackSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_;
};

// The number of bytes transferred, or minus the error.
int Try(int descriptor, usbdevfs_ctrltransfer &transfer, milliseconds patience) {
  transfer.timeout = static_cast<std::uint32_t>(patience.count());
  const int transferred = ioctl(descriptor, USBDEVFS_CONTROL, &transfer);
  return transferred < 0 ? -errno : transferred;
}

// A host's timers and signals must not cost it a setting: the kernel aborts a request when a signal
// arrives, and all requests may be repeated. The repeated request runs with signals blocked: the
// mixer has already seen the request, and a host with a hundred signals per second would send it as
// often. The time already spent counts. Signals that cannot be blocked may still interrupt.
int Transfer(int descriptor, usbdevfs_ctrltransfer &transfer) {
  const auto deadline = steady_clock::now() + kPatience;
  int result = Try(descriptor, transfer, kPatience);
  if (result != -EINTR) return result;
  const HeldBackSignals heldBack;
  while (result == -EINTR) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - steady_clock::now());
    if (left <= milliseconds(0)) return -ETIMEDOUT;
    result = Try(descriptor, transfer, left);
  }
  return result;
}

}  // namespace

PlatformStatus DeviceRequest(DeviceHandle handle, std::uint8_t bmRequestType, std::uint8_t bRequest,
                             std::uint16_t wValue, std::uint16_t wIndex, void *data,
                             std::uint16_t *length) noexcept {
  usbdevfs_ctrltransfer transfer = {bmRequestType, bRequest, wValue, wIndex, *length, 0, data};
  const int result = Transfer(handle->descriptor, transfer);
  *length = static_cast<std::uint16_t>(std::max(result, 0));
  return result < 0 ? PlatformStatusFromErrno(-result) : kIOReturnSuccess;
}

}  // namespace orv
