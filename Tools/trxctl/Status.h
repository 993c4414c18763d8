#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that asks the connected mixers for their status.
Command MakeStatus(CLI::App &program);

/// What `status` can tell of a model, by the names of its JSON members.
std::vector<std::string> StatusOf(const client::Model &model);

}  // namespace trxctl
