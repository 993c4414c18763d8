#pragma once

#include "Command.h"

namespace trxctl {

/// What the help calls an argument that is the name of a profile.
inline constexpr char kProfileArgument[] = "PROFILE";

/// Makes the command that keeps settings under a name and loads them again.
Command MakeProfile(CLI::App &program);

}  // namespace trxctl
