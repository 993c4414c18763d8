// The installed files that the library reads.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <sys/inotify.h>
#include <unistd.h>

#include "Acceptance.h"

namespace trxtest {

/// The file with the version of the system.
inline constexpr const char *kSystemVersionFile =
    "/System/Library/CoreServices/SystemVersion.plist";

/// A case that installs files below the library's system root.
class InstalledFiles : public Acceptance {
 protected:
  /// Installs a file; `path` is the absolute path under which it is known.
  void InstallFile(const std::string &path, const std::string &contents) {
    const std::filesystem::path place = rig_->SystemRoot() + path;
    std::filesystem::create_directories(place.parent_path());
    std::ofstream file(place, std::ios::binary);
    file << contents;
    ASSERT_TRUE(file.flush()) << place;
  }

  /// Installs a property list with these entries, each "<key>K</key>" followed by its value.
  void Install(const std::string &path, const std::string &entries) {
    InstallFile(path, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" +
                          entries + "</dict></plist>\n");
  }

  void InstallSystem(const std::string &productVersion) {
    Install(kSystemVersionFile, "<key>ProductVersion</key><string>" + productVersion + "</string>");
  }

  /// Adds the links of a framework to a folder whose files are installed.
  void LinkResources(const std::string &framework) {
    const std::string folder = rig_->SystemRoot() + framework;
    std::filesystem::create_directory_symlink("A", folder + "/Versions/Current");
    std::filesystem::create_directory_symlink("Versions/Current/Resources", folder + "/Resources");
  }

  /// Whether an installed file is opened while `call` runs.
  template <typename Call>
  bool IsOpenedBy(const std::string &path, Call call) {
    const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    EXPECT_NE(inotify_add_watch(watch, (rig_->SystemRoot() + path).c_str(), IN_OPEN), -1);
    call();
    inotify_event event = {};
    const bool isOpened = read(watch, &event, sizeof event) == ssize_t{sizeof event};
    close(watch);
    return isOpened;
  }

  void Uninstall(const std::string &path) {
    std::filesystem::remove_all(rig_->SystemRoot() + path);
  }
};

}  // namespace trxtest
