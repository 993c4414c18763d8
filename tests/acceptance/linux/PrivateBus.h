#pragma once

#include <string>

#include <sys/types.h>

namespace trxtest {

/// A private message bus that can be stopped, frozen and started again at the same address.
/// Functions throw when the system refuses. One thread at a time.
class PrivateBus {
 public:
  /// Puts its files into `folder`. Does not start it.
  explicit PrivateBus(std::string folder);
  ~PrivateBus();
  PrivateBus(const PrivateBus &) = delete;
  PrivateBus &operator=(const PrivateBus &) = delete;

  /// The address where it listens while it runs.
  std::string Address() const;

  /// Starts it and waits until it listens.
  void Start();

  /// Ends it as a crash does, without a word to its clients.
  void Stop();

  /// Stops it from reading and writing; its connections stay.
  void Freeze();
  void Thaw();

 private:
  std::string SocketPath() const { return folder_ + "/bus"; }

  std::string folder_;
  pid_t daemon_ = -1;
};

}  // namespace trxtest
