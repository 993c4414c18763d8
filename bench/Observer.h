// The other end of the announcements.
#pragma once

#include <systemd/sd-bus.h>

namespace trxbench {

/// Observes the announcements of this process and of all others, on a connection of its own.
class Observer {
 public:
  Observer();
  Observer(const Observer &) = delete;
  Observer &operator=(const Observer &) = delete;
  ~Observer();

  /// Waits until this many more have arrived: then the bus has nothing left to do that would hold
  /// up the next ones. Throws when they do not come.
  void WaitFor(int announcements);

 private:
  static int Arrived(sd_bus_message *, void *self, sd_bus_error *);

  sd_bus *bus_;
  int arrived_ = 0;
};

}  // namespace trxbench
