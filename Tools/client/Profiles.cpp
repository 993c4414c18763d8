#include "Profiles.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "ProfileNames.h"
#include "StoredSettings.h"

namespace client {
namespace {

namespace fs = std::filesystem;

std::string RequireFolder() {
  const auto folder = ProfilesFolder();
  if (!folder) throw ProfileFault{ProfileProblem::kNoHome};
  return *folder;
}

std::string PathOf(const std::string &name) {
  CheckProfileName(name);
  return RequireFolder() + '/' + ProfileFileName(name);
}

ProfileFault SystemFault(ProfileProblem problem, const std::string &path, int reason) {
  return {.problem = problem, .what = path, .reason = reason};
}

std::string TextIn(const std::string &path) {
  // One byte more than is taken shows that a file is too large.
  FileContents contents = ReadWholeFile(path, kLargestProfileFile + 1);
  if (contents.reason != 0) throw SystemFault(ProfileProblem::kUnreadable, path, contents.reason);
  return std::move(contents.bytes);
}

std::string TextOfStored(const std::string &name) {
  try {
    return TextIn(PathOf(name));
  } catch (const ProfileFault &fault) {
    if (fault.reason != ENOENT) throw;
    throw ProfileFault{ProfileProblem::kNoSuchProfile, name};
  }
}

Profile ProfileIn(const std::string &text, const std::string &name) {
  Profile profile = ProfileInText(text);
  if (profile.name != name) throw ProfileFault{ProfileProblem::kMisplaced, profile.name};
  return profile;
}

void Store(const std::string &name, const std::string &text, OldFile oldFile) {
  const std::string path = PathOf(name);
  int reason = MakePrivateFolder(RequireFolder());
  if (reason == 0) reason = WriteWholeFile(path, text, oldFile);
  if (reason == EEXIST) throw ProfileFault{ProfileProblem::kNameTaken, name};
  if (reason != 0) throw SystemFault(ProfileProblem::kUnwritable, path, reason);
}

StoredProfile ProfileInFile(const fs::path &path) {
  const std::string fileName = path.filename();
  const auto name = ProfileNamedBy(fileName);
  StoredProfile stored{.name = name.value_or(fileName)};
  try {
    stored.profile = ProfileIn(TextIn(path), name.value_or(""));
  } catch (const ProfileFault &fault) {
    stored.fault = fault;
  }
  return stored;
}

}  // namespace

std::optional<std::string> ProfilesFolder() {
  const auto file = SettingsFileOf(DefaultModel());
  if (!file) return std::nullopt;
  return fs::path(*file).parent_path().replace_filename("Profiles").string();
}

std::vector<StoredProfile> StoredProfiles() {
  const std::string folder = RequireFolder();
  std::vector<StoredProfile> profiles;
  std::error_code error;
  for (fs::directory_iterator file(folder, error), end; !error && file != end;
       file.increment(error)) {
    std::error_code ignored;
    // What a killed writer left is hidden and has another ending.
    if (file->path().extension() == ".json" && file->is_regular_file(ignored)) {
      profiles.push_back(ProfileInFile(file->path()));
    }
  }
  if (error && error != std::errc::no_such_file_or_directory) {
    throw SystemFault(ProfileProblem::kUnreadable, folder, error.value());
  }
  std::sort(profiles.begin(), profiles.end(),
            [](const auto &left, const auto &right) { return left.name < right.name; });
  return profiles;
}

std::vector<std::string> ProfileNames() {
  std::vector<std::string> names;
  for (const StoredProfile &stored : StoredProfiles()) {
    if (stored.profile) names.push_back(stored.name);
  }
  return names;
}

Profile ProfileOfStored(const Model &model, const std::string &name) {
  CheckProfileName(name);
  Profile profile{.name = name, .model = &model};
  for (const Setting &setting : SettingsOf(model)) {
    if (!setting.TakesChoices()) continue;
    const int32_t stored = setting.Current();
    if (!setting.TextOf(stored)) {
      throw ProfileFault{.problem = ProfileProblem::kStoredIsNoChoice,
                         .number = stored,
                         .model = &model,
                         .setting = setting};
    }
    profile.choices.push_back({setting, stored});
  }
  return profile;
}

void SaveProfile(const Profile &profile, OldFile oldFile) {
  Store(profile.name, TextOfProfile(profile), oldFile);
}

Profile LoadProfile(const std::string &name) { return ProfileIn(TextOfStored(name), name); }

void DeleteProfile(const std::string &name) {
  const std::string path = PathOf(name);
  const int reason = RemoveFile(path);
  if (reason == ENOENT) throw ProfileFault{ProfileProblem::kNoSuchProfile, name};
  if (reason != 0) throw SystemFault(ProfileProblem::kUnwritable, path, reason);
}

void RenameProfile(const std::string &name, const std::string &newName, OldFile oldFile) {
  const std::string text = TextOfStored(name);
  ProfileIn(text, name);
  // Removing the old one would remove the new one.
  if (newName == name) throw ProfileFault{ProfileProblem::kNameTaken, name};
  Store(newName, TextWithName(text, newName), oldFile);
  DeleteProfile(name);
}

Profile ExportProfile(const std::string &name, const std::string &file, OldFile oldFile) {
  const std::string text = TextOfStored(name);
  Profile profile = ProfileIn(text, name);
  const int reason = WriteWholeFile(file, text, oldFile);
  if (reason == EEXIST) throw ProfileFault{ProfileProblem::kFileTaken, file};
  if (reason != 0) throw SystemFault(ProfileProblem::kUnwritable, file, reason);
  return profile;
}

Profile ImportProfile(const std::string &file, const std::optional<std::string> &newName,
                      OldFile oldFile) {
  std::string text = TextIn(file);
  Profile profile = ProfileInText(text);
  if (newName) {
    profile.name = *newName;
    CheckProfileName(profile.name);
    text = TextWithName(text, profile.name);
  }
  Store(profile.name, text, oldFile);
  return profile;
}

std::vector<ProfileChoice> DifferingFromStored(const Profile &profile) {
  std::vector<ProfileChoice> differing;
  std::copy_if(
      profile.choices.begin(), profile.choices.end(), std::back_inserter(differing),
      [](const ProfileChoice &choice) { return choice.setting.Current() != choice.index; });
  return differing;
}

std::vector<ProfileSendResult> SetProfile(const Profile &profile) {
  std::vector<ProfileSendResult> results;
  for (const ProfileChoice &choice : profile.choices) {
    results.push_back({choice, Set(choice.setting, static_cast<uint32_t>(choice.index))});
  }
  return results;
}

}  // namespace client
