#include "CheckSystem.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <unistd.h>

#include "LibraryText.h"
#include "PlatformWords.h"
#include "SessionBus.h"
#include "SettingsFolder.h"
#include "Text.h"

namespace trxctl {
namespace {

namespace fs = std::filesystem;

Check CheckBus(bool reached) {
  if (reached) return Well("session bus", "reached");
  return {"session bus", ExitCode::kFailed,
          "there is none, so programs do not learn of each other's changes",
          "run trxctl in a desktop session, or everything together under dbus-run-session"};
}

/// The folder itself, or the nearest one above it that exists.
fs::path NearestExisting(fs::path folder) {
  std::error_code error;
  while (!fs::exists(fs::symlink_status(folder, error)) && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  return folder;
}

Check CheckFolder() {
  const std::string name = "Preferences folder";
  const auto folder = PreferencesFolder();
  if (!folder) {
    return {name, ExitCode::kNotStored, "this user has no home folder to keep settings in",
            std::string(kPlatformWords.without_home)};
  }
  const fs::path nearest = NearestExisting(*folder);
  std::error_code error;
  const bool is_folder = fs::is_directory(nearest, error);
  errno = ENOTDIR;
  if (!is_folder || access(nearest.c_str(), W_OK | X_OK) != 0) {
    return {name, ExitCode::kNotStored,
            "settings cannot be stored in " + Printable(*folder) + ": " +
                Printable(nearest.string()) + ": " + std::strerror(errno),
            is_folder ? "make that folder writable for this user" : "remove what is in its place"};
  }
  const bool there = nearest == fs::path(*folder);
  return Well(name, Printable(*folder) + (there ? "" : " (made with the first change)"));
}

Check CheckFiles(const Session &session) {
  const std::string name = "settings files";
  std::size_t in_use = 0;
  std::size_t others = 0;
  for (const Model &model : Models()) {
    if (session.model_given ? model.id != session.model.id : !model.served) continue;
    // What the library answers from is in good order; only the rest needs a look.
    if (AnswersFromFile(model)) {
      ++in_use;
      continue;
    }
    const std::string file = SettingsFile(model);
    const auto problem = ProblemOfSettingsFile(file);
    if (problem) {
      return {name, ExitCode::kFailed, Printable(file) + ": " + *problem,
              "its settings count as not stored; remove it, or make it readable for this user"};
    }
    if (access(file.c_str(), F_OK) == 0) ++others;
  }
  std::vector<std::string> found;
  if (in_use > 0) found.push_back(Counted(in_use, "file") + " in good order");
  if (others > 0) found.push_back(Counted(others, "file") + " without effect on any setting");
  return Well(name, found.empty() ? "none stored yet" : Joined(found));
}

std::optional<std::string> VersionOf(StatusCode (*version)(ProductId, ORVStringRef *)) {
  ORVStringRef text = nullptr;
  version(ORV_PRODUCT_TRX_SELVA, &text);
  return CharactersOf(text);
}

Check CheckInstallation() {
  const auto library = VersionOf(ORV_GetLibraryVersionText);
  const auto package = VersionOf(ORV_GetPkgVersionText);
  if (library && package) {
    return Well("installation",
                "library " + Printable(*library) + ", package " + Printable(*package));
  }
  return {"installation", ExitCode::kFailed,
          std::string("the files with the version of the ") + (library ? "package" : "library") +
              " are missing",
          std::string(kPlatformWords.without_version_files)};
}

}  // namespace

std::vector<Check> CheckSystem(const Session &session) {
  std::vector<Check> checks;
  if (const auto bus = HasSessionBus()) checks.push_back(CheckBus(*bus));
  checks.insert(checks.end(), {CheckFolder(), CheckFiles(session), CheckInstallation()});
  return checks;
}

}  // namespace trxctl
