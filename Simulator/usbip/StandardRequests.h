#pragma once

#include <cstdint>

#include "../Model/ControlTransfer.h"
#include "../Model/FrontEnd.h"

namespace trxsim {

/// True for a request that every USB device has to know, with which a kernel identifies it.
bool IsStandard(const ControlRequest &request);

/// Answers the standard requests of a kernel: descriptors, configuration, status. Stalls on what
/// the unit does not have. One thread at a time.
class StandardRequests {
 public:
  /// For a unit that has just been plugged in.
  explicit StandardRequests(UsbIdentity identity) : identity_(std::move(identity)) {}

  /// Answers one standard request. A reply is never longer than the kernel asked for.
  TransferResult Answer(const ControlRequest &request);

 private:
  struct Row;

  TransferResult Descriptor(const ControlRequest &request);
  TransferResult DeviceStatus(const ControlRequest &request);
  TransferResult InterfaceStatus(const ControlRequest &request);
  TransferResult EndpointStatus(const ControlRequest &request);
  TransferResult Configuration(const ControlRequest &request);
  TransferResult SetConfiguration(const ControlRequest &request);
  TransferResult AlternateSetting(const ControlRequest &request);
  TransferResult SetAlternateSetting(const ControlRequest &request);
  TransferResult SetAddress(const ControlRequest &request);
  bool HasInterface(std::uint16_t number) const;

  UsbIdentity identity_;
  std::uint8_t configuration_ = 0;  // 0: not configured
};

}  // namespace trxsim
