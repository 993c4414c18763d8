#include "SessionBus.h"

#include <systemd/sd-bus.h>

namespace client {

std::optional<bool> HasSessionBus() {
  sd_bus *bus = nullptr;
  const bool reached = sd_bus_open_user(&bus) >= 0;
  sd_bus_close_unref(bus);
  return reached;
}

}  // namespace client
