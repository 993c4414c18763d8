#pragma once

#include <string>

#include <sys/types.h>

namespace trxtest {

/// A message bus of the test's own that can be stopped, frozen and started again at the same
/// address. Functions throw when the system does not do its part. One thread at a time.
class PrivateBus {
 public:
  /// Puts its files into `folder`. Not running yet.
  explicit PrivateBus(std::string folder);
  ~PrivateBus();
  PrivateBus(const PrivateBus &) = delete;
  PrivateBus &operator=(const PrivateBus &) = delete;

  /// Where it listens while it runs.
  std::string Address() const;

  /// Starts it and waits until it listens.
  void Start();

  /// Ends it as a crash does: nothing is said to anybody.
  void Stop();

  /// Its connections stay, it reads and writes nothing.
  void Freeze();
  void Thaw();

 private:
  std::string SocketPath() const { return folder_ + "/bus"; }

  std::string folder_;
  pid_t daemon_ = -1;
};

}  // namespace trxtest
