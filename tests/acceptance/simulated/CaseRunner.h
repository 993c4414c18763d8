// The main program of the rigs whose mixers are software. Every case runs in a process of its own,
// started under a simulator with a private folder: the library's registrations last as long as a
// process, and no case may see what another left behind.
#pragma once

#include <string>
#include <vector>

namespace trxtest {

/// Runs the cases that the arguments select, each by itself on an empty desk, and returns the exit
/// code. `simulatorOptions` choose the front end of the simulator.
int RunCases(int argc, char **argv, const std::vector<std::string> &simulatorOptions);

/// Whether this process runs under the simulator, for one case.
bool IsInCase();

/// The private folder of the case that this process runs. Throws outside of a case.
std::string PrivateFolder();

/// Where things lie in the private folder of a case.
std::string ControlSocketIn(const std::string &folder);
std::string ConfigurationFolderIn(const std::string &folder);
std::string RuntimeFolderIn(const std::string &folder);
std::string SystemRootIn(const std::string &folder);

}  // namespace trxtest
