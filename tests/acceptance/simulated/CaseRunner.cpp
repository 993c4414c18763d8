#include "CaseRunner.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <RemovalAtTheEnd.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

using Words = std::vector<std::string>;

constexpr const char *kSelf = "/proc/self/exe";

// The private folder of a case; set once the process runs under the simulator.
constexpr const char *kFolderVariable = "TRX_ACCEPTANCE_FOLDER";

// Names the folder for all private folders, for example one on a disk.
constexpr const char *kPlaceVariable = "TRX_ACCEPTANCE_PLACE";

// Words to put before the command line of a case, for example those of a memory checker.
constexpr const char *kWrapperVariable = "TRX_ACCEPTANCE_WRAPPER";

bool Contains(const Words &words, std::string_view beginning) {
  return std::any_of(words.begin(), words.end(),
                     [&](const std::string &word) { return word.starts_with(beginning); });
}

[[noreturn]] void Become(Words words) {
  std::vector<char *> pointers;
  for (std::string &word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  execvp(pointers[0], pointers.data());
  std::fprintf(stderr, "cannot run %s: %s\n", pointers[0], std::strerror(errno));
  _exit(127);
}

Words WithSelf(const Words &arguments) {
  Words words = {kSelf};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return words;
}

// The output of a process.
std::string OutputOf(const Words &words) {
  std::array<int, 2> ends = {};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return {};
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    Become(words);
  }
  close(ends[1]);
  std::string output;
  std::array<char, 4096> part;
  for (ssize_t size = 0; (size = read(ends[0], part.data(), part.size())) > 0;) {
    output.append(part.data(), static_cast<std::size_t>(size));
  }
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return output;
}

// The full names of the cases that the arguments select. A suite's line begins at the margin and
// ends with a dot; its cases follow, indented by two blanks; a comment may follow a name.
Words SelectedCases(const Words &arguments) {
  Words listing = WithSelf(arguments);
  listing.emplace_back("--gtest_list_tests");
  std::istringstream lines(OutputOf(listing));
  Words cases;
  std::string suite;
  for (std::string line; std::getline(lines, line);) {
    const std::string name = line.substr(0, line.find("  #"));
    if (name.starts_with("  ")) {
      cases.push_back(suite + name.substr(2));
    } else {
      suite = name;
    }
  }
  return cases;
}

// The folder for the private folders, unless another is named: in memory if possible, because the
// library makes every file durable before it continues.
std::string MakeFolderOfAll() {
  const char *chosen = std::getenv(kPlaceVariable);
  const Words places = chosen != nullptr ? Words{chosen} : Words{"/dev/shm", "/tmp"};
  for (const std::string &place : places) {
    std::string folder = place + "/trx-acceptance.XXXXXX";
    if (mkdtemp(folder.data()) != nullptr) return folder;
  }
  std::perror("cannot make a private folder");
  std::exit(1);
}

void SetVariable(const char *name, const std::string &value) { setenv(name, value.c_str(), 1); }

[[noreturn]] void RunUnderSimulator(const std::string &folder, const Words &arguments,
                                    const Words &simulatorOptions) {
  SetVariable(kFolderVariable, folder);
  SetVariable("XDG_CONFIG_HOME", ConfigurationFolderIn(folder));
  SetVariable("XDG_RUNTIME_DIR", RuntimeFolderIn(folder));
  SetVariable("HOME", folder);
  SetVariable("TRX_SYSTEM_ROOT", SystemRootIn(folder));
  for (const char *name : {"LANGUAGE", "LC_MESSAGES", "LANG"}) unsetenv(name);
  SetVariable("LC_ALL", "C");
  for (const std::string &made : {folder, RuntimeFolderIn(folder), SystemRootIn(folder)}) {
    std::filesystem::create_directory(made);
  }
  Words words = {TRX_MIXER_SIM, "--units", "0", "--control", ControlSocketIn(folder)};
  words.insert(words.end(), simulatorOptions.begin(), simulatorOptions.end());
  words.emplace_back("--");
  const char *wrapper = std::getenv(kWrapperVariable);
  std::istringstream wrapping(wrapper != nullptr ? wrapper : "");
  for (std::string word; wrapping >> word;) words.push_back(word);
  // In a wrapper, /proc/self/exe would be the wrapper.
  words.push_back(std::filesystem::read_symlink(kSelf));
  words.insert(words.end(), arguments.begin(), arguments.end());
  Become(words);
}

int RunEachByItself(const Words &arguments, const Words &simulatorOptions, const Words &cases) {
  const std::string all = MakeFolderOfAll();
  RemoveAtTheEnd(all);
  const std::string folder = all + "/case";
  Words failed;
  for (const std::string &name : cases) {
    const pid_t child = fork();
    if (child == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      Words own = arguments;
      own.push_back("--gtest_filter=" + name);
      RunUnderSimulator(folder, own, simulatorOptions);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) failed.push_back(name);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }
  std::printf("\n%zu cases run, %zu failed\n", cases.size(), failed.size());
  for (const std::string &name : failed) std::printf("  FAILED %s\n", name.c_str());
  return failed.empty() ? 0 : 1;
}

int RunHere(int argc, char **argv) {
  // A simulator that was killed must not leave its command behind.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace

std::string ControlSocketIn(const std::string &folder) { return folder + "/control"; }
std::string ConfigurationFolderIn(const std::string &folder) { return folder + "/config"; }
std::string RuntimeFolderIn(const std::string &folder) { return folder + "/run"; }
std::string SystemRootIn(const std::string &folder) { return folder + "/system"; }

bool IsInCase() { return std::getenv(kFolderVariable) != nullptr; }

std::string PrivateFolder() {
  const char *folder = std::getenv(kFolderVariable);
  if (folder == nullptr) throw std::runtime_error("not under the simulator");
  return folder;
}

int RunCases(int argc, char **argv, const Words &simulatorOptions) {
  const Words arguments(argv + 1, argv + argc);
  if (Contains(arguments, "--gtest_list_tests") || Contains(arguments, "--help")) {
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
  }
  if (IsInCase()) return RunHere(argc, argv);
  const Words cases = SelectedCases(arguments);
  if (cases.empty()) {
    std::fprintf(stderr, "no such case\n");
    return 1;
  }
  return RunEachByItself(arguments, simulatorOptions, cases);
}

}  // namespace trxtest
