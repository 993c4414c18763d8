#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that turns sending at plug-in off and on, and tells its state.
Command MakeAutoApply(CLI::App &program);

}  // namespace trxctl
