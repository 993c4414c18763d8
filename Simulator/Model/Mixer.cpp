#include "Mixer.h"

#include <algorithm>

namespace trxsim {

namespace {

std::uint8_t ByteOf(std::uint32_t number, unsigned position) {
  return static_cast<std::uint8_t>(number >> (8 * position));
}

}  // namespace

TransferResult Mixer::Answer(const ControlRequest &request) {
  const std::optional<RequestId> id = RequestFor(request);
  if (!id) return {Outcome::kStalled, {}};
  if (!request.IsRead()) {
    written_[*id] = request.value;
    return {Outcome::kDone, {}};
  }
  std::vector<std::uint8_t> reply = Report(*id);
  reply.resize(std::min<std::size_t>(reply.size(), request.length));
  return {Outcome::kDone, std::move(reply)};
}

std::optional<std::uint16_t> Mixer::LastWritten(RequestId id) const {
  const auto found = written_.find(id);
  return found == written_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::uint8_t> Mixer::Report(RequestId id) const {
  switch (id) {
    case RequestId::kFirmware:
      return {ByteOf(state_.firmware, 0), ByteOf(state_.firmware, 1)};
    case RequestId::kSelectors: {
      std::vector<std::uint8_t> reply{state_.leadingByte};
      reply.insert(reply.end(), state_.selectors.begin(), state_.selectors.end());
      return reply;
    }
    case RequestId::kSerato:
      return {state_.serato.begin(), state_.serato.end()};
    case RequestId::kPort:
      return {state_.port.begin(), state_.port.end()};
    case RequestId::kCertify:
      return {ByteOf(state_.certify, 3), ByteOf(state_.certify, 2), ByteOf(state_.certify, 1),
              ByteOf(state_.certify, 0)};
    default:
      return {};
  }
}

}  // namespace trxsim
