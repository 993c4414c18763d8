#pragma once

#include <stdexcept>
#include <string>

namespace trxsim {

/// A simulator that somebody else may control: nothing is sent to it, nothing of it is used.
class SimulatorNotTrusted : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The variable that names the control socket of the simulator a process runs under.
inline constexpr const char *kControlVariable = "TRX_MIXER_SIM_CONTROL";

/// Where a simulator listens when nothing else is said.
struct ControlPlace {
  std::string folder;
  std::string socket;
  bool makesFolder = false;  ///< The folder is the simulator's own, to be made and removed.
};

/// The place that a simulator takes when nothing else is said: in the user's runtime folder, else
/// in a folder of the user's own under /tmp.
ControlPlace DefaultControlPlace();

/// Whether `folder` belongs to this user and nobody else may use it. Anybody can make a folder
/// under /tmp.
bool IsOwnFolder(const std::string &folder);

/// The control socket that a client talks to when nothing else is said: that of the simulator it
/// runs under, else the default one. Throws `SimulatorNotTrusted` when somebody else made its
/// folder.
std::string ClientControlSocket();

}  // namespace trxsim
