#pragma once

#include <string>

#include "Environment.h"

namespace trxsim {

/// Shows the testbed to programs that load it; found where the dynamic linker looks.
inline constexpr const char *kPreload = "libumockdev-preload.so.0";

/// The library that is loaded before it. It is installed with the simulator's programs and found
/// from the place of this one.
std::string GuardPath();

/// "NAME=VALUE" that tells a process the control socket of its simulator.
std::string ControlEntry(const std::string &socket);

/// What a process needs to find mixers that only it is to see.
Environment SimulatedEnvironment(const std::string &testbed, const std::string &socket);

/// Throws `SimulatorNotTrusted` unless `answer`, what the simulator at `socket` says that a process
/// needs, has only the variables above, each with a value that cannot bring in foreign code.
void RequireExpectedEnvironment(const Environment &answer, const std::string &socket);

}  // namespace trxsim
