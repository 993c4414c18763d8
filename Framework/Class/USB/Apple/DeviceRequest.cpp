#include "VendorRequest.h"

namespace orv {

PlatformStatus DeviceRequest(DeviceHandle handle, std::uint8_t bmRequestType, std::uint8_t bRequest,
                             std::uint16_t wValue, std::uint16_t wIndex, void *data,
                             std::uint16_t *length) noexcept {
  // A transfer that fails before it begins leaves wLenDone as it is here.
  IOUSBDevRequest request = {.bmRequestType = bmRequestType,
                             .bRequest = bRequest,
                             .wValue = wValue,
                             .wIndex = wIndex,
                             .wLength = *length,
                             .pData = data,
                             .wLenDone = 0};
  const PlatformStatus status = (*handle)->DeviceRequest(handle, &request);
  *length = static_cast<std::uint16_t>(request.wLenDone);
  return status;
}

}  // namespace orv
