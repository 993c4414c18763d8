#include "StandardRequests.h"

#include <algorithm>
#include <array>
#include <utility>

#include "../Model/Descriptors.h"

namespace trxsim {

namespace {

constexpr std::uint8_t kTypeBits = 0x60;
constexpr std::uint8_t kOnlyConfiguration = 1;

enum DescriptorType { kDevice = 1, kConfiguration, kString };

TransferResult done(std::vector<std::uint8_t> data = {}) {
  return {Outcome::Done, std::move(data)};
}

TransferResult stalled() { return {Outcome::Stalled, {}}; }

TransferResult doneIf(bool possible) { return possible ? done() : stalled(); }

}  // namespace

/// One standard request and who answers it.
struct StandardRequests::Row {
  std::uint8_t requestType;
  std::uint8_t request;
  TransferResult (StandardRequests::*answer)(const ControlRequest &);
};

bool isStandard(const ControlRequest &request) { return (request.requestType & kTypeBits) == 0; }

TransferResult StandardRequests::answer(const ControlRequest &request) {
  static constexpr std::array<Row, 9> kRows{{
      {0x80, 0, &StandardRequests::deviceStatus},
      {0x81, 0, &StandardRequests::interfaceStatus},
      {0x82, 0, &StandardRequests::endpointStatus},
      {0x00, 5, &StandardRequests::setAddress},
      {0x80, 6, &StandardRequests::descriptor},
      {0x80, 8, &StandardRequests::configuration},
      {0x00, 9, &StandardRequests::setConfiguration},
      {0x81, 10, &StandardRequests::alternateSetting},
      {0x01, 11, &StandardRequests::setAlternateSetting},
  }};
  for (const Row &row : kRows) {
    if (row.requestType != request.requestType || row.request != request.request) continue;
    TransferResult result = (this->*row.answer)(request);
    result.data.resize(std::min<std::size_t>(result.data.size(), request.length));
    return result;
  }
  return stalled();
}

TransferResult StandardRequests::descriptor(const ControlRequest &request) {
  const unsigned number = request.value & 0xFF;
  const DeviceKind &kind = kindOf(identity_);
  switch (request.value >> 8) {
    case kDevice:
      return number == 0 ? done(deviceDescriptor(identity_, kind)) : stalled();
    case kConfiguration:
      return number == 0 ? done(configurationDescriptor(kind)) : stalled();
    case kString: {
      std::vector<std::uint8_t> text = stringDescriptor(identity_, number);
      return text.empty() ? stalled() : done(std::move(text));
    }
    default:
      return stalled();
  }
}

TransferResult StandardRequests::deviceStatus(const ControlRequest &) {
  constexpr std::uint8_t kSelfPowered = 1;
  return done({kSelfPowered, 0});
}

TransferResult StandardRequests::interfaceStatus(const ControlRequest &request) {
  return hasInterface(request.index) ? done({0, 0}) : stalled();
}

TransferResult StandardRequests::endpointStatus(const ControlRequest &request) {
  constexpr std::uint16_t kDirectionBit = 0x80;
  return (request.index & ~kDirectionBit) == 0 ? done({0, 0}) : stalled();
}

TransferResult StandardRequests::configuration(const ControlRequest &) {
  return done({configuration_});
}

TransferResult StandardRequests::setConfiguration(const ControlRequest &request) {
  if (request.value > kOnlyConfiguration) return stalled();
  configuration_ = static_cast<std::uint8_t>(request.value);
  return done();
}

TransferResult StandardRequests::alternateSetting(const ControlRequest &request) {
  return hasInterface(request.index) ? done({0}) : stalled();
}

TransferResult StandardRequests::setAlternateSetting(const ControlRequest &request) {
  return doneIf(hasInterface(request.index) && request.value == 0);
}

// The kernel keeps the address of a USB/IP device to itself; one that does not is answered as well.
TransferResult StandardRequests::setAddress(const ControlRequest &) { return done(); }

bool StandardRequests::hasInterface(std::uint16_t number) const {
  return configuration_ != 0 && number < kindOf(identity_).interfaces.size();
}

}  // namespace trxsim
