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
    if (!key.empty()) std::erase_if(waiting_, [&key](const Job &job) { return job.key == key; });
    waiting_.push_back({key, std::move(run)});
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
