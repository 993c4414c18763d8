#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "Output.h"
#include "client/Mixers.h"
#include "client/Requests.h"

namespace trxctl {

/// Tells a person at a terminal, after a second of silence, what is waited for. It does so while it
/// lives, for the requests of the thread that made it; where nobody watches it does nothing.
class Progress : public client::RequestListener {
 public:
  explicit Progress(const Output &output);
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;
  ~Progress() override;

  void Ended(const client::Request &request) noexcept override;

 private:
  using Clock = std::chrono::steady_clock;

  void Tell();
  std::string Line(std::chrono::seconds elapsed) const;

  const Output &output_;
  std::vector<client::Mixer> mixers_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool isOver_ = false;
  std::size_t ended_ = 0;
  Clock::time_point since_ = Clock::now();
  std::thread thread_;
};

}  // namespace trxctl
