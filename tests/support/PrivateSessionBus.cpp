#include "PrivateSessionBus.h"

#include <array>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

constexpr int kPatienceMilliseconds = 60'000;

// The daemon prints its address when it is ready.
void WaitForAddress(int descriptor) {
  pollfd answer = {descriptor, POLLIN, 0};
  char first = '\0';
  if (poll(&answer, 1, kPatienceMilliseconds) != 1 || read(descriptor, &first, 1) != 1) {
    throw std::runtime_error("the bus daemon does not come up");
  }
}

}  // namespace

PrivateSessionBus::PrivateSessionBus() {
  Start();
  setenv("DBUS_SESSION_BUS_ADDRESS", address_.c_str(), 1);
}

void PrivateSessionBus::Start() {
  std::array<int, 2> ends = {};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  const std::string address = "--address=" + address_;
  daemon_ = fork();
  if (daemon_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    dup2(ends[1], STDOUT_FILENO);
    execl(DBUS_DAEMON, DBUS_DAEMON, "--session", "--nofork", "--nopidfile", "--print-address",
          address.c_str(), nullptr);
    _exit(127);
  }
  close(ends[1]);
  WaitForAddress(ends[0]);
  close(ends[0]);
}

PrivateSessionBus::~PrivateSessionBus() {
  Stop();
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
}

void PrivateSessionBus::Stop() {
  if (daemon_ < 0) return;
  kill(daemon_, SIGKILL);
  waitpid(daemon_, nullptr, 0);
  daemon_ = -1;
  unlink((folder_ / "bus").c_str());
}

void PrivateSessionBus::Freeze() {
  kill(daemon_, SIGSTOP);
  int status = 0;
  if (waitpid(daemon_, &status, WUNTRACED) != daemon_ || !WIFSTOPPED(status)) {
    throw std::runtime_error("the bus daemon does not stop");
  }
}

void PrivateSessionBus::Thaw() { kill(daemon_, SIGCONT); }

}  // namespace trxtest
