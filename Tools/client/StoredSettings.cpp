#include "StoredSettings.h"

#include <algorithm>

namespace client {

std::string SettingsFileOf(const Model &model) {
  const auto folder = SettingsFolder();
  if (!folder) return "";
  return *folder + "/com.orvikaudio." + std::string(model.name) + "autosetup.plist";
}

bool DiffersFromDefaults(const Model &model) {
  const std::vector<Setting> settings = SettingsOf(model);
  return std::any_of(settings.begin(), settings.end(),
                     [](const Setting &setting) { return setting.Current() != setting.Default(); });
}

}  // namespace client
