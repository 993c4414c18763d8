// The main program of the rigs with software mixers. Every case runs in its own process, started by
// a simulator, with a private folder: the library's registrations last as long as a process, and no
// case may see what another one left.
#pragma once

#include <string>
#include <vector>

namespace trxtest {

/// Runs the cases that the arguments select, each with a simulator of its own, and returns the exit
/// code. `simulatorOptions` choose the front end of the simulator.
int RunCases(int argc, char **argv, const std::vector<std::string> &simulatorOptions);

/// Whether this process was started by the simulator, for one case.
bool IsInCase();

/// The private folder of the case that this process runs. Throws outside of a case.
std::string PrivateFolder();

/// The parts of a case's private folder.
std::string ControlSocketIn(const std::string &folder);
std::string ConfigurationFolderIn(const std::string &folder);
std::string RuntimeFolderIn(const std::string &folder);
std::string SystemRootIn(const std::string &folder);

}  // namespace trxtest
