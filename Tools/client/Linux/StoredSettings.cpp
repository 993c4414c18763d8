#include "StoredSettings.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <type_traits>

#include <plist/plist.h>
#include <pwd.h>
#include <unistd.h>

namespace client {
namespace {

/// The library reads no larger file.
constexpr std::uintmax_t kLargestRead = std::uintmax_t{4} << 20;

/// The parser descends once a level, so what is much larger than settings are is not given to it.
constexpr std::size_t kLargestParsed = 65536;

constexpr std::string_view kBinaryMagic = "bplist00";

/// The first bytes of a binary list and its trailer, with an object and its offset between them.
constexpr std::size_t kSmallestBinary = 8 + 2 + 32;

std::optional<std::string> Absolute(const char *path) {
  if (path == nullptr || *path != '/') return std::nullopt;
  return path;
}

std::optional<std::string> ConfigurationFolder() {
  if (auto folder = Absolute(std::getenv("XDG_CONFIG_HOME"))) return folder;
  auto home = Absolute(std::getenv("HOME"));
  const passwd *account = home ? nullptr : getpwuid(getuid());
  if (account != nullptr) home = Absolute(account->pw_dir);
  if (!home) return std::nullopt;
  return *home + "/.config";
}

struct PlistFree {
  void operator()(void *node) const { plist_free(node); }
};

/// As far as it can be told at no risk.
bool MayBeDictionary(const std::string &contents) {
  // A binary list can name an object many times over, and the parser would copy it each time.
  if (contents.starts_with(kBinaryMagic)) return contents.size() >= kSmallestBinary;
  if (contents.size() > kLargestParsed) return true;
  plist_t root = nullptr;
  plist_from_xml(contents.data(), static_cast<uint32_t>(contents.size()), &root);
  const std::unique_ptr<std::remove_pointer_t<plist_t>, PlistFree> owner(root);
  return root != nullptr && plist_get_node_type(root) == PLIST_DICT;
}

}  // namespace

std::optional<std::string> SettingsFolder() {
  const auto configuration = ConfigurationFolder();
  if (!configuration) return std::nullopt;
  return *configuration + "/orvikaudio/Preferences";
}

// A large or a binary list is not looked into.
FileState StateOfFile(const std::string &file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) return {};
  if (!std::filesystem::is_regular_file(status)) return {true, FileProblem::kNoFile};
  if (std::filesystem::file_size(file, error) > kLargestRead) return {true, FileProblem::kTooLarge};
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return {true, FileProblem::kUnreadable, errno};
  const std::string contents{std::istreambuf_iterator<char>(stream), {}};
  return {true, MayBeDictionary(contents) ? FileProblem::kNone : FileProblem::kNoList};
}

}  // namespace client
