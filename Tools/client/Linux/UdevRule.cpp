#include "UdevRule.h"

#include <array>

#include <unistd.h>

namespace client {

std::span<const std::string_view> UdevRuleFolders() {
  static constexpr std::array<std::string_view, 5> kFolders{
      "/etc/udev/rules.d", "/run/udev/rules.d", "/usr/local/lib/udev/rules.d",
      "/usr/lib/udev/rules.d", "/lib/udev/rules.d"};
  return kFolders;
}

std::vector<std::string> FoldersWithRule(std::span<const std::string_view> folders) {
  std::vector<std::string> found;
  for (const std::string_view folder : folders) {
    const std::string file = std::string(folder) + '/' + std::string(kUdevRule);
    if (access(file.c_str(), F_OK) == 0) found.emplace_back(folder);
  }
  return found;
}

}  // namespace client
