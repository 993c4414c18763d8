// The receiver of the announcements.
#pragma once

#include <systemd/sd-bus.h>

namespace trxbench {

/// Observes the announcements of all processes, on its own connection.
class Observer {
 public:
  Observer();
  Observer(const Observer &) = delete;
  Observer &operator=(const Observer &) = delete;
  ~Observer();

  /// Waits until this many more have arrived: then the bus is idle and does not delay the next
  /// ones. Throws when they do not arrive.
  void WaitFor(int announcements);

 private:
  static int Arrived(sd_bus_message *, void *self, sd_bus_error *);

  sd_bus *bus_;
  int arrived_ = 0;
};

}  // namespace trxbench
