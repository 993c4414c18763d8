#pragma once

#include "Command.h"

namespace trxctl {

/// Sends what this user has stored to one mixer that was plugged in, and says in one line what came
/// of it: the line that the journal keeps.
///
/// @param device  as client::PluggedMixer() takes it.
ExitCode ReapplyToPlugged(const Session &session, const std::string &device);

}  // namespace trxctl
