#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that sets all stored settings of the model back to their defaults.
Command MakeReset(CLI::App &program);

}  // namespace trxctl
