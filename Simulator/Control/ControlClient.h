#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "UnixSocket.h"

namespace trxsim {

/// No simulator answers at a control socket, or it ended.
class SimulatorUnreachable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The simulator refused a command; `what()` is its own message.
class CommandRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A connection to the run-time control of a simulator. One thread at a time.
class ControlClient {
 public:
  /// Connects to the control socket at `path`. Throws `SimulatorUnreachable`, and
  /// `SimulatorNotTrusted` when neither this user nor root listens there.
  explicit ControlClient(const std::string &path);

  /// Sends one command line and returns the lines of the reply. Throws `CommandRefused`, or
  /// `SimulatorUnreachable` when the connection breaks.
  std::vector<std::string> Ask(const std::string &command);

 private:
  void Send(const std::string &line);
  std::string ReceiveLine();

  std::string path_;
  Descriptor socket_;
  std::string received_;
};

}  // namespace trxsim
