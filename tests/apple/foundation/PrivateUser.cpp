#include "PrivateUser.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trxtest {
namespace {

constexpr const char *kFolderVariable = "TRX_FOUNDATION_USER";

std::string FolderOfUser() {
  const char *const folder = std::getenv(kFolderVariable);
  if (folder == nullptr) throw std::runtime_error("this process is no private user's");
  return folder;
}

// The path of a message port is a socket's and must be short.
std::string NewFolder() {
  std::string folder = "/tmp/trx-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return folder;
}

// Whatever is not said here is as GNUstep was built.
void WriteConfiguration(const std::string &path, const std::string &folder) {
  std::ofstream file(path);
  file << "GNUSTEP_USER_CONFIG_FILE=.none\n"
       << "GNUSTEP_USER_DEFAULTS_DIR=" << folder << "/Defaults\n"
       << "GNUSTEP_USER_DIR_LIBRARY=" << folder << "/Library\n";
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace

PrivateUser::PrivateUser() : folder_(NewFolder()) {
  for (const char *name : {"/Library/Preferences", "/Defaults", "/SystemRoot"}) {
    std::filesystem::create_directories(folder_ + name);
  }
  const std::string configuration = folder_ + "/GNUstep.conf";
  WriteConfiguration(configuration, folder_);
  setenv("GNUSTEP_CONFIG_FILE", configuration.c_str(), 1);
  setenv("GNUSTEP_STRING_ENCODING", "NSUTF8StringEncoding", 1);
  setenv("TEMP", folder_.c_str(), 1);
  setenv("TRX_SYSTEM_ROOT", (folder_ + "/SystemRoot").c_str(), 1);
  setenv(kFolderVariable, folder_.c_str(), 1);
}

PrivateUser::~PrivateUser() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

bool IsPrivateUsers() { return std::getenv(kFolderVariable) != nullptr; }

std::string LibraryFolderOfUser() { return FolderOfUser() + "/Library"; }

std::string PortsFolderOfUser() { return FolderOfUser() + "/NSMessagePort/names"; }

std::string SystemRootOfUser() { return FolderOfUser() + "/SystemRoot"; }

int RunAgain(char **arguments) {
  const pid_t again = fork();
  if (again == 0) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    execv("/proc/self/exe", arguments);
    _exit(127);
  }
  int status = 0;
  if (waitpid(again, &status, 0) != again) return 1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace trxtest
