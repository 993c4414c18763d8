#include "WatchLoop.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstring>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "ExitCode.h"

namespace trxctl {
namespace {

/// A descriptor that is readable once the user or the system asks the program to end.
class EndSignals {
 public:
  EndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC);
  }
  ~EndSignals() { close(descriptor_); }
  EndSignals(const EndSignals &) = delete;
  EndSignals &operator=(const EndSignals &) = delete;

  int Descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

/// The time left, as poll takes it.
int MillisecondsUntil(const std::optional<WatchLoop::Clock::time_point> &deadline) {
  if (!deadline) return -1;
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(*deadline - WatchLoop::Clock::now()).count();
  return static_cast<int>(std::clamp<long long>(left, 0, INT_MAX));
}

/// The loop that watches the library's descriptor.
class DescriptorLoop : public WatchLoop {
 public:
  DescriptorLoop() {
    ORV_GetNotificationDescriptor(&descriptor_);
    if (descriptor_ < 0 || signals_.Descriptor() < 0) {
      throw Failure{ExitCode::kFailed, "the system gives this process no more descriptors",
                    "close other programs, or raise the limit with ulimit -n"};
    }
  }

  Waited Wait(const std::optional<Clock::time_point> &deadline,
              const std::array<int, 2> &others) override {
    for (;;) {
      std::array<pollfd, 5> wait{{{descriptor_, POLLIN, 0},
                                  {signals_.Descriptor(), POLLIN, 0},
                                  // No events: wakes up only when the reader of our output is gone.
                                  {STDOUT_FILENO, 0, 0},
                                  {others[0], POLLIN, 0},
                                  {others[1], POLLIN, 0}}};
      const int ready = poll(wait.data(), wait.size(), MillisecondsUntil(deadline));
      if (ready < 0 && errno != EINTR) ThrowCannotWait(errno);
      if (wait[1].revents != 0) return Waited::kForEndSignal;
      if (wait[2].revents != 0) return Waited::kForReader;
      if (wait[0].revents != 0) {
        ORV_DispatchNotifications();
        return Waited::kForDelivery;
      }
      if (wait[3].revents != 0 || wait[4].revents != 0) return Waited::kForOthers;
      if (ready == 0 && MillisecondsUntil(deadline) == 0) return Waited::kForTime;
    }
  }

 private:
  [[noreturn]] static void ThrowCannotWait(int reason) {
    throw Failure{ExitCode::kFailed, std::string("cannot wait: ") + std::strerror(reason),
                  "try again"};
  }

  const EndSignals signals_;
  std::int32_t descriptor_ = -1;
};

}  // namespace

std::unique_ptr<WatchLoop> WatchLoop::Make() { return std::make_unique<DescriptorLoop>(); }

}  // namespace trxctl
