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

TransferResult Done(std::vector<std::uint8_t> data = {}) {
  return {Outcome::kDone, std::move(data)};
}

TransferResult Stalled() { return {Outcome::kStalled, {}}; }

TransferResult DoneIf(bool possible) { return possible ? Done() : Stalled(); }

}  // namespace

/// One standard request and the function that answers it.
struct StandardRequests::Row {
  std::uint8_t requestType;
  std::uint8_t request;
  TransferResult (StandardRequests::*answer)(const ControlRequest &);
};

bool IsStandard(const ControlRequest &request) { return (request.requestType & kTypeBits) == 0; }

TransferResult StandardRequests::Answer(const ControlRequest &request) {
  static constexpr std::array<Row, 9> kRows{{
      {0x80, 0, &StandardRequests::DeviceStatus},
      {0x81, 0, &StandardRequests::InterfaceStatus},
      {0x82, 0, &StandardRequests::EndpointStatus},
      {0x00, 5, &StandardRequests::SetAddress},
      {0x80, 6, &StandardRequests::Descriptor},
      {0x80, 8, &StandardRequests::Configuration},
      {0x00, 9, &StandardRequests::SetConfiguration},
      {0x81, 10, &StandardRequests::AlternateSetting},
      {0x01, 11, &StandardRequests::SetAlternateSetting},
  }};
  for (const Row &row : kRows) {
    if (row.requestType != request.requestType || row.request != request.request) continue;
    TransferResult result = (this->*row.answer)(request);
    result.data.resize(std::min<std::size_t>(result.data.size(), request.length));
    return result;
  }
  return Stalled();
}

TransferResult StandardRequests::Descriptor(const ControlRequest &request) {
  const unsigned number = request.value & 0xFF;
  const DeviceKind &kind = KindOf(identity_);
  switch (request.value >> 8) {
    case kDevice:
      return number == 0 ? Done(DeviceDescriptor(identity_, kind)) : Stalled();
    case kConfiguration:
      return number == 0 ? Done(ConfigurationDescriptor(kind)) : Stalled();
    case kString: {
      std::vector<std::uint8_t> text = StringDescriptor(identity_, number);
      return text.empty() ? Stalled() : Done(std::move(text));
    }
    default:
      return Stalled();
  }
}

TransferResult StandardRequests::DeviceStatus(const ControlRequest &) {
  constexpr std::uint8_t kSelfPowered = 1;
  return Done({kSelfPowered, 0});
}

TransferResult StandardRequests::InterfaceStatus(const ControlRequest &request) {
  return HasInterface(request.index) ? Done({0, 0}) : Stalled();
}

TransferResult StandardRequests::EndpointStatus(const ControlRequest &request) {
  constexpr std::uint16_t kDirectionBit = 0x80;
  return (request.index & ~kDirectionBit) == 0 ? Done({0, 0}) : Stalled();
}

TransferResult StandardRequests::Configuration(const ControlRequest &) {
  return Done({configuration_});
}

TransferResult StandardRequests::SetConfiguration(const ControlRequest &request) {
  if (request.value > kOnlyConfiguration) return Stalled();
  configuration_ = static_cast<std::uint8_t>(request.value);
  return Done();
}

TransferResult StandardRequests::AlternateSetting(const ControlRequest &request) {
  return HasInterface(request.index) ? Done({0}) : Stalled();
}

TransferResult StandardRequests::SetAlternateSetting(const ControlRequest &request) {
  return DoneIf(HasInterface(request.index) && request.value == 0);
}

// The kernel does not send the address to a USB/IP device. Should one do so, it is accepted.
TransferResult StandardRequests::SetAddress(const ControlRequest &) { return Done(); }

bool StandardRequests::HasInterface(std::uint16_t number) const {
  return configuration_ != 0 && number < KindOf(identity_).interfaces.size();
}

}  // namespace trxsim
