// The library's system calls while it waits for the session bus, recorded and controlled by a test.
// Needs the linker's --wrap for the calls that WatchedSystem.cpp wraps.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trxtest {

/// While it exists, the library's clock is stopped. Waits for the bus return at once and advance
/// the clock: the bus should be missing or hang. One at a time, on one thread.
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

  /// From now on the system refuses new watches, or accepts them again.
  static void RefuseWatches(bool isRefused);
};

/// While it exists, a notification always waits to be read: another one is posted and arrives
/// before the library reads a message, this many in all. One at a time, on one thread.
class BusFlood {
 public:
  BusFlood(std::string name, int most);
  ~BusFlood();
  BusFlood(const BusFlood &) = delete;
  BusFlood &operator=(const BusFlood &) = delete;

  static int Posted();
};

/// Whether the library's timer is on, at any time.
bool IsTimerOn();

}  // namespace trxtest
