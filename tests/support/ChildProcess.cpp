#include "ChildProcess.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#ifdef TRX_COUNTS_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace trxtest {
namespace {

constexpr unsigned kLongestRunSeconds = 120;
constexpr uid_t kNobody = 65534;
constexpr uid_t kUnknownUser = 1'054'321;

// A file without a name, open in both processes.
class SharedFile {
 public:
  SharedFile() : descriptor_(memfd_create("standard error", MFD_CLOEXEC)) {
    if (descriptor_ < 0) throw std::runtime_error("no file in memory");
  }
  SharedFile(const SharedFile &) = delete;
  SharedFile &operator=(const SharedFile &) = delete;
  ~SharedFile() { close(descriptor_); }

  int Descriptor() const { return descriptor_; }

  std::string Contents() const {
    std::string contents(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    const ssize_t size = pread(descriptor_, contents.data(), contents.size(), 0);
    contents.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return contents;
  }

 private:
  int descriptor_;
};

// Failed expectations, including those of the test before the child was forked.
int ReportsSoFar() {
  return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// A child ends without exit handlers, so it writes no coverage.
void WriteDownWhatWasReached() {
#ifdef TRX_COUNTS_COVERAGE
  __gcov_dump();
#endif
}

[[noreturn]] void BeChild(const std::function<void()> &function, int standardError) {
  alarm(kLongestRunSeconds);
  dup2(standardError, STDERR_FILENO);
  const int before = ReportsSoFar();
  function();
  std::fflush(stdout);
  WriteDownWhatWasReached();
  _exit(ReportsSoFar() == before ? 0 : 1);
}

std::string InWords(int status) {
  if (WIFSIGNALED(status)) return "killed by signal " + std::to_string(WTERMSIG(status));
  return "exit code " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

void ExpectQuietSuccess(const std::function<void()> &function) {
  const SharedFile standardError;
  std::fflush(stdout);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork");
  if (child == 0) BeChild(function, standardError.Descriptor());
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << InWords(status);
  EXPECT_EQ(standardError.Contents(), "");
}

void BecomeOrdinaryUser() {
  if (geteuid() != 0) return;
  ASSERT_EQ(setgroups(0, nullptr), 0);
  ASSERT_EQ(setresgid(kNobody, kNobody, kNobody), 0);
  ASSERT_EQ(setresuid(kNobody, kNobody, kNobody), 0);
  // The system has closed the process's own files in /proc to it, as it would not for a process
  // that this user has started.
  ASSERT_EQ(prctl(PR_SET_DUMPABLE, 1), 0);
}

void BecomeUserWithoutAccount() {
  if (geteuid() == 0) {
    ASSERT_EQ(setresuid(kUnknownUser, kUnknownUser, kUnknownUser), 0);
    return;
  }
  // Without privilege, in a user namespace where this user has another number.
  const std::string map = std::to_string(kUnknownUser) + " " + std::to_string(geteuid()) + " 1\n";
  ASSERT_EQ(unshare(CLONE_NEWUSER), 0) << "this system lets nobody but root change the user";
  std::ofstream file("/proc/self/uid_map");
  ASSERT_TRUE(file << map << std::flush);
}

}  // namespace trxtest
