#pragma once

#include "Command.h"

namespace trxctl {

/// Makes the command that lists the models and what each of them accepts.
Command MakeModels(CLI::App &program);

}  // namespace trxctl
