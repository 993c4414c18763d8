// A private session bus for a test.
#pragma once

#include <string>

#include <sys/types.h>

#include "TemporaryFolder.h"

namespace trxtest {

/// Runs a bus daemon until the object ends and makes it the session bus of this process. The daemon
/// can be stopped, started again at the same address, and frozen: then it keeps its connections and
/// does nothing.
class PrivateSessionBus {
 public:
  PrivateSessionBus();
  PrivateSessionBus(const PrivateSessionBus &) = delete;
  PrivateSessionBus &operator=(const PrivateSessionBus &) = delete;
  ~PrivateSessionBus();

  const std::string &Address() const { return address_; }

  void Start();
  void Stop();
  void Freeze();
  void Thaw();

 private:
  TemporaryFolder folder_;
  std::string address_ = "unix:path=" + (folder_ / "bus");
  pid_t daemon_ = -1;
};

}  // namespace trxtest
