#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "../Model/ControlTransfer.h"
#include "../Model/FrontEnd.h"
#include "Frames.h"
#include "StandardRequests.h"

namespace trxsim {

/// The device's half of a USB/IP conversation about one plugged unit. Takes the kernel's bytes and
/// returns the replies; does no input or output. One thread at a time.
class DeviceSession {
 public:
  /// Handles a request that is not a standard one.
  using Transfer = std::function<TransferResult(const ControlRequest &request)>;

  DeviceSession(UsbIdentity identity, Transfer transfer);

  /// Takes bytes of the kernel, in pieces of any length, and returns the bytes to send back.
  std::vector<std::uint8_t> Receive(std::span<const std::uint8_t> bytes);

  /// True once nothing more is answered: the unit was unplugged, or there was an error.
  bool IsOver() const { return isUnplugged_ || !error_.empty(); }

  /// What was wrong with the bytes of the kernel; empty when nothing was.
  const std::string &Error() const { return error_; }

  /// True between the first and the last byte of a frame.
  bool IsInMidFrame() const { return !received_.empty(); }

 private:
  void Handle(const SubmitFrame &frame);
  void Handle(const UnlinkFrame &frame);
  TransferResult Answer(const SubmitFrame &frame);
  void Reply(std::span<const std::uint8_t> bytes);

  StandardRequests standard_;
  Transfer transfer_;
  std::vector<std::uint8_t> received_;  // the beginning of a frame
  std::vector<std::uint8_t> replies_;
  std::set<std::uint32_t>
      unanswered_;  // requests without a reply, until the kernel takes them back
  bool isUnplugged_ = false;
  std::string error_;
};

}  // namespace trxsim
