#include "NotificationDaemon.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "PrivateUser.h"

namespace trxtest {
namespace {

constexpr auto kPatience = std::chrono::seconds(20);
constexpr auto kPause = std::chrono::milliseconds(5);

// The daemon gives its port a name once it can be reached.
bool IsReachable() {
  const std::string names = PortsFolderOfUser();
  return std::filesystem::exists(names) && !std::filesystem::is_empty(names);
}

void WaitUntilReachable() {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!IsReachable()) {
    if (std::chrono::steady_clock::now() > deadline) {
      throw std::runtime_error("the notification daemon does not come up");
    }
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace

NotificationDaemon::NotificationDaemon() : daemon_(fork()) {
  if (daemon_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    execl(GDNC, GDNC, "--no-fork", nullptr);
    _exit(127);
  }
  WaitUntilReachable();
}

NotificationDaemon::~NotificationDaemon() {
  kill(daemon_, SIGTERM);
  waitpid(daemon_, nullptr, 0);
}

}  // namespace trxtest
