// A killed test leaves nothing on the machine.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "RemovalAtTheEnd.h"
#include "TemporaryFolder.h"

namespace trxtest {
namespace {

constexpr std::chrono::seconds kPatience(60);

bool WaitUntil(const std::string &path, bool exists) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (std::filesystem::exists(path) != exists) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

TEST(RemovalAtTheEnd, TheRemovalComesWhenTheProcessIsKilledAndNotBefore) {
  const TemporaryFolder place;
  std::filesystem::create_directory(place / "folder");
  const pid_t child = fork();
  if (child == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    RemoveAtTheEnd(place / "folder");
    WriteBytes(place / "folder/file", "something");
    for (;;) pause();
  }
  EXPECT_TRUE(WaitUntil(place / "folder/file", true));
  kill(child, SIGKILL);
  EXPECT_EQ(waitpid(child, nullptr, 0), child);
  EXPECT_TRUE(WaitUntil(place / "folder", false));
}

}  // namespace
}  // namespace trxtest
