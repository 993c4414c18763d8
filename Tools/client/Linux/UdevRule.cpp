#include "UdevRule.h"

#include <array>
#include <filesystem>

#include <unistd.h>

namespace client {

std::span<const std::string_view> UdevRuleFolders() {
  static constexpr std::array<std::string_view, 5> kFolders{
      "/etc/udev/rules.d", "/run/udev/rules.d", "/usr/local/lib/udev/rules.d",
      "/usr/lib/udev/rules.d", "/lib/udev/rules.d"};
  return kFolders;
}

std::vector<std::string> FoldersWithRule(std::span<const std::string_view> folders,
                                         std::string_view rule) {
  std::vector<std::string> found;
  for (const std::string_view folder : folders) {
    const std::string file = std::string(folder) + '/' + std::string(rule);
    if (access(file.c_str(), F_OK) == 0) found.emplace_back(folder);
  }
  return found;
}

std::string RuleBesideProgram() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  const auto prefix = program.parent_path().parent_path();
  for (const char *folder : {"lib/udev/rules.d", "packaging"}) {
    const auto file = prefix / folder / kUdevRule;
    if (std::filesystem::exists(file, error)) return file.string();
  }
  return std::string(kUdevRule);
}

}  // namespace client
