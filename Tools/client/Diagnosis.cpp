#include "Diagnosis.h"

#include <cerrno>
#include <filesystem>

#include <unistd.h>

#include "MixerChecks.h"
#include "SessionBus.h"
#include "StoredSettings.h"
#include "Versions.h"

namespace client {
namespace {

namespace fs = std::filesystem;

/// The folder itself, or the nearest one above it that exists.
fs::path NearestExisting(fs::path folder) {
  std::error_code error;
  while (!fs::exists(fs::symlink_status(folder, error)) && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  return folder;
}

Check CheckFolder() {
  Check check{.part = CheckedPart::kSettingsFolder};
  const auto folder = SettingsFolder();
  if (!folder) {
    check.finding = Finding::kNoHome;
    return check;
  }
  check.path = *folder;
  const fs::path nearest = NearestExisting(*folder);
  check.obstacle = nearest.string();
  check.otherCount = nearest == fs::path(*folder) ? 1 : 0;
  std::error_code error;
  if (!fs::is_directory(nearest, error)) {
    check.finding = Finding::kNoFolder;
    check.reason = ENOTDIR;
  } else if (access(nearest.c_str(), W_OK | X_OK) != 0) {
    check.finding = Finding::kFolderNotWritable;
    check.reason = errno;
  }
  return check;
}

Finding FindingFor(FileProblem problem) {
  switch (problem) {
    case FileProblem::kNone:
      return Finding::kGood;
    case FileProblem::kNoFile:
      return Finding::kFileIsNone;
    case FileProblem::kTooLarge:
      return Finding::kFileTooLarge;
    case FileProblem::kUnreadable:
      return Finding::kFileUnreadable;
    case FileProblem::kNoList:
      break;
  }
  return Finding::kFileIsNoList;
}

Check CheckFiles(const std::vector<const Model *> &models) {
  Check check{.part = CheckedPart::kSettingsFiles};
  for (const Model *model : models) {
    // What the library answers from is in good order; only the rest needs a look.
    if (DiffersFromDefaults(*model)) {
      ++check.count;
      continue;
    }
    check.path = SettingsFileOf(*model);
    const FileState state = StateOfFile(check.path);
    check.finding = FindingFor(state.problem);
    check.reason = state.reason;
    if (!check.IsGood()) return check;
    if (state.exists) ++check.otherCount;
  }
  return check;
}

Check CheckInstallation() {
  const auto library = VersionOf(InstalledPiece::kLibrary, DefaultModel());
  const auto package = VersionOf(InstalledPiece::kPackage, DefaultModel());
  Check check{.part = CheckedPart::kInstallation};
  if (!library) {
    check.finding = Finding::kNoLibraryVersion;
  } else if (!package) {
    check.finding = Finding::kNoPackageVersion;
  } else {
    check.names = {*library, *package};
  }
  return check;
}

}  // namespace

Check CheckAnswer() {
  uint32_t active = 0;
  // Without an answer the library tells so.
  const bool answered = ORV_GetMixerSeratoActiveStatus(DefaultModel().id, &active) == ORV_SUCCESS;
  return {.part = CheckedPart::kAnswer, .finding = answered ? Finding::kGood : Finding::kNoAnswer};
}

std::vector<Check> Diagnose(const std::vector<const Model *> &models) {
  std::vector<Check> checks = CheckMixers();
  if (const auto bus = HasSessionBus()) {
    checks.push_back({.part = CheckedPart::kSessionBus,
                      .finding = *bus ? Finding::kGood : Finding::kNoSessionBus});
  }
  checks.push_back(CheckFolder());
  checks.push_back(CheckFiles(models));
  checks.push_back(CheckInstallation());
  return checks;
}

}  // namespace client
