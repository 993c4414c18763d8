#include "SettingsFile.h"

#include <new>

#include "Folders.h"

namespace orv {
std::optional<std::string> SettingsFilePath(const char *modelDisplayName) {
  const auto library = LibraryFolder();
  if (!library) return std::nullopt;
  return *library + "/Preferences/com.orvikaudio." + modelDisplayName + "autosetup.plist";
}

std::optional<PropertyList> ReadSettingsFile(const char *modelDisplayName) {
  const auto path = SettingsFilePath(modelDisplayName);
  if (!path) return std::nullopt;
  return PropertyList::ReadFile(*path);
}

void MergeSettingValue(const char *modelDisplayName, const char *key, std::int32_t value) noexcept
    try {
  const auto path = SettingsFilePath(modelDisplayName);
  if (!path) return;
  PropertyList settings = PropertyList::ReadFile(*path).value_or(PropertyList());
  settings.SetInteger(key, value);
  MakeFolder(path->substr(0, path->rfind('/')));
  settings.WriteAtomically(*path);
} catch (const std::bad_alloc &) {
  return;
}

void GetSettingValue(const char *modelDisplayName, const char *key, std::int32_t defaultValue,
                     std::int32_t *result) noexcept try {
  *result = defaultValue;
  const auto settings = ReadSettingsFile(modelDisplayName);
  if (!settings) return;
  *result = settings->IntegerForKey(key).value_or(defaultValue);
} catch (const std::bad_alloc &) {
  return;
}

}  // namespace orv
