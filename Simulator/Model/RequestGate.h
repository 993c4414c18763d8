#pragma once

#include <mutex>

#include "ControlTransfer.h"
#include "FrontEnd.h"

namespace trxsim {

class Desk;

/// Passes the requests of hosts from a front end to the desk, while there is one. Safe for any
/// number of threads.
class RequestGate {
 public:
  /// Requests reach `desk` from now on.
  void Open(Desk &desk);

  /// No more requests reach a desk. Waits for those under way.
  void Close();

  /// Handles one request of a host; while the gate is closed, it ends as after an unplug.
  TransferResult Transfer(int number, const ControlRequest &request);

  /// Tells the desk that the system unplugged unit `number` from `address`.
  void Lost(int number, const BusAddress &address);

 private:
  std::mutex mutex_;  // guards and is held during
  Desk *desk_ = nullptr;
};

}  // namespace trxsim
