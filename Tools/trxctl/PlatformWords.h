#pragma once

#include <string_view>

namespace trxctl {

/// What is said to the user in other words on each platform.
struct PlatformWords {
  /// What to do when the user has no home folder.
  std::string_view withoutHome;
  /// What to do when the files with the versions are missing.
  std::string_view withoutVersionFiles;
  /// Why stored settings are not sent at plug-in where the system starts nothing for it.
  std::string_view withoutServiceManager;
  /// What follows "not installed" for the driver.
  std::string_view noDriver;
};

extern const PlatformWords kPlatformWords;

}  // namespace trxctl
