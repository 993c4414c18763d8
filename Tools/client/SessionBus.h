#pragma once

#include <memory>

namespace client {

/// Whether this process reaches the session bus. Without one nothing is announced; the library
/// itself stays silent about it.
enum class SessionBusState {
  kReached,
  kMissing,    ///< There is none.
  kNoAnswer,   ///< It takes connections, and does not answer.
  kNotNeeded,  ///< On this platform the system itself carries announcements.
};

/// Tries to reach the session bus, for five seconds at most, as long as the library does.
SessionBusState ReachSessionBus();

/// Notices when the session bus goes away or comes.
class SessionBusWatch {
 public:
  SessionBusWatch();
  SessionBusWatch(const SessionBusWatch &) = delete;
  SessionBusWatch &operator=(const SessionBusWatch &) = delete;
  ~SessionBusWatch();

  /// Readable when State() has to be asked again; -1 while the bus is not reached.
  int Descriptor() const;

  /// How it is now; tries again when it was not reached before.
  SessionBusState State();

 private:
  /// What the platform needs for it.
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

}  // namespace client
