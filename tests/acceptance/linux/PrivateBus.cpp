#include "PrivateBus.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

constexpr int kPatienceMilliseconds = 60'000;

// The installed configuration would activate services, and it differs between systems.
constexpr const char *kConfigurationBeforeAddress = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <auth>EXTERNAL</auth>
  <listen>)";
// A client that connects while the bus is frozen must have enough time to authenticate. On a usual
// session bus it has minutes.
constexpr const char *kConfigurationBehindAddress = R"(</listen>
  <limit name="auth_timeout">240000</limit>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
  </policy>
</busconfig>
)";

[[noreturn]] void Fail(const char *what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// Runs in the child between fork and exec. The bus must not outlive a test that crashes, and does
// not need the library that the simulator loads into programs.
[[noreturn]] void BecomeDaemon(pid_t parent, const char *configuration, int ready, int errors) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(1);
  unsetenv("LD_PRELOAD");
  dup2(ready, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  execlp("dbus-daemon", "dbus-daemon", configuration, "--nofork", "--nopidfile",
         "--print-address=1", static_cast<char *>(nullptr));
  _exit(127);
}

void WaitUntilReady(int ready) {
  pollfd waiting = {ready, POLLIN, 0};
  char byte = 0;
  if (poll(&waiting, 1, kPatienceMilliseconds) <= 0 || read(ready, &byte, 1) != 1) {
    throw std::runtime_error("dbus-daemon does not start");
  }
}

}  // namespace

PrivateBus::PrivateBus(std::string folder) : folder_(std::move(folder)) {
  std::ofstream(folder_ + "/bus.conf")
      << kConfigurationBeforeAddress << Address() << kConfigurationBehindAddress;
}

PrivateBus::~PrivateBus() {
  if (daemon_ > 0) Stop();
}

std::string PrivateBus::Address() const { return "unix:path=" + SocketPath(); }

void PrivateBus::Start() {
  std::array<int, 2> ready = {};
  if (pipe2(ready.data(), O_CLOEXEC) != 0) Fail("pipe");
  const int errors =
      open((folder_ + "/bus.err").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  const std::string configuration = "--config-file=" + folder_ + "/bus.conf";
  const pid_t parent = getpid();
  daemon_ = fork();
  if (daemon_ < 0) Fail("fork");
  if (daemon_ == 0) BecomeDaemon(parent, configuration.c_str(), ready[1], errors);
  close(ready[1]);
  close(errors);
  WaitUntilReady(ready[0]);
  close(ready[0]);
}

void PrivateBus::Stop() {
  kill(daemon_, SIGKILL);
  waitpid(daemon_, nullptr, 0);
  daemon_ = -1;
  unlink(SocketPath().c_str());
}

void PrivateBus::Freeze() {
  kill(daemon_, SIGSTOP);
  int status = 0;
  if (waitpid(daemon_, &status, WUNTRACED) != daemon_ || !WIFSTOPPED(status)) Fail("freeze");
}

void PrivateBus::Thaw() { kill(daemon_, SIGCONT); }

}  // namespace trxtest
