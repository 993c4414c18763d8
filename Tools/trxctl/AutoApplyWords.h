#pragma once

#include <optional>
#include <string>

#include "client/AutoApply.h"

namespace trxctl {

/// What the argument of autoapply is called, in the help and for completion.
inline constexpr char kOnOrOffArgument[] = "STATE";

/// Why sending at plug-in cannot work, in words.
struct AutoApplyWords {
  std::string text;
  /// What to do; empty where the user can do nothing.
  std::string hint;
};

/// The words for what keeps sending at plug-in from working; nothing when nothing does.
std::optional<AutoApplyWords> AutoApplyObstacleAsText(client::AutoApplyObstacle obstacle);

}  // namespace trxctl
