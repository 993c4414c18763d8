#pragma once

#include <optional>
#include <string>

#include "Settings.h"

namespace client {

/// What is the matter with a settings file.
enum class FileProblem {
  kNone,        ///< It can be read, or there is none.
  kNoFile,      ///< Something else stands in its place, such as a folder.
  kTooLarge,    ///< It is larger than the library reads.
  kUnreadable,  ///< The system does not let it be read.
  kNoList,      ///< It is no property list with a dictionary in it.
};

/// A settings file, as far as it can be looked at without risk.
struct FileState {
  bool exists = false;
  FileProblem problem = FileProblem::kNone;
  /// The system's reason for kUnreadable, where it gives one.
  int reason = 0;
};

/// The folder that the library keeps the user's settings in; nothing when the user has no home.
std::optional<std::string> SettingsFolder();

/// The file that the settings of a model are stored in; empty when the user has no home.
std::string SettingsFileOf(const Model &model);

/// Looks at the settings file of a model.
FileState StateOfFile(const std::string &file);

/// Whether the library answers for any setting of the model with something else than the default.
bool DiffersFromDefaults(const Model &model);

}  // namespace client
