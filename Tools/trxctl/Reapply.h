#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that sends all stored settings of the model again.
Command MakeReapply(CLI::App &program);

}  // namespace trxctl
