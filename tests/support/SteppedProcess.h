// Runs a part of a test in a process that stands still before each of its system calls, so that
// something can go wrong at every moment that there is, one after another.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include <sys/types.h>

namespace trxtest {

/// A system call that a process is about to make, as the kernel numbers it (SYS_...).
struct SystemCall {
  std::uint64_t number = 0;
  std::array<std::uint64_t, 6> arguments = {};
};

/// A forked child of this process, held by its parent. Ends with this object. Functions throw when
/// the system does not do its part. One thread at a time, the one that made it.
class SteppedProcess {
 public:
  /// Forks; the child stands still before `body` begins. It ends well when `body` returns without
  /// a failed expectation, which it prints itself.
  explicit SteppedProcess(const std::function<void()> &body);
  ~SteppedProcess();
  SteppedProcess(const SteppedProcess &) = delete;
  SteppedProcess &operator=(const SteppedProcess &) = delete;

  /// Lets the child make the system call that it stands before and go on to its next one. Nothing
  /// when it has ended.
  std::optional<SystemCall> Step();

  /// Goes on until the child stands before the `n`-th system call from here, counted from 1.
  std::optional<SystemCall> StepTo(int n);

  /// Ends the child where it stands, as SIGKILL does: what it was about to do does not happen.
  void Kill();

  /// Lets the child run freely to its end. Returns whether it ended well.
  bool RunToEnd();

  pid_t Id() const { return id_; }

 private:
  bool Continue(int request);

  pid_t id_ = -1;
  int pendingSignal_ = 0;
  std::optional<int> end_;
};

}  // namespace trxtest
