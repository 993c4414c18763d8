// Vendor control requests on endpoint 0 of an open unit. All functions may run on any thread and on
// several at once; each blocks until the transfer has ended.
#pragma once

#include <cstdint>

#include "DeviceHandle.h"
#include "PlatformStatus.h"

namespace orv {

/// Sends one control request. `length` holds the size of the data stage on entry (0 for none) and
/// the number of bytes transferred on return, whatever the status. Returns the platform's status
/// unchanged.
PlatformStatus DeviceRequest(DeviceHandle handle, std::uint8_t bmRequestType, std::uint8_t bRequest,
                             std::uint16_t wValue, std::uint16_t wIndex, void *data,
                             std::uint16_t *length) noexcept;

/// Reads `length` bytes from a unit into `buffer`. A short or failed reply leaves the rest of the
/// buffer as it was, and a short reply has the same status as a full one: clear or preset the
/// buffer.
PlatformStatus Read(DeviceHandle handle, std::uint16_t selector, void *buffer,
                    std::uint16_t length) noexcept;

/// Sends a value to a unit, in wValue; there is no data stage.
PlatformStatus Write(DeviceHandle handle, std::uint16_t selector, std::uint16_t value) noexcept;

/// A request that reads, called as a function.
struct ReadRequest {
  std::uint16_t selector;

  PlatformStatus operator()(DeviceHandle handle, void *buffer,
                            std::uint16_t length) const noexcept {
    return Read(handle, selector, buffer, length);
  }
};

/// A request that writes, called as a function.
struct WriteRequest {
  std::uint16_t selector;

  PlatformStatus operator()(DeviceHandle handle, std::uint16_t value) const noexcept {
    return Write(handle, selector, value);
  }
};

// Reads and writes have separate selectors: the same number may have another meaning in the other
// direction.

/// 2 bytes, least significant first.
inline constexpr ReadRequest GetFirmwareVersionNumber = {0x8001};
/// A leading byte, then one byte for each mixer channel: the position of its input selector.
inline constexpr ReadRequest GetInputSelectorInfo = {0x8002};
/// 2 bytes; the first is 1 while Serato is active, else 0.
inline constexpr ReadRequest GetSeratoActiveInfo = {0x8004};
/// 2 bytes, least significant first.
inline constexpr ReadRequest GetPortInfo = {0x8006};
/// 4 bytes, most significant first.
inline constexpr ReadRequest GetCertifyLevel = {0x8007};

/// The routing of what the computer records. The names of the two routings take the mixer's view.
inline constexpr WriteRequest SetMixerOutputSetting = {0x8002};
/// Level step of the USB output, in the high byte.
inline constexpr WriteRequest SetUSBOutputLevelSetting = {0x8003};
/// MIDI channel, in the high byte.
inline constexpr WriteRequest SetMidiChannelSetting = {0x8004};
/// MIDI key mode. Part of the protocol; no model has a key mode, so it is never sent.
inline constexpr WriteRequest SetMidiKeyModeSetting = {0x8005};
/// The routing of what the computer plays. The number is 0x8016, not 0x8006.
inline constexpr WriteRequest SetMixerInputSetting = {0x8016};

}  // namespace orv
