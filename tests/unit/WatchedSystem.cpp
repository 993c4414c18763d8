#include "WatchedSystem.h"

#include <cerrno>
#include <utility>

#include <poll.h>
#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <systemd/sd-bus.h>
#include <time.h>

#include "NotificationCentre.h"

// The linker sends the library's calls here and these calls to the system (--wrap).
extern "C" {
int __real_clock_gettime(clockid_t clock, timespec *now);
int __real_epoll_ctl(int set, int operation, int descriptor, epoll_event *event);
int __real_sd_bus_process(sd_bus *bus, sd_bus_message **message);
int __real_sd_bus_wait(sd_bus *bus, std::uint64_t limit);
int __real_timerfd_settime(int timer, int flags, const itimerspec *setting, itimerspec *before);

int __wrap_clock_gettime(clockid_t clock, timespec *now);
int __wrap_epoll_ctl(int set, int operation, int descriptor, epoll_event *event);
int __wrap_sd_bus_process(sd_bus *bus, sd_bus_message **message);
int __wrap_sd_bus_wait(sd_bus *bus, std::uint64_t limit);
int __wrap_timerfd_settime(int timer, int flags, const itimerspec *setting, itimerspec *before);
}

namespace trxtest {
namespace {

struct State {
  std::uint64_t now;  // microseconds
  std::vector<std::uint64_t> waits;
  bool refusesWatches = false;
};

std::optional<State> watched;

struct Flood {
  std::string name;
  int left;
  int posted = 0;
  bool isPosting = false;  // the library reads messages for this, too
};

std::optional<Flood> flood;

void PostOneOfFlood() {
  flood->isPosting = true;
  --flood->left;
  ++flood->posted;
  orv::PostNotification(flood->name, {}, orv::Delivery::kPlain);
  flood->isPosting = false;
}

// Posts one more, and waits until the connection has something to read.
void GoOnWithFlood(sd_bus *bus) {
  if (!flood || flood->isPosting || flood->left == 0) return;
  PostOneOfFlood();
  pollfd connection = {sd_bus_get_fd(bus), POLLIN, 0};
  poll(&connection, 1, 60'000);
}

std::uint64_t timerRunsOutAt = 0;  // 0: it is off

std::uint64_t Microseconds(const timespec &time) {
  return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000 +
         static_cast<std::uint64_t>(time.tv_nsec) / 1'000;
}

}  // namespace

WatchedSystem::WatchedSystem() {
  timespec now = {};
  __real_clock_gettime(CLOCK_MONOTONIC, &now);
  watched.emplace().now = Microseconds(now);
}

WatchedSystem::~WatchedSystem() { watched.reset(); }

std::vector<std::uint64_t> WatchedSystem::TakeWaits() { return std::exchange(watched->waits, {}); }

std::optional<std::uint64_t> WatchedSystem::TimerRunsOutIn() {
  if (!IsTimerOn()) return std::nullopt;
  return timerRunsOutAt - watched->now;
}

void WatchedSystem::RefuseWatches(bool isRefused) { watched->refusesWatches = isRefused; }

BusFlood::BusFlood(std::string name, int most) {
  flood = {std::move(name), most};
  PostOneOfFlood();
}

BusFlood::~BusFlood() { flood.reset(); }

int BusFlood::Posted() { return flood->posted; }

bool IsTimerOn() { return timerRunsOutAt != 0; }

}  // namespace trxtest

using trxtest::watched;

int __wrap_clock_gettime(clockid_t clock, timespec *now) {
  if (!watched || clock != CLOCK_MONOTONIC) return __real_clock_gettime(clock, now);
  now->tv_sec = static_cast<time_t>(watched->now / 1'000'000);
  now->tv_nsec = static_cast<long>(watched->now % 1'000'000 * 1'000);
  return 0;
}

int __wrap_epoll_ctl(int set, int operation, int descriptor, epoll_event *event) {
  if (watched && watched->refusesWatches && operation != EPOLL_CTL_DEL) {
    errno = ENOMEM;
    return -1;
  }
  return __real_epoll_ctl(set, operation, descriptor, event);
}

int __wrap_sd_bus_process(sd_bus *bus, sd_bus_message **message) {
  trxtest::GoOnWithFlood(bus);
  return __real_sd_bus_process(bus, message);
}

int __wrap_sd_bus_wait(sd_bus *bus, std::uint64_t limit) {
  if (!watched) return __real_sd_bus_wait(bus, limit);
  watched->waits.push_back(limit);
  watched->now += limit;
  return 0;
}

int __wrap_timerfd_settime(int timer, int flags, const itimerspec *setting, itimerspec *before) {
  trxtest::timerRunsOutAt = trxtest::Microseconds(setting->it_value);
  return __real_timerfd_settime(timer, flags, setting, before);
}
