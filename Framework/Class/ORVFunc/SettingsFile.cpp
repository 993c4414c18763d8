#include "SettingsFile.h"

#include "Folders.h"
#include "OutOfMemory.h"

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

void MergeSettingValue(const char *modelDisplayName, const char *key, std::int32_t value) noexcept {
  WhileMemoryLasts([&] {
    const auto path = SettingsFilePath(modelDisplayName);
    if (!path) return;
    auto settings = PropertyList::ReadFileToChange(*path);
    if (!settings) return;
    settings->SetInteger(key, value);
    MakeFolder(path->substr(0, path->rfind('/')));
    settings->WriteAtomically(*path);
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
