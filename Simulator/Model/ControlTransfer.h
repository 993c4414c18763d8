#pragma once

#include <cstdint>
#include <vector>

namespace trxsim {

/// The setup packet of one control transfer on endpoint 0.
struct ControlRequest {
  std::uint8_t requestType = 0;  ///< bmRequestType
  std::uint8_t request = 0;      ///< bRequest
  std::uint16_t value = 0;       ///< wValue
  std::uint16_t index = 0;       ///< wIndex
  std::uint16_t length = 0;      ///< wLength

  /// True when the data stage, if any, goes from the device to the host.
  bool IsRead() const { return (requestType & 0x80) != 0; }
};

/// How one control transfer ended for the host.
enum class Outcome {
  kDone,       ///< Succeeded; for a read, `TransferResult::data` is the reply.
  kStalled,    ///< The device refused the request.
  kNoReply,    ///< The device does not answer before the host's time-out.
  kUnplugged,  ///< The device was unplugged during the request.
  kGone,       ///< The device was unplugged before the request; nothing was sent.
};

/// The end of one control transfer.
struct TransferResult {
  Outcome outcome = Outcome::kStalled;
  std::vector<std::uint8_t> data;  ///< Bytes of the data stage of a read.
};

}  // namespace trxsim
