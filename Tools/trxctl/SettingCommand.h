#pragma once

#include "Command.h"
#include "Setting.h"

namespace trxctl {

/// Makes the command of one setting: list, set by text or index, send again.
Command MakeSettingCommand(CLI::App &program, const Setting &setting);

}  // namespace trxctl
