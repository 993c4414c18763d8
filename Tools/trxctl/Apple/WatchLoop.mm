#include "WatchLoop.h"

#include <algorithm>
#include <csignal>
#include <thread>

#include <poll.h>
#include <unistd.h>

#import "client/Apple/FoundationStrings.h"

namespace trxctl {
namespace {

using Seconds = std::chrono::duration<double>;

/// How long the run loop is left to itself: neither a signal nor the end of a reader wakes it up.
constexpr Seconds kTurn{0.2};

bool IsReaderGone() {
  pollfd output{STDOUT_FILENO, 0, 0};
  // Not everything that can be written to can be polled, so only what says it in so many words.
  return poll(&output, 1, 0) > 0 && (output.revents & (POLLERR | POLLHUP)) != 0;
}

/// The signals that ask the program to end.
sigset_t EndSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  return signals;
}

bool IsEndAsked() {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, SIGINT) == 1 || sigismember(&pending, SIGTERM) == 1;
}

void TakeTurn(Seconds length) {
  const client::AutoreleasePool pool;
  NSDate *const end = [NSDate dateWithTimeIntervalSinceNow:length.count()];
  const BOOL waited = [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:end];
  // Without anything to wait for the run loop comes back at once.
  if (!waited) std::this_thread::sleep_for(length);
}

/// The run loop of this thread, on which the platform delivers.
class RunLoop : public WatchLoop {
 public:
  RunLoop() {
    const sigset_t signals = EndSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
  }

  Waited Wait(const std::optional<Clock::time_point> &deadline,
              const std::array<int, 2> & /*others*/) override {
    if (IsEndAsked()) return Waited::kForEndSignal;
    if (IsReaderGone()) return Waited::kForReader;
    const Seconds left = deadline ? Seconds(*deadline - Clock::now()) : kTurn;
    if (left <= Seconds(0)) return Waited::kForTime;
    TakeTurn(std::min(left, kTurn));
    return Waited::kForDelivery;
  }
};

}  // namespace

std::unique_ptr<WatchLoop> WatchLoop::Make() { return std::make_unique<RunLoop>(); }

}  // namespace trxctl
