#include "Receiver.h"

#include <algorithm>
#include <atomic>

#include <pthread.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include "File.h"
#include "OutOfMemory.h"

namespace orv {
namespace {

// What the host's event loop watches. The host's descriptor is the epoll set. Its members may
// change, for example when the bus was restarted; the descriptor does not.
struct WatchSet {
  int epoll;
  int timer;    // readable when the library needs a turn, even if nothing has arrived
  int backlog;  // readable while something that has arrived is not yet delivered
};

std::atomic<WatchSet *> watchSet = nullptr;

std::atomic<Receiver *> receiver = nullptr;

void Close(const WatchSet *set) {
  for (const int descriptor : {set->epoll, set->timer, set->backlog}) {
    if (descriptor >= 0) close(descriptor);
  }
  delete set;
}

bool Watch(int set, int descriptor, std::uint32_t events) {
  epoll_event event = {};
  event.events = events;
  return epoll_ctl(set, EPOLL_CTL_MOD, descriptor, &event) == 0 ||
         epoll_ctl(set, EPOLL_CTL_ADD, descriptor, &event) == 0;
}

// All or nothing: a descriptor that never becomes readable is useless to a host.
WatchSet *MakeWatchSet() {
  auto *const set = new (std::nothrow)
      WatchSet{AwayFromStandardStreams(epoll_create1(EPOLL_CLOEXEC)),
               AwayFromStandardStreams(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
               AwayFromStandardStreams(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))};
  if (set == nullptr) return nullptr;
  if (!Watch(set->epoll, set->timer, EPOLLIN) || !Watch(set->epoll, set->backlog, EPOLLIN)) {
    Close(set);
    return nullptr;
  }
  return set;
}

// A forked child shares its parent's descriptors and must not use them: it starts without any, and
// its own registrations get new ones.
void ForgetParent() {
  if (const Receiver *const parents = receiver.exchange(nullptr)) parents->CloseConnection();
  if (const WatchSet *const set = watchSet.exchange(nullptr)) Close(set);
}

// The one watch set, made at first use; null when it cannot be made.
WatchSet *TheWatchSet() {
  WatchSet *existing = watchSet.load();
  if (existing != nullptr) return existing;
  WatchSet *const made = MakeWatchSet();
  if (made == nullptr) return nullptr;
  if (!watchSet.compare_exchange_strong(existing, made)) {
    Close(made);  // another thread made it first
    return existing;
  }
  pthread_atfork(nullptr, nullptr, ForgetParent);
  // Registrations made before the set existed are not watched yet: a dispatch does that.
  if (receiver.load() != nullptr) eventfd_write(made->backlog, 1);
  return made;
}

// A connection holds fewer messages, so a turn usually reads all. A program that posts without a
// pause must not hold the host: what is left is for the next turn.
constexpr int kMostMessagesOfATurn = 1'024;

constexpr std::uint64_t kNever = UINT64_MAX;

// How long to wait before looking again for a missing bus, or asking again after a refusal, in
// microseconds.
constexpr std::uint64_t kBusRetryPause = 1'000'000;

// Setting the timer also makes it unreadable.
void SetTimer(int timer, std::uint64_t when) {
  itimerspec setting = {};
  if (when != kNever) {
    const std::uint64_t soonest = std::max<std::uint64_t>(when, 1);  // 0 would disarm the timer
    setting.it_value.tv_sec = static_cast<time_t>(soonest / 1'000'000);
    setting.it_value.tv_nsec = static_cast<long>(soonest % 1'000'000 * 1'000);
  }
  timerfd_settime(timer, TFD_TIMER_ABSTIME, &setting, nullptr);
}

}  // namespace

int NotificationDescriptor() noexcept {
  const WatchSet *const set = TheWatchSet();
  return set != nullptr ? set->epoll : -1;
}

Receiver &Receiver::Instance() {
  if (receiver.load() == nullptr) {
    receiver.store(new Receiver);
    pthread_atfork(nullptr, nullptr, ForgetParent);
  }
  return *receiver.load();
}

bool Receiver::Observes(const std::string &name) const {
  return std::any_of(observations_.begin(), observations_.end(),
                     [&](const Observation &observation) { return observation.name == name; });
}

// However a turn of the receiver ends, makes sure that the host is woken for what is left.
class Receiver::Turn {
 public:
  explicit Turn(Receiver &owner) : owner_(owner) {}
  Turn(const Turn &) = delete;
  Turn &operator=(const Turn &) = delete;
  ~Turn() { owner_.WatchEverything(); }

