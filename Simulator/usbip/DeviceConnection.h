#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "../Control/UnixSocket.h"
#include "DeviceSession.h"

namespace trxsim {

/// Connects one plugged unit to the kernel: serves a session over a stream socket on a thread of
/// its own, so that a request that waits for the desk does not delay other units.
class DeviceConnection {
 public:
  /// Called on the connection's thread when the kernel ended the connection, with what it did.
  using Broken = std::function<void(const std::string &reason)>;

  DeviceConnection(Descriptor socket, DeviceSession session, Broken broken);

  /// Pulls the cable and waits for the thread. Must not run on that thread.
  ~DeviceConnection();
  DeviceConnection(const DeviceConnection &) = delete;
  DeviceConnection &operator=(const DeviceConnection &) = delete;

  /// Ends the connection, from any thread, without waiting. Requests under way get no answer.
  void Pull();

  /// True once the thread has ended its work.
  bool IsFinished() const { return isFinished_; }

 private:
  void Serve();
  std::string ServeToTheEnd();
  bool Send(const std::vector<std::uint8_t> &bytes) const;

  Descriptor socket_;
  DeviceSession session_;
  Broken broken_;
  std::atomic<bool> isPulled_{false};
  std::atomic<bool> isFinished_{false};
  std::thread thread_;
};

}  // namespace trxsim
