// Runs a part of a test in a process that stops before each of its system calls, so that a test can
// make something fail at each of these moments in turn.
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

/// A forked child of this process, traced by it. Ends with this object. Functions throw when the
/// system refuses. Only the thread that made it may use it.
class SteppedProcess {
 public:
  /// Forks; the child stops before `body` begins. It ends well when `body` returns without a
  /// failed expectation, which it prints itself.
  explicit SteppedProcess(const std::function<void()> &body);
  ~SteppedProcess();
  SteppedProcess(const SteppedProcess &) = delete;
  SteppedProcess &operator=(const SteppedProcess &) = delete;

  /// Lets the child make the system call before which it has stopped and continue to the next one.
  /// Nothing when it has ended.
  std::optional<SystemCall> Step();

  /// Continues until the child is before the `n`-th system call from here, counted from 1.
  std::optional<SystemCall> StepTo(int n);

  /// Makes the system call before which the child has stopped fail with this errno value. The call
  /// is not made; the next step continues after it.
  void Fail(int error);

  /// Lets the read or write before which the child has stopped ask for no more than these bytes.
  void Shorten(std::size_t bytes);

  /// Kills the child where it has stopped: the pending system call does not happen.
  void Kill();

  /// Lets the child run to its end. Returns whether it ended well.
  bool RunToEnd();

  pid_t Id() const { return id_; }

 private:
  bool Continue(int request);

  pid_t id_ = -1;
  int pendingSignal_ = 0;
  std::optional<int> end_;
};

}  // namespace trxtest
