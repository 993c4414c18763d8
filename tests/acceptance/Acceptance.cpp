#include "Acceptance.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <thread>

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{60};
constexpr std::chrono::milliseconds kStep{20};

constexpr const char *kBeforeEntries =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n<dict>\n";
constexpr const char *kBehindEntries = "</dict>\n</plist>\n";

// Removes `text` and the blanks after it from the front of `rest`. False when it is not there.
bool Take(std::string_view text, std::string_view &rest) {
  if (!rest.starts_with(text)) return false;
  rest.remove_prefix(text.size());
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n"), rest.size()));
  return true;
}

// Removes everything up to and including `end`, and the blanks after it, from the front of `rest`.
std::optional<std::string> TakeThrough(std::string_view end, std::string_view &rest) {
  const std::size_t found = rest.find(end);
  if (found == rest.npos) return std::nullopt;
  const std::string taken(rest.substr(0, found + end.size()));
  return Take(taken, rest) ? std::optional(taken) : std::nullopt;
}

// Reads flat dictionaries. The suites write and expect nothing else in settings files.
std::optional<Settings> Parse(std::string_view text) {
  if (!Take("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", text)) return std::nullopt;
  if (text.starts_with("<!DOCTYPE") && !TakeThrough(">", text)) return std::nullopt;
  if (!Take("<plist version=\"1.0\">", text)) return std::nullopt;
  Settings settings;
  if (!Take("<dict/>", text)) {
    if (!Take("<dict>", text)) return std::nullopt;
    while (!Take("</dict>", text)) {
      if (!Take("<key>", text)) return std::nullopt;
      std::optional<std::string> key = TakeThrough("</key>", text);
      if (!key) return std::nullopt;
      key->resize(key->size() - std::string_view("</key>").size());
      const std::string_view tag = text.substr(0, text.find('>') + 1);
      const bool isWhole = tag.ends_with("/>");
      const std::string end = isWhole ? std::string(tag) : "</" + std::string(tag.substr(1));
      const std::optional<std::string> value = TakeThrough(end, text);
      if (!value || !settings.emplace(*key, *value).second) return std::nullopt;
    }
  }
  return Take("</plist>", text) && text.empty() ? std::optional(settings) : std::nullopt;
}

}  // namespace

std::optional<Settings> Acceptance::SettingsOf(const std::string &modelDisplayName) {
  std::ifstream file(rig_->SettingsFile(modelDisplayName), std::ios::binary);
  if (!file) return std::nullopt;
  const std::string contents{std::istreambuf_iterator<char>(file), {}};
  return Parse(contents);
}

void Acceptance::PutSettingsFile(const std::string &modelDisplayName, const std::string &contents) {
  const fs::path path = rig_->SettingsFile(modelDisplayName);
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << contents;
  ASSERT_TRUE(file.flush()) << path;
}

void Acceptance::PutSettings(const std::string &modelDisplayName, const std::string &entries) {
  PutSettingsFile(modelDisplayName, kBeforeEntries + entries + kBehindEntries);
}

std::vector<std::string> Acceptance::ListLibrary() {
  const fs::path folder = rig_->LibraryFolder();
  if (!fs::exists(folder)) return {};
  if (fs::is_empty(folder)) return {"./"};
  std::vector<std::string> names;
  for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = fs::relative(entry.path(), folder);
    if (!entry.is_directory()) names.push_back(name);
    if (entry.is_directory() && fs::is_empty(entry.path())) names.push_back(name + '/');
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> Acceptance::LibraryListing() {
  const std::vector<std::string> now = ListLibrary();
  std::vector<std::string> added;
  std::set_difference(now.begin(), now.end(), libraryAtStart_.begin(), libraryAtStart_.end(),
                      std::back_inserter(added));
  return added;
}

void Acceptance::ExpectNothingHappened() {
  EXPECT_EQ(rig_->WireLog(), std::vector<std::string>());
  EXPECT_EQ(LibraryListing(), std::vector<std::string>());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

bool Acceptance::RunEventLoopUntil(const std::function<bool()> &isDone) {
  const auto deadline = Clock::now() + kPatience;
  while (!isDone()) {
    if (Clock::now() >= deadline) return false;
    rig_->RunEventLoop(kStep);
  }
  return true;
}

bool WaitUntil(const std::function<bool()> &isDone) {
  const auto deadline = Clock::now() + kPatience;
  while (!isDone()) {
    if (Clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

Announcement BoostChange(const std::string &modelDisplayName, std::int32_t product,
                         std::int32_t index) {
  return {modelDisplayName + " BoostLevel Change", {{"ProductID", product}, {"Index", index}}};
}

}  // namespace trxtest
