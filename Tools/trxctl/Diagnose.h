#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that tells why no mixer is found or why it cannot be used.
Command MakeDiagnose(CLI::App &program);

}  // namespace trxctl
