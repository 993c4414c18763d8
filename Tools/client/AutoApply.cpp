#include "AutoApply.h"

#include <cerrno>
#include <filesystem>

#include "StoredSettings.h"
#include "WholeFile.h"

namespace client {
namespace {

namespace fs = std::filesystem;

// The unit of the service manager has the same name among its conditions.
constexpr char kOffFile[] = "com.orvikaudio.autoapply-off";

constexpr char kContents[] =
    "While this file is here, mixers that are plugged in do not get their stored settings again.\n";

}  // namespace

std::optional<std::string> AutoApplyOffFile() {
  const auto file = SettingsFileOf(DefaultModel());
  if (!file) return std::nullopt;
  return fs::path(*file).replace_filename(kOffFile).string();
}

bool IsAutoApplyOn() {
  const auto file = AutoApplyOffFile();
  std::error_code error;
  return !file || !fs::exists(*file, error);
}

int TurnAutoApply(bool on) {
  const auto file = AutoApplyOffFile();
  if (!file) return ENOENT;
  if (on) {
    const int reason = RemoveFile(*file);
    return reason == ENOENT ? 0 : reason;
  }
  const int reason = MakePrivateFolder(fs::path(*file).parent_path());
  if (reason != 0) return reason;
  const int kept = WriteWholeFile(*file, kContents, OldFile::kIsKept);
  return kept == EEXIST ? 0 : kept;
}

}  // namespace client
