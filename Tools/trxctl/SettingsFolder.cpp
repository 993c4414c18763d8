#include "SettingsFolder.h"

namespace trxctl {

std::string SettingsFile(const Model &model) {
  const auto folder = PreferencesFolder();
  if (!folder) return "";
  return *folder + "/com.orvikaudio." + std::string(model.name) + "autosetup.plist";
}

}  // namespace trxctl
