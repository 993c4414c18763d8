#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that prints every change of a setting as it is announced, by whichever
/// program.
Command MakeWatch(CLI::App &program);

}  // namespace trxctl
