#pragma once

namespace trxctl {

/// Reads the command line, does what it says and returns the exit code for the shell. Throws
/// nothing.
int RunCommandLine(int argc, char **argv) noexcept;

}  // namespace trxctl
