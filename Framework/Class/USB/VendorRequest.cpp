#include "VendorRequest.h"

#include <array>

#include "RequestObserver.h"

namespace orv {
namespace {

constexpr std::uint8_t kDeviceToHostVendor = 0xC0;
constexpr std::uint8_t kHostToDeviceVendor = 0x40;
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWriteRequest = 3;

}  // namespace

PlatformStatus Read(DeviceHandle handle, std::uint16_t selector, void *buffer,
                    std::uint16_t length) noexcept {
  std::uint16_t received = length;
  const PlatformStatus status =
      DeviceRequest(handle, kDeviceToHostVendor, kReadRequest, 0, selector, buffer, &received);
  if (IsObserved()) {
    const bool isShort = status == kIOReturnSuccess && received < length;
    Report({ORV_REQUEST_READ, selector, 0}, PlaceOf(handle),
           isShort ? ORV_OUTCOME_SHORT_REPLY : OutcomeOf(status));
  }
  return status;
}

PlatformStatus Write(DeviceHandle handle, std::uint16_t selector, std::uint16_t value) noexcept {
  std::array<std::uint8_t, 2> unused = {};
  std::uint16_t length = 0;
  const PlatformStatus status = DeviceRequest(handle, kHostToDeviceVendor, kWriteRequest, value,
                                              selector, unused.data(), &length);
  if (IsObserved())
    Report({ORV_REQUEST_WRITE, selector, value}, PlaceOf(handle), OutcomeOf(status));
  return status;
}

}  // namespace orv
