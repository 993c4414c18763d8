#include "Sender.h"

#include <algorithm>

namespace setup {

Sender::Sender() : thread_([this] { RunJobs(); }) {}

Sender::~Sender() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void Sender::Enqueue(const std::string &key, std::function<void()> run) {
  {
    const std::lock_guard lock(mutex_);
    const auto former = std::find_if(waiting_.begin(), waiting_.end(), [&key](const Job &job) {
      return !key.empty() && job.key == key;
    });
    // It takes the place of the former one: whoever asks again and again must not wait for ever.
    if (former != waiting_.end()) {
      former->run = std::move(run);
    } else {
      waiting_.push_back({key, std::move(run)});
    }
  }
  changed_.notify_all();
}

bool Sender::WaitUntilDone(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, patience, [this] { return waiting_.empty() && !isRunning_; });
}

void Sender::RunJobs() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
    if (isEnding_) return;
    const Job job = std::move(waiting_.front());
    waiting_.pop_front();
    isRunning_ = true;
    lock.unlock();
    job.run();
    lock.lock();
    isRunning_ = false;
    changed_.notify_all();
  }
}

}  // namespace setup
