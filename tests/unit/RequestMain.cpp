// The tests of the requests run under trx-mixer-sim with one mixer. The program starts itself again
// under it, so that it can be started like any other.
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

// Set for the program's start under the simulator, to prevent another.
constexpr const char *kSecondStart = "TRX_REQUEST_TESTS_SECOND_START";

int RunUnderSimulator(int argc, char **argv) {
  setenv(kSecondStart, "1", 1);
  std::vector<std::string> words = {TRX_MIXER_SIM, "--units", "1", "--",
                                    std::filesystem::read_symlink("/proc/self/exe")};
  words.insert(words.end(), argv + 1, argv + argc);
  std::vector<char *> pointers;
  for (std::string &word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  execv(pointers[0], pointers.data());
  std::perror(pointers[0]);
  return 1;
}

}  // namespace

int main(int argc, char **argv) {
  const bool onlyLists = std::any_of(argv + 1, argv + argc, [](std::string_view word) {
    return word == "--gtest_list_tests" || word == "--help";
  });
  if (!onlyLists && std::getenv(kSecondStart) == nullptr) return RunUnderSimulator(argc, argv);
  // A simulator that was killed must not leave its command behind.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
