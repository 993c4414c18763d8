#include "Observer.h"

#include "Announcement.h"
#include "Operation.h"

namespace trxbench {
namespace {

constexpr std::uint64_t kPatience = 20'000'000;  // microseconds

}  // namespace

Observer::Observer() : bus_(OpenBus()) {
  Require(sd_bus_match_signal(bus_, nullptr, nullptr, "/com/orvikaudio/Setup",
                              "com.orvikaudio.Setup", "Changed", Arrived, this) >= 0,
          "observe announcements");
}

Observer::~Observer() { sd_bus_close_unref(bus_); }

void Observer::WaitFor(int announcements) {
  while (arrived_ < announcements) {
    const int progress = sd_bus_process(bus_, nullptr);
    Require(progress >= 0, "hear the session bus");
    if (progress == 0) Require(sd_bus_wait(bus_, kPatience) > 0, "deliver an announcement");
  }
  arrived_ -= announcements;
}

int Observer::Arrived(sd_bus_message *, void *self, sd_bus_error *) {
  ++static_cast<Observer *>(self)->arrived_;
  return 0;
}

}  // namespace trxbench
