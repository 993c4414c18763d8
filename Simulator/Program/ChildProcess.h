#pragma once

#include <string>
#include <vector>

#include "../Control/Environment.h"

namespace trxsim {

/// Exit codes of a command that did not run, as in a shell.
enum CommandExit { kCannotRun = 126, kNotFound = 127, kSignalBase = 128 };

/// Blocks the signals that the other two functions wait for. Must be called before a thread starts.
void BlockSignals();

/// Runs a command with `environment` and waits for its end. Signals that ask this process to end
/// are passed on to it. Returns its exit status, 128 plus the signal that ended it, or one of
/// `CommandExit` with a message on stderr.
int RunCommand(std::vector<std::string> words, Environment environment);

/// Waits for a signal that asks this process to end.
void WaitForEnd();

}  // namespace trxsim
