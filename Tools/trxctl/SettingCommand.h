#pragma once

#include "Command.h"
#include "client/Settings.h"

namespace trxctl {

/// Makes the command of one kind of setting: list, set by text or number, send again.
Command MakeSettingCommand(CLI::App &program, const client::SettingKind &kind);

}  // namespace trxctl
