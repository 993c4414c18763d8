#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "../Model/ControlTransfer.h"

namespace trxsim {

/// The kernel submits a request to the device.
struct SubmitFrame {
  std::uint32_t sequence = 0;  ///< The kernel's number for it, repeated in the reply.
  std::uint32_t endpoint = 0;
  bool isRead = false;             ///< The data stage, if any, goes from the device to the kernel.
  std::uint32_t length = 0;        ///< Of the data stage.
  ControlRequest setup;            ///< Only for endpoint 0.
  std::vector<std::uint8_t> data;  ///< The data stage of a write.
};

/// The kernel takes back a request that it has submitted.
struct UnlinkFrame {
  std::uint32_t sequence = 0;
  std::uint32_t victim = 0;  ///< The sequence number of the request that is taken back.
};

using Frame = std::variant<SubmitFrame, UnlinkFrame>;

/// The frames at the beginning of some bytes.
struct DecodedFrames {
  std::vector<Frame> frames;
  std::size_t used = 0;  ///< The length of the frames; the rest is the beginning of another one.
  std::string error;     ///< Why the rest is no frame; empty when it can become one.
};

/// Decodes what a kernel sends to a device over USB/IP. Accepts any bytes.
DecodedFrames DecodeFrames(std::span<const std::uint8_t> bytes);

/// The reply to a submitted request: `status` is 0 or a negative error number, `length` what was
/// transferred, `data` the data stage of a read.
std::vector<std::uint8_t> EncodeSubmitReply(std::uint32_t sequence, std::int32_t status,
                                            std::uint32_t length,
                                            std::span<const std::uint8_t> data);

/// The reply to a request that was taken back: `status` is 0 when it was already answered.
std::vector<std::uint8_t> EncodeUnlinkReply(std::uint32_t sequence, std::int32_t status);

}  // namespace trxsim
