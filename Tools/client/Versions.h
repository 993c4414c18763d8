#pragma once

#include <optional>
#include <string>

#include "Models.h"

namespace client {

/// A piece of the mixers' software that may be installed.
enum class InstalledPiece { kPackage, kDriver, kSetupApplication, kLibrary };

/// The version of an installed piece; nothing when it is not installed. The package and the library
/// serve all models.
std::optional<std::string> VersionOf(InstalledPiece piece, const Model &model);

}  // namespace client
