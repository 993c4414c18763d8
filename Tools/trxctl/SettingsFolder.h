#pragma once

#include <optional>
#include <string>

#include "Model.h"

namespace trxctl {

/// The folder that the library keeps the user's settings in; nothing when the user has no home.
std::optional<std::string> PreferencesFolder();

/// The file that the settings of a model are stored in; empty when the user has no home.
std::string SettingsFile(const Model &model);

/// Whether the library is known to answer from the settings file of a model, because it can be read
/// and has something to say.
bool AnswersFromFile(const Model &model);

/// What keeps the library from reading a settings file, in words. Nothing when there is no file, or
/// when no reason is known.
std::optional<std::string> ProblemOfSettingsFile(const std::string &file);

}  // namespace trxctl
