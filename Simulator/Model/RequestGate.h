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
  void open(Desk &desk);

  /// Nothing reaches a desk any more. When this returns, what was under way has ended.
  void close();

  /// Carries out one request of a host; while the gate is closed, it ends as after an unplug.
  TransferResult transfer(int number, const ControlRequest &request);

  /// Tells the desk that unit `number` is gone from `address` without having been asked to.
  void lost(int number, const BusAddress &address);

 private:
  std::mutex mutex_;  // guards and is held during
  Desk *desk_ = nullptr;
};

}  // namespace trxsim
