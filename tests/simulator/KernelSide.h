#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Control/UnixSocket.h"
#include "usbip/DeviceConnection.h"

/// Plays the kernel's half of a USB/IP conversation about one unit.
class KernelSide {
 public:
  /// Connects itself to a unit that answers by `session`.
  explicit KernelSide(trxsim::DeviceSession session);
  ~KernelSide();
  KernelSide(const KernelSide &) = delete;
  KernelSide &operator=(const KernelSide &) = delete;

  /// Sends bytes, given in hexadecimal.
  void Send(const std::string &hex);

  /// Submits a control request, given by its setup packet in hexadecimal, and waits for the end of
  /// it: "STATUS" or "STATUS DATA", the status in decimal, the data in hexadecimal.
  std::string Request(const std::string &setup);

  /// Submits a control request whose reply is taken later, by `Reply`.
  void Submit(unsigned sequence, const std::string &setup);

  /// The next 48 bytes, and the data that they announce, in hexadecimal; "" when the unit hung up.
  std::string Reply();

  /// Ends the sending half: nothing more comes from the kernel.
  void HangUp();

  /// Pulls the cable at the other end.
  void Pull() { connection_->Pull(); }

  /// Waits for the end of the connection: what the kernel is said to have done, "" when nothing.
  std::string EndOfConnection();

 private:
  std::vector<std::uint8_t> Receive(std::size_t length);

  trxsim::Descriptor socket_;
  std::string broken_;
  unsigned sequence_ = 0;
  std::set<unsigned> reads_;  // replies to these bring data along
  std::unique_ptr<trxsim::DeviceConnection> connection_;
};
