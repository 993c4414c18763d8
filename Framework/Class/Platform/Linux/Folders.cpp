#include "Folders.h"

#include <array>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace orv {
namespace {

std::optional<std::string> AbsolutePathFrom(const char *text) {
  if (text == nullptr || *text != '/') return std::nullopt;
  return text;
}

std::optional<std::string> HomeOfAccount() {
  std::array<char, 4096> texts;
  passwd account = {};
  passwd *found = nullptr;
  if (getpwuid_r(geteuid(), &account, texts.data(), texts.size(), &found) != 0) return std::nullopt;
  return found != nullptr ? AbsolutePathFrom(found->pw_dir) : std::nullopt;
}

// In a set-user-id program, the user who started it must not choose where it writes: it uses the
// home folder of the user whose rights it has.
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

}  // namespace orv
