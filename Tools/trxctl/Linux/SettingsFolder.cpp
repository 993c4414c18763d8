#include "SettingsFolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include <plist/plist.h>
#include <pwd.h>
#include <unistd.h>

#include "Knob.h"

namespace trxctl {
namespace {

/// The library reads no larger file.
constexpr std::uintmax_t kLargestRead = std::uintmax_t{4} << 20;

/// The parser descends once a level, so what is much larger than settings are is not given to it.
constexpr std::size_t kLargestParsed = 65536;

constexpr std::string_view kBinaryMagic = "bplist00";

/// The first bytes of a binary list and its trailer, with an object and its offset between them.
constexpr std::size_t kSmallestBinary = 8 + 2 + 32;

constexpr char kFolderVariable[] = "XDG_CONFIG_HOME";

std::optional<std::string> Absolute(const char *path) {
  if (path == nullptr || *path != '/') return std::nullopt;
  return path;
}

std::optional<std::string> ConfigurationFolder() {
  if (auto folder = Absolute(std::getenv(kFolderVariable))) return folder;
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

/// While it lives, the library finds no settings.
class SettingsHidden {
 public:
  SettingsHidden() {
    if (const char *value = std::getenv(kFolderVariable)) before_ = value;
    // No folder can ever be below it.
    setenv(kFolderVariable, "/dev/null", 1);
  }
  SettingsHidden(const SettingsHidden &) = delete;
  SettingsHidden &operator=(const SettingsHidden &) = delete;
  ~SettingsHidden() {
    if (before_) {
      setenv(kFolderVariable, before_->c_str(), 1);
    } else {
      unsetenv(kFolderVariable);
    }
  }

 private:
  std::optional<std::string> before_;
};

std::vector<int32_t> CurrentOf(const Model &model) {
  std::vector<int32_t> current;
  for (const Setting &setting : Settings()) {
    for (const Knob &knob : KnobsOf(setting, model)) current.push_back(knob.Current());
  }
  return current;
}

}  // namespace

std::optional<std::string> PreferencesFolder() {
  const auto configuration = ConfigurationFolder();
  if (!configuration) return std::nullopt;
  return *configuration + "/orvikaudio/Preferences";
}

// The file is not read a second time: without it the library would answer otherwise.
bool AnswersFromFile(const Model &model) {
  const std::vector<int32_t> with_file = CurrentOf(model);
  const SettingsHidden hidden;
  return with_file != CurrentOf(model);
}

// A large or a binary list is not looked into.
std::optional<std::string> ProblemOfSettingsFile(const std::string &file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) return std::nullopt;
  if (!std::filesystem::is_regular_file(status)) return "is no file";
  if (std::filesystem::file_size(file, error) > kLargestRead) return "is too large for settings";
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::string("cannot be read: ") + std::strerror(errno);
  const std::string contents{std::istreambuf_iterator<char>(stream), {}};
  if (!MayBeDictionary(contents)) return "is no property list with a dictionary in it";
  return std::nullopt;
}

}  // namespace trxctl
