#pragma once

#include <array>
#include <chrono>
#include <memory>
#include <optional>

namespace trxctl {

/// Why a wait for announcements is over.
enum class Waited {
  kForDelivery,   ///< Something may have been delivered, by calls of the listeners.
  kForEndSignal,  ///< The user or the system asks the program to end.
  kForReader,     ///< The reader of the program's output is gone.
  kForOthers,     ///< One of the other descriptors is readable.
  kForTime,       ///< The time to wait is over.
};

/// Where the library's announcements are waited for: the event loop of the platform. Made once, on
/// the thread that registers for announcements; from then on the signals that ask the program to
/// end only end a wait.
class WatchLoop {
 public:
  using Clock = std::chrono::steady_clock;

  /// Throws Failure when the system does not let the program wait.
  static std::unique_ptr<WatchLoop> Make();

  virtual ~WatchLoop() = default;

  /// Waits until there is something to do; without a deadline for ever.
  ///
  /// @param others  further descriptors to wait for; -1 stands for none.
  virtual Waited Wait(const std::optional<Clock::time_point> &deadline,
                      const std::array<int, 2> &others) = 0;
};

}  // namespace trxctl
