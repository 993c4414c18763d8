#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that lists the models and what each accepts.
Command MakeModels(CLI::App &program);

/// Makes the command that tells the versions of what is installed.
Command MakeVersions(CLI::App &program);

}  // namespace trxctl
