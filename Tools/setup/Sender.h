#pragma once

#include <QMetaObject>
#include <QObject>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

namespace setup {

/// Runs what may take long on a thread of its own, one job after the other: a mixer may keep a
/// request waiting for five seconds, a disk a write. The thread lives as long as the sender, since
/// the library keeps a connection to the session bus for each thread that sends.
class Sender {
 public:
  Sender();
  Sender(const Sender &) = delete;
  Sender &operator=(const Sender &) = delete;
  /// Ends after the job that is running; those that wait are dropped.
  ~Sender();

  /// Runs a job after those that wait, then hands its result to a function on the receiver's
  /// thread. It takes the place of a job that still waits under the same key; without a key of
  /// none. The receiver must outlive the sender.
  template <typename Work, typename Done>
  void Run(const std::string &key, QObject *receiver, Work work, Done done) {
    Enqueue(key, [receiver, work = std::move(work), done = std::move(done)] {
      QMetaObject::invokeMethod(
          receiver, [done, result = work()] { done(result); }, Qt::QueuedConnection);
    });
  }

  /// Whether everything has been done, after waiting for it.
  bool WaitUntilDone(std::chrono::milliseconds patience);

 private:
  struct Job {
    std::string key;
    std::function<void()> run;
  };

  void Enqueue(const std::string &key, std::function<void()> run);
  void RunJobs();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Job> waiting_;
  bool isRunning_ = false;
  bool isEnding_ = false;
  std::thread thread_;
};

}  // namespace setup
