#include "SettingsFile.h"

#include "Folders.h"
#include "OutOfMemory.h"

namespace orv {

std::optional<std::string> SettingsFilePath(const char *modelDisplayName) {
  auto path = LibraryFolder();
  if (path)
    path->append("/Preferences/com.orvikaudio.").append(modelDisplayName).append("autosetup.plist");
  return path;
}

std::optional<PropertyList> ReadSettingsFile(const char *modelDisplayName) {
  const auto path = SettingsFilePath(modelDisplayName);
  if (!path) return std::nullopt;
  return PropertyList::ReadFile(*path);
}

void MergeSettingValue(const char *modelDisplayName, const char *key, std::int32_t value) noexcept {
  WhileMemoryLasts([&] {
    const auto path = SettingsFilePath(modelDisplayName);
    if (!path) return;
    PropertyList::ChangeFile(*path, [&](PropertyList &list) { list.SetInteger(key, value); });
  });
}

void GetSettingValue(const char *modelDisplayName, const char *key, std::int32_t defaultValue,
                     std::int32_t *result) noexcept {
  WhileMemoryLasts([&] {
    *result = defaultValue;
    const auto settings = ReadSettingsFile(modelDisplayName);
    if (!settings) return;
    *result = settings->IntegerForKey(key).value_or(defaultValue);
  });
}

}  // namespace orv
