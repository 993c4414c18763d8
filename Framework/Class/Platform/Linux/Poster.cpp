// Each thread that posts has its own connection, because a connection belongs to one thread and the
// library takes no lock. The thread's first post makes it; the end of the thread closes it.
#include <cerrno>

#include "NotificationCentre.h"
#include "OutOfMemory.h"
#include "SessionBus.h"

namespace orv {
namespace {

class Poster {
 public:
  Poster() = default;
  Poster(const Poster &) = delete;
  Poster &operator=(const Poster &) = delete;
  ~Poster();

  // The bus and its connection may have ended since the last post. A second attempt then finds
  // the new bus.
  void Post(const std::string &name, const UserInfo &userInfo) {
    const bool isFresh = bus_ == nullptr;
    if (!Attempt(name, userInfo) && !isFresh) Attempt(name, userInfo);
  }

 private:
  bool Attempt(const std::string &name, const UserInfo &userInfo) {
    if (!bus_) Connect();
    if (!bus_) return false;
    if (SendNotification(bus_.get(), name, userInfo) >= 0 && Flush() >= 0) return true;
    bus_.reset();
    return false;
  }

  void Connect() {
    bus_ = ConnectToBus();
    patience_ = kBusPatience;
  }

  bool IsOut() const {
    std::uint64_t queued = 0;
    return sd_bus_get_n_queued_write(bus_.get(), &queued) >= 0 && queued == 0 &&
           sd_bus_is_ready(bus_.get()) > 0;
  }

  // Waits until everything has left the process, but no longer than the bus may take to answer. The
  // rest then leaves with the next post, which does not wait again for a bus that hangs. While it
  // waits, it also reads what the bus sends. Usually everything leaves at once and nothing is read.
  // Returns a negative errno value when the connection broke.
  int Flush() {
    const std::uint64_t deadline = MonotonicNow() + patience_;
    while (!IsOut()) {
      const int progress = sd_bus_process(bus_.get(), nullptr);
      if (progress < 0) return progress;
      if (progress > 0 || IsOut()) continue;
      const std::uint64_t now = MonotonicNow();
      if (now >= deadline) {
        patience_ = 0;
        return 0;
      }
      sd_bus_wait(bus_.get(), deadline - now);
    }
    patience_ = kBusPatience;
    return 0;
  }

  Bus bus_;
  std::uint64_t patience_ = kBusPatience;
};

thread_local Poster poster;

// The host may post at exit, when the thread's connection has already been closed.
thread_local bool isPosterGone = false;

Poster::~Poster() { isPosterGone = true; }

}  // namespace

// The bus does not suspend receivers, so both forms of delivery are the same.
void PostNotification(const std::string &name, const UserInfo &userInfo,
                      Delivery /*delivery*/) noexcept {
  WhileMemoryLasts([&] {
    if (isPosterGone) {
      Poster().Post(name, userInfo);
    } else {
      poster.Post(name, userInfo);
    }
  });
}

}  // namespace orv
