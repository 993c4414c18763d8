#include "Diagnosis.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

#include "Delivery.h"
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

Finding FindingFor(FileProblem problem) {
  switch (problem) {
    case FileProblem::kNone:
      return Finding::kGood;
    case FileProblem::kNoFile:
      return Finding::kFileIsNone;
    case FileProblem::kTooLarge:
      return Finding::kFileTooLarge;
    case FileProblem::kTooDeep:
      return Finding::kFileTooDeep;
    case FileProblem::kUnreadable:
      return Finding::kFileUnreadable;
    case FileProblem::kNoList:
      break;
  }
  return Finding::kFileIsNoList;
}

/// The settings of a model whose stored number is no choice.
std::vector<Setting> WithoutChoice(const Model &model) {
  std::vector<Setting> settings = SettingsOf(model);
  std::erase_if(settings, [](const Setting &setting) {
    return setting.TextOf(setting.Current()).has_value();
  });
  return settings;
}

bool IsAnythingStored(const Model &model) {
  const std::vector<Setting> settings = SettingsOf(model);
  return std::any_of(settings.begin(), settings.end(),
                     [](const Setting &setting) { return setting.IsStored(); });
}

Check CheckFiles(const std::vector<const Model *> &models) {
  Check check{.part = CheckedPart::kSettingsFiles};
  for (const Model *model : models) {
    check.path = SettingsFileOf(*model).value_or("");
    const FileState state = StateOfFile(check.path);
    check.finding = FindingFor(state.problem);
    check.reason = state.reason;
    check.settings = WithoutChoice(*model);
    if (check.IsGood() && !check.settings.empty()) check.finding = Finding::kNoChoice;
    if (!check.IsGood()) return check;
    if (state.exists) ++(IsAnythingStored(*model) ? check.count : check.otherCount);
  }
  return check;
}

/// The first settings file with others beside it that the library has kept; nothing for none.
std::optional<Check> CheckKeptFiles(const std::vector<const Model *> &models) {
  for (const Model *model : models) {
    const std::string path = SettingsFileOf(*model).value_or("");
    const std::vector<std::string> kept = KeptBeside(path);
    if (kept.empty()) continue;
    return Check{.part = CheckedPart::kSettingsFiles,
                 .finding = Finding::kFileKept,
                 .path = path,
                 .names = kept};
  }
  return std::nullopt;
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

/// A system that starts nothing for its users is no problem of this installation.
Check CheckAutoApply() {
  Check check{.part = CheckedPart::kAutoApply, .autoApply = ObstacleToAutoApply()};
  check.otherCount = IsAutoApplyOn() ? 0 : 1;
  if (IsAutoApplyOn() && check.autoApply != AutoApplyObstacle::kNone &&
      check.autoApply != AutoApplyObstacle::kNoServiceManager) {
    check.finding = Finding::kAutoApplyBroken;
  }
  return check;
}

}  // namespace

Check CheckFolder() {
  Check check{.part = CheckedPart::kSettingsFolder};
  const auto file = SettingsFileOf(DefaultModel());
  if (!file) {
    check.finding = Finding::kNoHome;
    return check;
  }
  const fs::path folder = fs::path(*file).parent_path();
  check.path = folder.string();
  const fs::path nearest = NearestExisting(folder);
  check.obstacle = nearest.string();
  check.otherCount = nearest == folder ? 1 : 0;
  std::error_code error;
  if (!fs::is_directory(nearest, error)) {
    check.finding = Finding::kNoFolder;
    check.reason = ENOTDIR;
    return check;
  }
  check.reason = ReasonAgainstWriting(nearest.string());
  if (check.reason != 0) check.finding = Finding::kFolderNotWritable;
  return check;
}

std::vector<Check> CheckAnswers() {
  const std::vector<Mixer> known = ConnectedMixers();
  const RequestLog log;
  uint32_t level = 0;
  // Of all questions the one that is put to every mixer, whatever the others answer.
  ORV_GetMixerCertifyLevel(DefaultModel().id, &level);
  std::vector<Check> checks;
  for (const MixerResult &result : DeliveryOf(log, known).mixers) {
    if (!result.IsOpened() || result.outcome == Outcome::kDone) continue;
    checks.push_back({.part = CheckedPart::kAnswer,
                      .finding = Finding::kNoAnswer,
                      .mixers = {result.mixer},
                      .outcome = result.outcome});
  }
  if (checks.empty()) checks.push_back({.part = CheckedPart::kAnswer});
  return checks;
}

std::vector<Check> Diagnose(const std::vector<const Model *> &models) {
  std::vector<Check> checks = CheckMixers();
  const SessionBusState bus = ReachSessionBus();
  if (bus != SessionBusState::kNotNeeded) {
    checks.push_back({.part = CheckedPart::kSessionBus,
                      .finding = bus == SessionBusState::kReached    ? Finding::kGood
                                 : bus == SessionBusState::kNoAnswer ? Finding::kSessionBusSilent
                                                                     : Finding::kNoSessionBus});
  }
  checks.push_back(CheckFolder());
  checks.push_back(CheckFiles(models));
  if (const auto kept = CheckKeptFiles(models)) checks.push_back(*kept);
  checks.push_back(CheckInstallation());
  checks.push_back(CheckAutoApply());
  return checks;
}

}  // namespace client
