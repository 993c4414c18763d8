#include "DeviceSession.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace trxsim {

DeviceSession::DeviceSession(UsbIdentity identity, Transfer transfer)
    : standard_(std::move(identity)), transfer_(std::move(transfer)) {}

std::vector<std::uint8_t> DeviceSession::Receive(std::span<const std::uint8_t> bytes) {
  if (IsOver()) return {};
  received_.insert(received_.end(), bytes.begin(), bytes.end());
  const DecodedFrames decoded = DecodeFrames(received_);
  received_.erase(received_.begin(), received_.begin() + static_cast<std::ptrdiff_t>(decoded.used));
  for (const Frame &frame : decoded.frames) {
    if (isUnplugged_) break;
    std::visit([this](const auto &one) { Handle(one); }, frame);
  }
  error_ = decoded.error;
  return std::exchange(replies_, {});
}

void DeviceSession::Handle(const SubmitFrame &frame) {
  TransferResult result = Answer(frame);
  switch (result.outcome) {
    case Outcome::kDone: {
      result.data.resize(std::min<std::size_t>(result.data.size(), frame.length));
      const std::uint32_t length =
          frame.isRead ? static_cast<std::uint32_t>(result.data.size()) : frame.length;
      if (!frame.isRead) result.data.clear();
      Reply(EncodeSubmitReply(frame.sequence, 0, length, result.data));
      break;
    }
    case Outcome::kStalled:
      Reply(EncodeSubmitReply(frame.sequence, -EPIPE, 0, {}));
      break;
    case Outcome::kNoReply:
      unanswered_.insert(frame.sequence);
      break;
    case Outcome::kUnplugged:
    case Outcome::kGone:
      isUnplugged_ = true;
      break;
  }
}

void DeviceSession::Handle(const UnlinkFrame &frame) {
  const bool wasWaiting = unanswered_.erase(frame.victim) != 0;
  Reply(EncodeUnlinkReply(frame.sequence, wasWaiting ? -ECONNRESET : 0));
}

TransferResult DeviceSession::Answer(const SubmitFrame &frame) {
  if (frame.endpoint != 0) return {Outcome::kStalled, {}};
  return IsStandard(frame.setup) ? standard_.Answer(frame.setup) : transfer_(frame.setup);
}

void DeviceSession::Reply(std::span<const std::uint8_t> bytes) {
  replies_.insert(replies_.end(), bytes.begin(), bytes.end());
}

}  // namespace trxsim
