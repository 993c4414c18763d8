#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "ControlTransfer.h"
#include "RequestTable.h"

namespace trxsim {

/// What a mixer reports.
struct MixerState {
  std::uint8_t leadingByte = 0;                     ///< In front of the selectors in their reply.
  std::vector<std::uint8_t> selectors{0, 0, 0, 0};  ///< One position for each.
  std::array<std::uint8_t, 2> serato{0, 0};         ///< First byte: 1 while Serato is active.
  std::array<std::uint8_t, 2> port{0, 0};           ///< As it is sent.
  std::uint16_t firmware = 0x0100;                  ///< Sent least significant byte first.
  std::uint32_t certify = 1;                        ///< Sent most significant byte first.
};

/// One mixer: answers the ten vendor requests, stalls on everything else, and keeps the last value
/// that each request wrote. One thread at a time.
class Mixer {
 public:
  /// Answers one request. A reply is never longer than the host asked for.
  TransferResult Answer(const ControlRequest &request);

  /// What the mixer reports.
  MixerState &State() { return state_; }
  const MixerState &State() const { return state_; }

  /// The value last written by the write request `id`; nothing when it was never written.
  std::optional<std::uint16_t> LastWritten(RequestId id) const;

 private:
  std::vector<std::uint8_t> Report(RequestId id) const;

  MixerState state_;
  std::map<RequestId, std::uint16_t> written_;
};

}  // namespace trxsim
