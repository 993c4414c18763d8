#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "ControlTransfer.h"

namespace trxsim {

/// A vendor request that a mixer answers: its place in the table. Those with a name come first.
enum class RequestId : std::size_t {
  kFirmware,
  kSelectors,
  kSerato,
  kPort,
  kCertify,
  kMixerOutput,
  kUsbOutputLevel,
  kMidiChannel,
  kMidiKeyMode,
  kMixerInput,
};

/// One row of the request table.
struct RequestEntry {
  std::uint8_t requestType;  ///< bmRequestType
  std::uint8_t request;      ///< bRequest
  std::uint16_t index;       ///< wIndex
  std::string_view word;     ///< Its name in control commands, one word.
  std::string_view text;     ///< Its name in the wire log.

  /// True for a request that reads from the mixer.
  bool IsRead() const { return (requestType & 0x80) != 0; }
};

/// All requests, in the order of their RequestIds.
std::span<const RequestEntry> RequestTable();

/// The row of `id`.
const RequestEntry &EntryOf(RequestId id);

/// The request of a setup packet, if it is one of the table. A read must have wValue 0, a write no
/// data stage.
std::optional<RequestId> RequestFor(const ControlRequest &request);

/// The request that `word` names, if any.
std::optional<RequestId> RequestNamed(std::string_view word);

}  // namespace trxsim
