#pragma once

#include <list>
#include <string>
#include <thread>

#include "CommandInterpreter.h"
#include "UnixSocket.h"

namespace trxsim {

/// Serves the control protocol to any number of clients, on a thread of its own: a line in, the
/// lines of the reply out, then "ok" or "error TEXT".
class ControlServer {
 public:
  /// Serves on `listener`, a non-blocking listening socket, until its end. `interpreter` must
  /// outlive it.
  ControlServer(Descriptor listener, CommandInterpreter &interpreter);
  ~ControlServer();
  ControlServer(const ControlServer &) = delete;
  ControlServer &operator=(const ControlServer &) = delete;

 private:
  struct Connection {
    Descriptor socket;
    std::string input;
    std::string output;
    bool closing = false;  ///< Nothing more is read; closed once the output is out.
  };

  void Serve();
  void Accept();
  void Receive(Connection &connection);
  void AnswerLines(Connection &connection);
  static void Send(Connection &connection);

  Descriptor listener_;
  CommandInterpreter &interpreter_;
  Descriptor stopRead_;
  Descriptor stopWrite_;
  std::list<Connection> connections_;
  std::thread thread_;
};

}  // namespace trxsim
