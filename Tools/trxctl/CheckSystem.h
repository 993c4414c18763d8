#pragma once

#include <vector>

#include "Check.h"
#include "Command.h"

namespace trxctl {

/// Looks at what the settings need of the system: the session bus, where there is one, the folder
/// and the files they are stored in, and what is installed.
std::vector<Check> CheckSystem(const Session &session);

}  // namespace trxctl
