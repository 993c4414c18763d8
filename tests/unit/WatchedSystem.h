// What the library asks of the system while it waits for the session bus, seen and steered by a
// test. Needs the linker's --wrap for the calls that WatchedSystem.cpp wraps.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace trxtest {

/// For its life the library's clock stands still, and its waits for the bus pass at once and put
/// the clock forward: the bus should be away or hang. One at a time, on one thread.
class WatchedSystem {
 public:
  WatchedSystem();
  ~WatchedSystem();
  WatchedSystem(const WatchedSystem &) = delete;
  WatchedSystem &operator=(const WatchedSystem &) = delete;

  /// The waits since the last call of this, in microseconds.
  static std::vector<std::uint64_t> TakeWaits();

  /// In how many microseconds the timer runs out; nothing while it is off.
  static std::optional<std::uint64_t> TimerRunsOutIn();

  /// From now on the system takes on no watches, or takes them on again.
  static void RefuseWatches(bool isRefused);
};

/// Whether the library's timer is on, at any time.
bool IsTimerOn();

}  // namespace trxtest
