#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Models.h"

namespace client {

/// What is the matter with a settings file.
enum class FileProblem {
  kNone,        ///< It can be read, or there is none.
  kNoFile,      ///< Something else stands in its place, such as a folder.
  kTooLarge,    ///< It is larger than the library reads, or takes too much to be looked into.
  kTooDeep,     ///< Its lists are nested deeper than the library reads.
  kUnreadable,  ///< The system does not let it be read.
  kNoList,      ///< It is no property list with a dictionary in it.
};

/// A settings file, as far as it can be looked at without risk.
struct FileState {
  bool exists = false;
  FileProblem problem = FileProblem::kNone;
  /// The system's reason for kUnreadable, where it gives one.
  int reason = 0;
  /// The keys in it that hold a number. Nothing when the file could not be looked into.
  std::optional<std::vector<std::string>> keys = {};
};

/// The file that the settings of a model are stored in at this moment; nothing when the user has no
/// folder for settings.
std::optional<std::string> SettingsFileOf(const Model &model);

/// Looks at a settings file.
FileState StateOfFile(const std::string &file);

/// The files that the library has kept beside a settings file, as this user might not read them.
std::vector<std::string> KeptBeside(const std::string &file);

/// Why a file could not be written to a folder just now, as the system says it; 0 when it could.
/// Nothing is left behind.
int ReasonAgainstWriting(const std::string &folder);

}  // namespace client
