#pragma once

#include <mutex>

#include "ControlTransfer.h"
#include "FrontEnd.h"

namespace trxsim {

class Desk;

/// The way from the hosts of a front end to the desk, which may not be there yet or any more. Safe
/// for any number of threads.
class RequestGate {
 public:
  /// From now on, what hosts do reaches `desk`.
  void Open(Desk &desk);

  /// Nothing reaches a desk any more. When this returns, what was under way has ended.
  void Close();

  /// Carries out one request of a host; while the gate is closed, it ends as after an unplug.
  TransferResult Transfer(int number, const ControlRequest &request);

  /// Tells the desk that unit `number` is gone from `address` without having been asked to.
  void Lost(int number, const BusAddress &address);

 private:
  std::mutex mutex_;  // guards and is held during
  Desk *desk_ = nullptr;
};

}  // namespace trxsim
