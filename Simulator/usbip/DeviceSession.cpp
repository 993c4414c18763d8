#include "DeviceSession.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace trxsim {

DeviceSession::DeviceSession(UsbIdentity identity, Transfer transfer)
    : standard_(std::move(identity)), transfer_(std::move(transfer)) {}

std::vector<std::uint8_t> DeviceSession::receive(std::span<const std::uint8_t> bytes) {
  if (isOver()) return {};
  received_.insert(received_.end(), bytes.begin(), bytes.end());
  const DecodedFrames decoded = decodeFrames(received_);
  received_.erase(received_.begin(), received_.begin() + static_cast<std::ptrdiff_t>(decoded.used));
  for (const Frame &frame : decoded.frames) {
    if (isUnplugged_) break;
    std::visit([this](const auto &one) { handle(one); }, frame);
  }
  error_ = decoded.error;
  return std::exchange(replies_, {});
}

void DeviceSession::handle(const SubmitFrame &frame) {
  TransferResult result = answer(frame);
  switch (result.outcome) {
    case Outcome::Done: {
      result.data.resize(std::min<std::size_t>(result.data.size(), frame.length));
      const std::uint32_t length =
          frame.isRead ? static_cast<std::uint32_t>(result.data.size()) : frame.length;
      if (!frame.isRead) result.data.clear();
      reply(encodeSubmitReply(frame.sequence, 0, length, result.data));
      break;
    }
    case Outcome::Stalled:
      reply(encodeSubmitReply(frame.sequence, -EPIPE, 0, {}));
      break;
    case Outcome::NoReply:
      unanswered_.insert(frame.sequence);
      break;
    case Outcome::Unplugged:
    case Outcome::Gone:
      isUnplugged_ = true;
      break;
  }
}

void DeviceSession::handle(const UnlinkFrame &frame) {
  const bool wasWaiting = unanswered_.erase(frame.victim) != 0;
  reply(encodeUnlinkReply(frame.sequence, wasWaiting ? -ECONNRESET : 0));
}

TransferResult DeviceSession::answer(const SubmitFrame &frame) {
  if (frame.endpoint != 0) return {Outcome::Stalled, {}};
  return isStandard(frame.setup) ? standard_.answer(frame.setup) : transfer_(frame.setup);
}

void DeviceSession::reply(std::span<const std::uint8_t> bytes) {
  replies_.insert(replies_.end(), bytes.begin(), bytes.end());
}

}  // namespace trxsim
