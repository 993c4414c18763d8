#pragma once

#include "Command.h"

namespace trxctl {

/// Shows the connected mixers and the settings of the model: what the program does when no command
/// is named.
void Show(const Session &session);

}  // namespace trxctl