 private:
  Receiver &owner_;
};

void Receiver::Add(const std::string &name, NotificationHandler handler) {
  const Turn turn(*this);
  const bool isKnown = Observes(name);
  observations_.push_back({name, handler, this});
  if (bus_ && !isKnown) AskFor(observations_.back());
  if (!bus_) Connect();
  // The bus and its connection may have ended since the last use; then there may be a new bus.
  if (!Process(patience_)) {
    Connect();
    Process(patience_);
  }
  if (unanswered_ > 0) patience_ = 0;  // wait only once for a bus that hangs
}

void Receiver::Dispatch() {
  const Turn turn(*this);
  if (!bus_ && !observations_.empty()) Connect();
  if (MonotonicNow() >= NextQuestion()) AskAgain();
  Process(0);
  // A handler that leaves by longjmp never returns here.
  if (!arrived_.empty()) WatchEverything();
  std::size_t left = arrived_.size();
  while (left-- > 0 && !arrived_.empty() && receiver.load() == this) DeliverFirst();
}

void Receiver::Connect() {
  bus_ = ConnectToBus();
  if (!bus_) return;
  patience_ = kBusPatience;
  sd_bus_add_filter(bus_.get(), nullptr, Arrived, this);
  for (auto it = observations_.begin(); it != observations_.end(); ++it) {
    const bool isAskedFor = std::any_of(observations_.begin(), it, [&](const Observation &earlier) {
      return earlier.name == it->name;
    });
    if (!isAskedFor) AskFor(*it);
    if (!bus_) return;
  }
}

void Receiver::AskAgain() {
  for (Observation &observation : observations_) {
    if (bus_ && observation.isRefused) AskFor(observation);
  }
}

// The bus may answer later: a request is valid even if nothing waits for the answer. A request that
// cannot be made, without memory or without a bus, is made on the next connection with all others.
void Receiver::AskFor(Observation &observation) {
  observation.isRefused = false;
  const bool isAsked = UnlessOutOfMemory(false, [&] {
    return sd_bus_call_method_async(bus_.get(), nullptr, "org.freedesktop.DBus",
                                    "/org/freedesktop/DBus", "org.freedesktop.DBus", "AddMatch",
                                    Answered, &observation, "s",
                                    MatchRule(observation.name).c_str()) >= 0;
  });
  if (isAsked) {
    ++unanswered_;
  } else {
    Disconnect();
  }
}

void Receiver::CloseConnection() const {
  if (watchedBus_ >= 0) close(watchedBus_);
}

void Receiver::Disconnect() {
  if (watchedBus_ >= 0) epoll_ctl(NotificationDescriptor(), EPOLL_CTL_DEL, watchedBus_, nullptr);
  watchedBus_ = -1;
  unanswered_ = 0;
  bus_.reset();
}

// Called by sd-bus, a C library: no exception may leave it. A notification is lost when there is no
// memory for it.
int Receiver::Arrived(sd_bus_message *message, void *self, sd_bus_error * /*error*/) {
  return UnlessOutOfMemory(0, [&] {
    if (auto notification = ReadNotification(message)) {
      static_cast<Receiver *>(self)->arrived_.push_back(std::move(*notification));
    }
    return 0;
  });
}

// A bus that has not answered in time has not refused: it will answer later.
int Receiver::Answered(sd_bus_message *answer, void *observation, sd_bus_error * /*error*/) {
  auto &asked = *static_cast<Observation *>(observation);
  if (--asked.owner->unanswered_ == 0) asked.owner->patience_ = kBusPatience;
  asked.isRefused = sd_bus_message_is_method_error(answer, nullptr) > 0 &&
                    sd_bus_message_is_method_error(answer, SD_BUS_ERROR_NO_REPLY) <= 0;
  if (asked.isRefused) asked.owner->askAgainAt_ = MonotonicNow() + kBusRetryPause;
  return 0;
}

// Reads what has arrived, a turn's messages at most; waits this many microseconds for the bus's
// answers. Returns whether the connection still works.
bool Receiver::Process(std::uint64_t patience) {
  const std::uint64_t deadline = MonotonicNow() + patience;
  for (int read = 0; bus_;) {
    const int progress = sd_bus_process(bus_.get(), nullptr);
    if (progress < 0) {
      Disconnect();
      return false;
    }
    if (progress > 0 && ++read < kMostMessagesOfATurn) continue;
    const std::uint64_t now = MonotonicNow();
    if (unanswered_ == 0 || now >= deadline) return true;
    if (progress == 0) sd_bus_wait(bus_.get(), deadline - now);
  }
  return true;
}

// A handler may add observations and may dispatch, so nothing here refers to the containers while
// it runs. It is called for the observations that existed when the notification's turn came.
void Receiver::DeliverFirst() {
  const Notification notification = std::move(arrived_.front());
  arrived_.pop_front();
  if (arrived_.empty()) ShowBacklog();
  const std::size_t count = observations_.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (observations_[i].name == notification.name) observations_[i].handler(notification);
  }
}

void Receiver::ShowBacklog() {
  const WatchSet *const set = TheWatchSet();
  if (set == nullptr) return;
  eventfd_t count = 0;
  eventfd_read(set->backlog, &count);
  if (!arrived_.empty()) eventfd_write(set->backlog, 1);
}

// In a child that a handler has forked, nothing is left to do: the receiver is its parent's.
void Receiver::WatchEverything() {
  if (receiver.load() != this) return;
  const WatchSet *const set = TheWatchSet();
  if (set == nullptr) return;
  ShowBacklog();
  SetTimer(set->timer, bus_ ? std::min(WatchBus(set->epoll), NextQuestion()) : NextLookForABus());
}

// Returns when the connection needs a turn even if nothing arrives. One that cannot be watched now,
// without memory, needs one soon.
std::uint64_t Receiver::WatchBus(int set) {
  watchedBus_ = sd_bus_get_fd(bus_.get());
  const int events = sd_bus_get_events(bus_.get());
  const bool isWatched = watchedBus_ >= 0 && events >= 0 &&
                         Watch(set, watchedBus_, static_cast<std::uint32_t>(events));
  std::uint64_t timeLimit = kNever;
  sd_bus_get_timeout(bus_.get(), &timeLimit);
  return isWatched ? timeLimit : std::min(timeLimit, MonotonicNow() + kBusRetryPause);
}

std::uint64_t Receiver::NextLookForABus() const {
  return observations_.empty() ? kNever : MonotonicNow() + kBusRetryPause;
}

std::uint64_t Receiver::NextQuestion() const {
  const bool isAny =
      std::any_of(observations_.begin(), observations_.end(),
                  [](const Observation &observation) { return observation.isRefused; });
  return isAny ? askAgainAt_ : kNever;
}

}  // namespace orv
