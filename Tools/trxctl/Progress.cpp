#include "Progress.h"

#include <algorithm>
#include <csignal>

#include "Words.h"

namespace trxctl {
namespace {

constexpr std::chrono::seconds kSilence{1};

/// How long a mixer is given for a request, and the session bus for its answer.
constexpr std::chrono::seconds kPatience{5};

/// Starts a thread that leaves all signals to the others.
template <typename Body>
std::thread StartWithoutSignals(const Body &body) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, &before);
  std::thread thread(body);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return thread;
}

}  // namespace

Progress::Progress(const Output &output) : output_(output) {
  if (!output.IsSeen()) return;
  mixers_ = client::ConnectedMixers();
  client::SetRequestListener(this);
  thread_ = StartWithoutSignals([this] { Tell(); });
}

Progress::~Progress() {
  if (!thread_.joinable()) return;
  client::SetRequestListener(nullptr);
  {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void Progress::Ended(const client::Request & /*request*/) noexcept {
  {
    const std::lock_guard lock(mutex_);
    ++ended_;
    since_ = Clock::now();
  }
  changed_.notify_one();
}

void Progress::Tell() {
  bool isShown = false;
  std::unique_lock lock(mutex_);
  auto next = since_ + kSilence;
  while (!isOver_) {
    const std::size_t before = ended_;
    changed_.wait_until(lock, next, [&] { return isOver_ || ended_ != before; });
    if (isOver_) break;
    if (ended_ == before) {
      output_.PrintPassing(
          Line(std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - since_)));
      isShown = true;
    }
    next = std::max(Clock::now(), since_) + kSilence;
  }
  if (isShown) output_.PrintPassing("");
}

// Each mixer gets the first request in its turn; later it is not known whose turn it is.
std::string Progress::Line(std::chrono::seconds elapsed) const {
  const std::string what = ended_ < mixers_.size() ? Describe(mixers_[ended_])
                           : mixers_.empty()       ? "the session bus"
                                                   : "an answer";
  const auto left = std::max(kPatience - elapsed, std::chrono::seconds(0));
  return "Waiting for " + what + ", for " + std::to_string(left.count()) + " s at most";
}

}  // namespace trxctl
