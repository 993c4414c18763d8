// Posting: each thread that posts has a connection of its own, because a connection belongs to one
// thread and the library takes no lock. It is made by the thread's first post and closed when the
// thread ends.
#include <cerrno>
#include <new>

#include "NotificationCentre.h"
#include "SessionBus.h"

namespace orv {
namespace {

// Waits until all that was sent has left the process, but no longer than the bus may take to
// answer; what is left then goes out with the next post. Returns a negative errno value when the
// connection broke.
int Flush(sd_bus *bus) {
  const std::uint64_t deadline = MonotonicNow() + kBusPatience;
  for (;;) {
    std::uint64_t queued = 0;
    const int result = sd_bus_get_n_queued_write(bus, &queued);
    if (result < 0 || (queued == 0 && sd_bus_is_ready(bus) > 0)) return result;
    const int progress = sd_bus_process(bus, nullptr);
    if (progress < 0) return progress;
    const std::uint64_t now = MonotonicNow();
    if (now >= deadline) return 0;
    if (progress == 0) sd_bus_wait(bus, deadline - now);
  }
}

class Poster {
 public:
  // A connection may have died with its bus since the last post; then a second attempt finds the
  // new bus.
  void Post(const std::string &name, const UserInfo &userInfo) {
    const bool isFresh = bus_ == nullptr;
    if (!Attempt(name, userInfo) && !isFresh) Attempt(name, userInfo);
  }

 private:
  bool Attempt(const std::string &name, const UserInfo &userInfo) {
    if (!bus_) bus_ = ConnectToBus();
    if (!bus_) return false;
    if (SendNotification(bus_.get(), name, userInfo) >= 0 && Flush(bus_.get()) >= 0) return true;
    bus_.reset();
    return false;
  }

  Bus bus_;
};

thread_local Poster poster;

}  // namespace

// The bus suspends no receiver, so both forms of delivery are the same to it.
void PostNotification(const std::string &name, const UserInfo &userInfo,
                      Delivery /*delivery*/) noexcept try {
  poster.Post(name, userInfo);
} catch (const std::bad_alloc &) {
  return;
}

}  // namespace orv
