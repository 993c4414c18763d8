#include "Receiver.h"

#include <algorithm>
#include <atomic>
#include <new>

#include <pthread.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace orv {
namespace {

// The descriptor given to the host is an epoll set. What it watches may change, such as the
// connection to a bus that was restarted; the descriptor does not.
std::atomic<int> watchSet = -1;

std::atomic<Receiver *> receiver = nullptr;

// A forked child shares what its parent watches and must not touch it: it starts with nothing, and
// what it registers itself is its own.
void ForgetParent() {
  close(watchSet.exchange(-1));
  receiver.store(nullptr);
}

constexpr std::uint64_t kNever = UINT64_MAX;

// How long to leave a bus that is away in peace before looking for it again, in microseconds.
constexpr std::uint64_t kBusRetryPause = 1'000'000;

void Watch(int descriptor, std::uint32_t events) {
  epoll_event event = {};
  event.events = events;
  const int set = NotificationDescriptor();
  if (epoll_ctl(set, EPOLL_CTL_MOD, descriptor, &event) != 0) {
    epoll_ctl(set, EPOLL_CTL_ADD, descriptor, &event);
  }
}

}  // namespace

int NotificationDescriptor() noexcept {
  int existing = watchSet.load();
  if (existing >= 0) return existing;
  const int made = epoll_create1(EPOLL_CLOEXEC);
  if (made < 0) return made;
  if (!watchSet.compare_exchange_strong(existing, made)) {
    close(made);  // another thread was faster
    return existing;
  }
  pthread_atfork(nullptr, nullptr, ForgetParent);
  return made;
}

Receiver &Receiver::Instance() {
  if (receiver.load() == nullptr) {
    NotificationDescriptor();
    receiver.store(new Receiver);
  }
  return *receiver.load();
}

bool Receiver::Observes(const std::string &name) const {
  return std::any_of(observations_.begin(), observations_.end(),
                     [&](const Observation &observation) { return observation.name == name; });
}

void Receiver::Add(const std::string &name, NotificationHandler handler) {
  const bool isKnown = Observes(name);
  observations_.push_back({name, handler});
  if (!bus_) {
    Connect();
  } else if (!isKnown) {
    AskFor(name);
  }
  // The connection may have died with its bus since it was last used; then there may be a new bus.
  if (!Process(MonotonicNow() + kBusPatience)) {
    Connect();
    Process(MonotonicNow() + kBusPatience);
  }
  WatchEverything();
}

void Receiver::Dispatch() {
  if (!bus_ && !observations_.empty()) Connect();
  Process(MonotonicNow());
  for (std::size_t left = arrived_.size(); left > 0 && !arrived_.empty(); --left) DeliverFirst();
  WatchEverything();
}

void Receiver::Connect() {
  bus_ = ConnectToBus();
  if (!bus_) return;
  sd_bus_add_filter(bus_.get(), nullptr, Arrived, this);
  for (auto it = observations_.begin(); it != observations_.end(); ++it) {
    const bool isAskedFor = std::any_of(observations_.begin(), it, [&](const Observation &earlier) {
      return earlier.name == it->name;
    });
    if (!isAskedFor) AskFor(it->name);
  }
}

// The bus answers later, when it has time: what was asked for counts even if nobody waits for the
// answer.
void Receiver::AskFor(const std::string &name) {
  const int result = sd_bus_call_method_async(
      bus_.get(), nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
      "AddMatch", Answered, this, "s", MatchRule(name).c_str());
  if (result >= 0) ++unanswered_;
}

void Receiver::Disconnect() {
  if (watchedBus_ >= 0) epoll_ctl(NotificationDescriptor(), EPOLL_CTL_DEL, watchedBus_, nullptr);
  watchedBus_ = -1;
  unanswered_ = 0;
  bus_.reset();
}

// Called by sd-bus, a C library: what cannot be kept for want of memory is lost here.
int Receiver::Arrived(sd_bus_message *message, void *self, sd_bus_error * /*error*/) try {
  if (auto notification = ReadNotification(message)) {
    static_cast<Receiver *>(self)->arrived_.push_back(std::move(*notification));
  }
  return 0;
} catch (const std::bad_alloc &) {
  return 0;
}

int Receiver::Answered(sd_bus_message * /*answer*/, void *self, sd_bus_error * /*error*/) {
  --static_cast<Receiver *>(self)->unanswered_;
  return 0;
}

// Takes in all that has arrived; until the deadline also waits for the bus to answer. Returns
// whether the connection held.
bool Receiver::Process(std::uint64_t deadline) {
  while (bus_) {
    const int progress = sd_bus_process(bus_.get(), nullptr);
    if (progress < 0) {
      Disconnect();
      return false;
    }
    if (progress > 0) continue;
    const std::uint64_t now = MonotonicNow();
    if (unanswered_ == 0 || now >= deadline) return true;
    sd_bus_wait(bus_.get(), deadline - now);
  }
  return true;
}

// A handler may add observations and may dispatch: nothing here refers to the containers while it
// runs. It is called for the observations that there were when the notification's turn came.
void Receiver::DeliverFirst() {
  const Notification notification = std::move(arrived_.front());
  arrived_.pop_front();
  const std::size_t count = observations_.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (observations_[i].name == notification.name) observations_[i].handler(notification);
  }
}

void Receiver::WatchEverything() {
  if (backlog_ < 0) backlog_ = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
  if (timer_ < 0) timer_ = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
  Watch(backlog_, EPOLLIN);
  Watch(timer_, EPOLLIN);

  eventfd_t count = 0;
  eventfd_read(backlog_, &count);
  if (!arrived_.empty()) eventfd_write(backlog_, 1);
  WatchBus();
}

void Receiver::WatchBus() {
  if (!bus_) {
    SetTimer(observations_.empty() ? kNever : MonotonicNow() + kBusRetryPause);
    return;
  }
  watchedBus_ = sd_bus_get_fd(bus_.get());
  const int events = sd_bus_get_events(bus_.get());
  if (watchedBus_ >= 0 && events >= 0) Watch(watchedBus_, static_cast<std::uint32_t>(events));
  std::uint64_t timeLimit = kNever;
  sd_bus_get_timeout(bus_.get(), &timeLimit);
  SetTimer(timeLimit);
}

// Setting the timer also takes back that it is readable.
void Receiver::SetTimer(std::uint64_t when) {
  itimerspec setting = {};
  if (when != kNever) {
    const std::uint64_t soonest = std::max<std::uint64_t>(when, 1);  // 0 would switch the timer off
    setting.it_value.tv_sec = static_cast<time_t>(soonest / 1'000'000);
    setting.it_value.tv_nsec = static_cast<long>(soonest % 1'000'000 * 1'000);
  }
  timerfd_settime(timer_, TFD_TIMER_ABSTIME, &setting, nullptr);
}

}  // namespace orv
