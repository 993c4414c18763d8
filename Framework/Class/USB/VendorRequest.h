// What crosses the wire: vendor control requests on endpoint 0 of an open unit, one named operation
// per request. The routing writes are named as the mixer sees them: SetMixerOutputSetting carries
// what the mixer sends to the computer, that is, what the computer records. All may run on any
// thread and on several at once; each blocks until the transfer is done or has failed.
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

/// The read requests ask for `length` bytes into `buffer`. A short or failed reply leaves the rest
/// of the buffer as it was and is not told from a full one: clear or preset the buffer.
using ReadRequest = PlatformStatus(DeviceHandle handle, void *buffer, std::uint16_t length);

/// 2 bytes, least significant first.
ReadRequest GetFirmwareVersionNumber;
/// A leading byte, then one byte a mixer channel: the position of its input selector.
ReadRequest GetInputSelectorInfo;
/// 2 bytes; the first is 1 while Serato is active, else 0.
ReadRequest GetSeratoActiveInfo;
/// 2 bytes, least significant first.
ReadRequest GetPortInfo;
/// 4 bytes, most significant first.
ReadRequest GetCertifyLevel;

/// The write requests carry their value in wValue and have no data stage.
using WriteRequest = PlatformStatus(DeviceHandle handle, std::uint16_t value);

/// Routing of what the mixer sends to the computer.
WriteRequest SetMixerOutputSetting;
/// Routing of what the computer sends to the mixer.
WriteRequest SetMixerInputSetting;
/// Level step of the USB output, in the high byte.
WriteRequest SetUSBOutputLevelSetting;
/// MIDI channel, in the high byte.
WriteRequest SetMidiChannelSetting;
/// MIDI key mode. Part of the protocol; no model offers a key mode, so it is never sent.
WriteRequest SetMidiKeyModeSetting;

}  // namespace orv
