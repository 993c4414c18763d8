#include "SteppedProcess.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <system_error>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

constexpr unsigned kLongestRunSeconds = 120;

// This bit distinguishes stops at system calls from signals.
constexpr int kSystemCallStop = SIGTRAP | 0x80;

void Check(long result, const char *what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
}

// The registers that hold the number of the pending system call, its third argument, its result.
#ifdef __x86_64__
constexpr std::size_t kNumberOfCall = offsetof(user, regs.orig_rax);
constexpr std::size_t kThirdArgument = offsetof(user, regs.rdx);
constexpr std::size_t kResultOfCall = offsetof(user, regs.rax);

void SetRegister(pid_t process, std::size_t which, long value) {
  Check(ptrace(PTRACE_POKEUSER, process, which, value), "set a register");
}
#else
constexpr std::size_t kNumberOfCall = 0;
constexpr std::size_t kThirdArgument = 0;
constexpr std::size_t kResultOfCall = 0;

void SetRegister(pid_t /*process*/, std::size_t /*which*/, long /*value*/) {
  throw std::system_error(ENOSYS, std::generic_category(), "set a register of this processor");
}
#endif

[[noreturn]] void BeChild(const std::function<void()> &body) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  alarm(kLongestRunSeconds);
  const testing::TestResult &result =
      *testing::UnitTest::GetInstance()->current_test_info()->result();
  const int before = result.total_part_count();
  if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
  raise(SIGSTOP);
  body();
  std::fflush(stdout);
  _exit(result.total_part_count() == before ? 0 : 1);
}

}  // namespace

SteppedProcess::SteppedProcess(const std::function<void()> &body) {
  std::fflush(stdout);
  id_ = fork();
  Check(id_, "fork");
  if (id_ == 0) BeChild(body);
  int status = 0;
  Check(waitpid(id_, &status, 0), "wait");
  if (!WIFSTOPPED(status)) throw std::system_error(ECHILD, std::generic_category(), "hold");
  Check(ptrace(PTRACE_SETOPTIONS, id_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL), "hold");
}

SteppedProcess::~SteppedProcess() {
  if (end_) return;
  kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
}

// Returns whether the child stopped again; false when it has ended.
bool SteppedProcess::Continue(int request) {
  if (end_) return false;
  Check(ptrace(static_cast<__ptrace_request>(request), id_, nullptr, pendingSignal_), "go on");
  pendingSignal_ = 0;
  int status = 0;
  Check(waitpid(id_, &status, 0), "wait");
  if (!WIFSTOPPED(status)) {
    end_ = status;
    return false;
  }
  if (WSTOPSIG(status) != kSystemCallStop) pendingSignal_ = WSTOPSIG(status);
  return true;
}

std::optional<SystemCall> SteppedProcess::Step() {
  while (Continue(PTRACE_SYSCALL)) {
    if (pendingSignal_ != 0) continue;
    __ptrace_syscall_info info = {};
    Check(ptrace(PTRACE_GET_SYSCALL_INFO, id_, sizeof info, &info), "look");
    if (info.op != PTRACE_SYSCALL_INFO_ENTRY) continue;
    SystemCall call;
    call.number = info.entry.nr;
    std::copy_n(info.entry.args, call.arguments.size(), call.arguments.begin());
    return call;
  }
  return std::nullopt;
}

std::optional<SystemCall> SteppedProcess::StepTo(int n) {
  std::optional<SystemCall> call;
  for (int i = 0; i < n; ++i) {
    call = Step();
    if (!call) break;
  }
  return call;
}

void SteppedProcess::Fail(int error) {
  SetRegister(id_, kNumberOfCall, -1);
  if (!Continue(PTRACE_SYSCALL)) throw std::system_error(ECHILD, std::generic_category(), "fail");
  SetRegister(id_, kResultOfCall, -error);
}

void SteppedProcess::Shorten(std::size_t bytes) {
  SetRegister(id_, kThirdArgument, static_cast<long>(bytes));
}

void SteppedProcess::Kill() {
  Check(kill(id_, SIGKILL), "kill");
  int status = 0;
  Check(waitpid(id_, &status, 0), "wait");
  end_ = status;
}

bool SteppedProcess::RunToEnd() {
  while (Continue(PTRACE_CONT)) {
  }
  return WIFEXITED(*end_) && WEXITSTATUS(*end_) == 0;
}

}  // namespace trxtest
