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

// Signals for this thread wait as long as this lives.
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

// A host's own timers and signals must not cost it a setting: the kernel gives a request up when
// one arrives, and all requests may be repeated. Once is enough: the mixer has seen the request
// already, and a host with a hundred signals a second would send it as often. The time that was
// waited before counts. What no mask holds back may still interrupt.
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
