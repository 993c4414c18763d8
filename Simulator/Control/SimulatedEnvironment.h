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

/// The variables with which a process finds the mixers of a testbed.
Environment SimulatedEnvironment(const std::string &testbed, const std::string &socket);

/// Throws `SimulatorNotTrusted` unless `answer`, the environment that the simulator at `socket`
/// gives, has only the variables above, with values that make a program load or read nothing of
/// others.
void RequireExpectedEnvironment(const Environment &answer, const std::string &socket);

}  // namespace trxsim
