#pragma once

#include <vector>

#include "Command.h"
#include "client/Settings.h"

namespace trxctl {

/// Shows the connected mixers and the settings of the model: what the program does when no command
/// is named.
ExitCode Show(const Session &session);

/// Prints one setting (of one channel) with its choices.
void ListChoices(const Session &session, const client::Setting &setting);

/// Prints all channels of a kind of setting, each with its stored choice.
void ListChannels(const Session &session, const std::vector<client::Setting> &settings);

}  // namespace trxctl
