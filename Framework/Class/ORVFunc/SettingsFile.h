// The settings file: one property list for each user and model, shared by every process of the
// user. Of two processes that set the same key, the last one wins. A reader sees the file before a
// write or after it, never in between. Any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "PropertyList.h"

namespace orv {

/// The absolute path of a model's settings file; nothing when the user has no Library folder.
std::optional<std::string> SettingsFilePath(const char *modelDisplayName);

/// The contents of a model's settings file; nothing when it is missing, cannot be read or is not a
/// dictionary.
std::optional<PropertyList> ReadSettingsFile(const char *modelDisplayName);

/// Stores one value in a model's settings file. All other entries stay, the library's and those of
/// other programs; on Linux also those that another program writes at the same time. A file that
/// cannot be written stays as it was, and nothing is reported.
void MergeSettingValue(const char *modelDisplayName, const char *key, std::int32_t value) noexcept;

/// The rule of every getter of a current value: the integer that the file has for the key, in or
/// out of the setting's range; the default when it has none.
void GetSettingValue(const char *modelDisplayName, const char *key, std::int32_t defaultValue,
                     std::int32_t *result) noexcept;

}  // namespace orv
