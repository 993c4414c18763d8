#include "StoredSettings.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include <TRX-SELVASetup/Diagnostics.h>

#include "LibraryText.h"

namespace client {

std::optional<std::string> SettingsFileOf(const Model &model) {
  ORVStringRef path = nullptr;
  ORV_GetSettingsFilePath(model.id, &path);
  return CharactersOf(path);
}

std::vector<std::string> KeptBeside(const std::string &file) {
  std::error_code error;
  // The library follows a link to the settings and keeps files beside what it leads to.
  const std::string beginning =
      std::filesystem::weakly_canonical(file, error).string() + ".unreadable";
  const auto folder = std::filesystem::path(beginning).parent_path();
  std::vector<std::string> kept;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
       at.increment(error)) {
    if (at->path().string().starts_with(beginning)) kept.push_back(at->path().string());
  }
  std::sort(kept.begin(), kept.end());
  return kept;
}

int ReasonAgainstWriting(const std::string &folder) {
  // More than a settings file needs.
  static constexpr std::array<char, 8192> kContents{};
  std::string path = folder + "/.trx-probe-XXXXXX";
  const int descriptor = mkstemp(path.data());
  if (descriptor < 0) return errno;
  int reason = 0;
  const ssize_t written = write(descriptor, kContents.data(), kContents.size());
  if (written < 0 || fsync(descriptor) != 0) {
    reason = errno;
  } else if (written != static_cast<ssize_t>(kContents.size())) {
    reason = ENOSPC;
  }
  close(descriptor);
  unlink(path.c_str());
  return reason;
}

}  // namespace client
