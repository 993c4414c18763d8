#include "NotificationDaemon.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "PrivateUser.h"

namespace trxtest {
namespace {

constexpr auto kPatience = std::chrono::seconds(20);
constexpr auto kPause = std::chrono::milliseconds(5);

// Once the daemon can be reached it leaves a file under its name, with two lines: the path of its
// port and the number of its process.
bool IsReachable() {
  std::error_code missing;
  for (const auto &file : std::filesystem::directory_iterator(PortsFolderOfUser(), missing)) {
    std::ifstream lines(file.path());
    std::string port;
    std::string process;
    if (std::getline(lines, port) && std::getline(lines, process) && !lines.eof()) return true;
  }
  return false;
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
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    execl(GDNC, GDNC, "--no-fork", nullptr);
    _exit(127);
  }
  WaitUntilReachable();
}

NotificationDaemon::~NotificationDaemon() {
  kill(daemon_, SIGKILL);
  waitpid(daemon_, nullptr, 0);
}

}  // namespace trxtest
