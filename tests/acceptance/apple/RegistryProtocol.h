// The protocol between a process with the double of IOKit and the program that keeps the registry:
// one packet each way over a SOCK_SEQPACKET socket, in the byte order of the machine.
#pragma once

#include <array>
#include <cstdint>

#include <Model/ControlTransfer.h>
#include <Model/Fault.h>

namespace trxtest {

/// The environment variable with the path of the registry's socket.
inline constexpr const char *kRegistryVariable = "TRX_ACCEPTANCE_REGISTRY";

/// A request: for the list of devices, or for one transfer.
struct RegistryRequest {
  bool isTransfer = false;
  int device = 0;  ///< Transfers only, and so are the rest.
  trxsim::ControlRequest setup;
};

/// One device in the answer to a request for the list, which is an array of them in the order of
/// the registry.
struct RegistryDevice {
  int device = 0;  ///< Its number on the bus.
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;
  trxsim::OpenFault fault = trxsim::OpenFault::kNone;
};

/// The answer to a transfer. For a silent device, it comes when the host's time-out ends.
struct RegistryAnswer {
  static constexpr std::size_t kMostBytes = 256;

  trxsim::Outcome outcome = trxsim::Outcome::kGone;
  std::uint16_t size = 0;
  std::array<std::uint8_t, kMostBytes> bytes = {};
};

/// The list is never longer: a bus has at most 127 devices.
inline constexpr std::size_t kMostDevices = 127;

}  // namespace trxtest
