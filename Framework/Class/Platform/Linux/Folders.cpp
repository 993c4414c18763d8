#include "Folders.h"

#include <array>
#include <cerrno>
#include <cstdlib>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orv {
namespace {

// The base directory rules of desktop Linux ask for folders that only their owner can enter.
constexpr mode_t kOwnerOnly = 0700;

std::optional<std::string> AbsolutePathFrom(const char *text) {
  if (text == nullptr || *text != '/') return std::nullopt;
  return text;
}

std::optional<std::string> HomeOfAccount() {
  std::array<char, 4096> texts;
  passwd account = {};
  passwd *found = nullptr;
  if (getpwuid_r(getuid(), &account, texts.data(), texts.size(), &found) != 0) return std::nullopt;
  return found != nullptr ? AbsolutePathFrom(found->pw_dir) : std::nullopt;
}

// A program that runs with more rights than its user does not let the user say where it writes.
std::optional<std::string> ConfigurationFolder() {
  if (auto folder = AbsolutePathFrom(secure_getenv("XDG_CONFIG_HOME"))) return folder;
  auto home = AbsolutePathFrom(secure_getenv("HOME"));
  if (!home) home = HomeOfAccount();
  if (!home) return std::nullopt;
  return *home + "/.config";
}

}  // namespace

std::optional<std::string> LibraryFolder() {
  auto folder = ConfigurationFolder();
  if (folder) folder->append("/orvikaudio");
  return folder;
}

void MakeFolder(const std::string &path) {
  const std::size_t slash = path.rfind('/');
  if (mkdir(path.c_str(), kOwnerOnly) == 0 || errno != ENOENT || slash == 0) return;
  MakeFolder(path.substr(0, slash));
  mkdir(path.c_str(), kOwnerOnly);
}

}  // namespace orv
