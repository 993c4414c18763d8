#include "ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <pthread.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxsim {

namespace {

sigset_t HandledSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP, SIGQUIT}) sigaddset(&signals, signal);
  return signals;
}

sigset_t &SignalsAtStart() {
  static sigset_t signals;
  return signals;
}

// 0 or the error.
int Spawn(pid_t &child, std::vector<std::string> &words, Environment &environment) {
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
  posix_spawnattr_setsigmask(&attributes, &SignalsAtStart());
  const std::vector<char *> arguments = ExecVector(words);
  const std::vector<char *> variables = ExecVector(environment);
  const int error =
      posix_spawnp(&child, arguments[0], nullptr, &attributes, arguments.data(), variables.data());
  posix_spawnattr_destroy(&attributes);
  return error;
}

// True once the child has ended.
bool HasEnded(pid_t child, int &status) { return waitpid(child, &status, WNOHANG) == child; }

int WaitFor(pid_t child) {
  const sigset_t signals = HandledSignals();
  int status = 0;
  while (!HasEnded(child, status)) {
    siginfo_t info{};
    const int signal = sigwaitinfo(&signals, &info);
    // A signal from the terminal reaches the whole foreground group, the command included.
    const bool isForUsAlone = info.si_code <= 0;
    if (signal > 0 && signal != SIGCHLD && isForUsAlone) kill(child, signal);
  }
  return WIFSIGNALED(status) ? kSignalBase + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

void BlockSignals() {
  const sigset_t signals = HandledSignals();
  pthread_sigmask(SIG_BLOCK, &signals, &SignalsAtStart());
}

int RunCommand(std::vector<std::string> words, Environment environment) {
  pid_t child = 0;
  const int error = Spawn(child, words, environment);
  if (error == 0) return WaitFor(child);
  std::fprintf(stderr, "trx-mixer-sim: cannot run %s: %s\n", words[0].c_str(),
               std::strerror(error));
  return error == ENOENT ? kNotFound : kCannotRun;
}

void WaitForEnd() {
  sigset_t signals = HandledSignals();
  sigdelset(&signals, SIGCHLD);
  while (sigwaitinfo(&signals, nullptr) < 0 && errno == EINTR) {
  }
}

}  // namespace trxsim
