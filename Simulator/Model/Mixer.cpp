#include "Mixer.h"

#include <algorithm>

namespace trxsim {

namespace {

std::uint8_t byteOf(std::uint32_t number, unsigned position) {
  return static_cast<std::uint8_t>(number >> (8 * position));
}

}  // namespace

TransferResult Mixer::answer(const ControlRequest &request) {
  const std::optional<RequestId> id = requestFor(request);
  if (!id) return {Outcome::Stalled, {}};
  if (!request.isRead()) {
    written_[*id] = request.value;
    return {Outcome::Done, {}};
  }
  std::vector<std::uint8_t> reply = report(*id);
  reply.resize(std::min<std::size_t>(reply.size(), request.length));
  return {Outcome::Done, std::move(reply)};
}

std::optional<std::uint16_t> Mixer::lastWritten(RequestId id) const {
  const auto found = written_.find(id);
  return found == written_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::uint8_t> Mixer::report(RequestId id) const {
  switch (id) {
    case RequestId::Firmware:
      return {byteOf(state_.firmware, 0), byteOf(state_.firmware, 1)};
    case RequestId::Selectors: {
      std::vector<std::uint8_t> reply{state_.leadingByte};
      reply.insert(reply.end(), state_.selectors.begin(), state_.selectors.end());
      return reply;
    }
    case RequestId::Serato:
      return {state_.serato.begin(), state_.serato.end()};
    case RequestId::Port:
      return {state_.port.begin(), state_.port.end()};
    case RequestId::Certify:
      return {byteOf(state_.certify, 3), byteOf(state_.certify, 2), byteOf(state_.certify, 1),
              byteOf(state_.certify, 0)};
    default:
      return {};
  }
}

}  // namespace trxsim
