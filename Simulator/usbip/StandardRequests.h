#pragma once

#include <cstdint>

#include "../Model/ControlTransfer.h"
#include "../Model/FrontEnd.h"

namespace trxsim {

/// True for a request that every USB device has to know, which is how a kernel gets to know it.
bool isStandard(const ControlRequest &request);

/// What a unit answers to the standard requests of a kernel: descriptors, configuration, status.
/// Stalls on what the unit does not have. One thread at a time.
class StandardRequests {
 public:
  /// For a unit that was just plugged in.
  explicit StandardRequests(UsbIdentity identity) : identity_(std::move(identity)) {}

  /// Answers one standard request. A reply is never longer than the kernel asked for.
  TransferResult answer(const ControlRequest &request);

 private:
  struct Row;

  TransferResult descriptor(const ControlRequest &request);
  TransferResult deviceStatus(const ControlRequest &request);
  TransferResult interfaceStatus(const ControlRequest &request);
  TransferResult endpointStatus(const ControlRequest &request);
  TransferResult configuration(const ControlRequest &request);
  TransferResult setConfiguration(const ControlRequest &request);
  TransferResult alternateSetting(const ControlRequest &request);
  TransferResult setAlternateSetting(const ControlRequest &request);
  TransferResult setAddress(const ControlRequest &request);
  bool hasInterface(std::uint16_t number) const;

  UsbIdentity identity_;
  std::uint8_t configuration_ = 0;  // 0: not configured
};

}  // namespace trxsim
