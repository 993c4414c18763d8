#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that tells the versions of what is installed.
Command MakeVersions(CLI::App &program);

}  // namespace trxctl
