#include "CheckSystem.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <unistd.h>

#include "SessionBus.h"
#include "SettingsFolder.h"
#include "Text.h"

namespace trxctl {
namespace {

namespace fs = std::filesystem;

Check CheckBus() {
  if (HasSessionBus()) return Well("session bus", "reached");
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
            "set HOME or XDG_CONFIG_HOME to a folder of this user"};
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
    if (ChangesAnySetting(model)) {
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

Check CheckInstallation() {
  ORVStringRef library = nullptr;
  ORVStringRef package = nullptr;
  ORV_GetLibraryVersionText(ORV_PRODUCT_TRX_SELVA, &library);
  ORV_GetPkgVersionText(ORV_PRODUCT_TRX_SELVA, &package);
  if (library != nullptr && package != nullptr) {
    return Well("installation",
                "library " + Printable(library) + ", package " + Printable(package));
  }
  return {"installation", ExitCode::kFailed,
          std::string("the files with the version of the ") +
              (library == nullptr ? "library" : "package") + " are missing",
          "install the library again, or let TRX_SYSTEM_ROOT name the folder where they are"};
}

}  // namespace

std::vector<Check> CheckSystem(const Session &session) {
  return {CheckBus(), CheckFolder(), CheckFiles(session), CheckInstallation()};
}

}  // namespace trxctl
