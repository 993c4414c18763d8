// The settings file: one property list a user and model, shared by every process of the user. Of
// two that set the same value, whoever writes last wins; a reader sees the file before a write or
// after it, never in between. Any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "PropertyList.h"

namespace orv {

/// The absolute path of a model's settings file; nothing when the user has no Library folder.
std::optional<std::string> SettingsFilePath(const char *modelDisplayName);

/// What a model's settings file holds; nothing when it is missing, cannot be read or is no
/// dictionary.
std::optional<PropertyList> ReadSettingsFile(const char *modelDisplayName);

/// Records one value in a model's settings file. All other entries stay, the library's own and
/// those of other programs; on Linux also those that another program writes at the same time. A
/// file that cannot be written stays as it was, without any report.
void MergeSettingValue(const char *modelDisplayName, const char *key, std::int32_t value) noexcept;

/// What every getter of a current value does: the default is the result unless the file has an
/// integer for the key, which is then taken as it stands, in or out of the setting's range.
void GetSettingValue(const char *modelDisplayName, const char *key, std::int32_t defaultValue,
                     std::int32_t *result) noexcept;

}  // namespace orv
