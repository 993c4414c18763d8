// Receives notifications: one connection for each process, used on the one thread that registers
// and dispatches.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include "NotificationCentre.h"
#include "SessionBus.h"

namespace orv {

/// The descriptor that is readable when something is left to deliver; the same for the life of the
/// process, -1 when none could be made. Any thread.
int NotificationDescriptor() noexcept;

/// The observations of this process and the notifications that have arrived for them. The receiving
/// thread only.
class Receiver {
 public:
  /// The one receiver; made at first use, never released.
  static Receiver &Instance();

  void Add(const std::string &name, NotificationHandler handler);

  /// Delivers what has arrived so far. Never blocks; may be called from a handler.
  void Dispatch();

  /// Only closes the connection's descriptor: for a forked child, which has a copy of it.
  void CloseConnection() const;

 private:
  struct Observation {
    std::string name;
    NotificationHandler handler;
    Receiver *owner;
    bool isRefused = false;  // by the bus; only in the first observation of a name
  };

  class Turn;

  static int Arrived(sd_bus_message *message, void *self, sd_bus_error *error);
  static int Answered(sd_bus_message *answer, void *observation, sd_bus_error *error);

  bool Observes(const std::string &name) const;
  void Connect();
  void AskFor(Observation &observation);
  void AskAgain();
  void Disconnect();
  bool Process(std::uint64_t patience);
  void DeliverFirst();

  void WatchEverything();
  void ShowBacklog();
  std::uint64_t WatchBus(int set);
  std::uint64_t NextLookForABus() const;
  std::uint64_t NextQuestion() const;

  std::deque<Observation> observations_;  // never move: the bus's answers refer to them
  std::deque<Notification> arrived_;
  Bus bus_;
  int unanswered_ = 0;  // requests to the bus without an answer
  std::uint64_t patience_ = kBusPatience;
  std::uint64_t askAgainAt_ = 0;  // for requests that the bus has refused
  int watchedBus_ = -1;
};

}  // namespace orv
