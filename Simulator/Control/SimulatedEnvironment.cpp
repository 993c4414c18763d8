#include "SimulatedEnvironment.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

#include "ControlAddress.h"

namespace trxsim {

namespace fs = std::filesystem;

namespace {

// The address sanitizer refuses to be loaded after another library; these two do it no harm.
constexpr const char *kSanitizerOptions = "verify_asan_link_order=0";

std::string PreloadList() { return GuardPath() + ':' + kPreload; }

bool IsPreloadList(const std::string &value, const std::string &) { return value == PreloadList(); }

// Whoever can write to the testbed decides which files a program opens.
bool IsTestbed(const std::string &value, const std::string &) {
  struct stat status {};
  return value.starts_with('/') && lstat(value.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         (status.st_uid == geteuid() || status.st_uid == 0) && (status.st_mode & 0022) == 0;
}

bool IsSocket(const std::string &value, const std::string &socket) {
  struct stat named {};
  struct stat used {};
  return value.starts_with('/') && stat(value.c_str(), &named) == 0 &&
         stat(socket.c_str(), &used) == 0 && named.st_dev == used.st_dev &&
         named.st_ino == used.st_ino;
}

bool IsSanitizerOptions(const std::string &value, const std::string &) {
  return value == kSanitizerOptions;
}

/// A variable that a simulator may set, and which values are taken.
struct Variable {
  const char *name;
  bool (*isExpected)(const std::string &value, const std::string &socket);
};

constexpr std::array<Variable, 4> kVariables{{
    {"LD_PRELOAD", IsPreloadList},
    {"UMOCKDEV_DIR", IsTestbed},
    {kControlVariable, IsSocket},
    {"ASAN_OPTIONS", IsSanitizerOptions},
}};

void RequireExpected(std::string_view entry, const std::string &socket) {
  const std::string from = "the simulator at " + socket + " gives ";
  for (const auto &[name, isExpected] : kVariables) {
    const std::size_t length = std::strlen(name);
    if (!entry.starts_with(name) || entry.substr(length, 1) != "=") continue;
    if (isExpected(std::string(entry.substr(length + 1)), socket)) return;
    throw SimulatorNotTrusted(from + "an unexpected value for " + name +
                              "; use the trx-mixer-ctl of the same installation");
  }
  throw SimulatorNotTrusted(from + "a variable that programs do not need");
}

}  // namespace

std::string GuardPath() {
  const fs::path program = fs::read_symlink("/proc/self/exe");
  const fs::path folder = program.parent_path() / TRX_SIM_COMPANION_FOLDER;
  return (folder / "libtrx-mixer-sim-guard.so").lexically_normal();
}

std::string ControlEntry(const std::string &socket) {
  return std::string(kControlVariable) + '=' + socket;
}

Environment SimulatedEnvironment(const std::string &testbed, const std::string &socket) {
  return {"LD_PRELOAD=" + PreloadList(), "UMOCKDEV_DIR=" + testbed, ControlEntry(socket),
          std::string("ASAN_OPTIONS=") + kSanitizerOptions};
}

void RequireExpectedEnvironment(const Environment &answer, const std::string &socket) {
  for (const std::string &entry : answer) RequireExpected(entry, socket);
}

}  // namespace trxsim
