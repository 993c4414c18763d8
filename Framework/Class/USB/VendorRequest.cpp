#include "VendorRequest.h"

#include <array>

#include "RequestObserver.h"

namespace orv {
namespace {

constexpr std::uint8_t kDeviceToHostVendor = 0xC0;
constexpr std::uint8_t kHostToDeviceVendor = 0x40;
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWriteRequest = 3;

// Reads and writes have numbers of their own: the same number may mean another thing in the other
// direction.
enum ReadSelector : std::uint16_t {
  kFirmwareVersion = 0x8001,
  kInputSelectors = 0x8002,
  kSeratoActive = 0x8004,
  kPort = 0x8006,
  kCertifyLevel = 0x8007,
};

enum WriteSelector : std::uint16_t {
  kMixerOutput = 0x8002,
  kUSBOutputLevel = 0x8003,
  kMidiChannel = 0x8004,
  kMidiKeyMode = 0x8005,
  kMixerInput = 0x8016,
};

PlatformStatus Read(DeviceHandle handle, ReadSelector selector, void *buffer,
                    std::uint16_t length) {
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

PlatformStatus Write(DeviceHandle handle, WriteSelector selector, std::uint16_t value) {
  std::array<std::uint8_t, 2> unused = {};
  std::uint16_t length = 0;
  const PlatformStatus status = DeviceRequest(handle, kHostToDeviceVendor, kWriteRequest, value,
                                              selector, unused.data(), &length);
  if (IsObserved())
    Report({ORV_REQUEST_WRITE, selector, value}, PlaceOf(handle), OutcomeOf(status));
  return status;
}

}  // namespace

PlatformStatus GetFirmwareVersionNumber(DeviceHandle handle, void *buffer, std::uint16_t length) {
  return Read(handle, kFirmwareVersion, buffer, length);
}

PlatformStatus GetInputSelectorInfo(DeviceHandle handle, void *buffer, std::uint16_t length) {
  return Read(handle, kInputSelectors, buffer, length);
}

PlatformStatus GetSeratoActiveInfo(DeviceHandle handle, void *buffer, std::uint16_t length) {
  return Read(handle, kSeratoActive, buffer, length);
}

PlatformStatus GetPortInfo(DeviceHandle handle, void *buffer, std::uint16_t length) {
  return Read(handle, kPort, buffer, length);
}

PlatformStatus GetCertifyLevel(DeviceHandle handle, void *buffer, std::uint16_t length) {
  return Read(handle, kCertifyLevel, buffer, length);
}

PlatformStatus SetMixerOutputSetting(DeviceHandle handle, std::uint16_t value) {
  return Write(handle, kMixerOutput, value);
}

PlatformStatus SetMixerInputSetting(DeviceHandle handle, std::uint16_t value) {
  return Write(handle, kMixerInput, value);
}

PlatformStatus SetUSBOutputLevelSetting(DeviceHandle handle, std::uint16_t value) {
  return Write(handle, kUSBOutputLevel, value);
}

PlatformStatus SetMidiChannelSetting(DeviceHandle handle, std::uint16_t value) {
  return Write(handle, kMidiChannel, value);
}

PlatformStatus SetMidiKeyModeSetting(DeviceHandle handle, std::uint16_t value) {
  return Write(handle, kMidiKeyMode, value);
}

}  // namespace orv
