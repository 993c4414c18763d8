#pragma once

#include <stdexcept>
#include <string>

namespace trxsim {

/// A simulator that another user may control. Nothing is sent to it and nothing of it is used.
class SimulatorNotTrusted : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The variable that names the control socket of the simulator a process runs under.
inline constexpr const char *kControlVariable = "TRX_MIXER_SIM_CONTROL";

/// Where a simulator listens by default.
struct ControlPlace {
  std::string folder;
  std::string socket;
  bool makesFolder = false;  ///< The simulator makes the folder and removes it.
};

/// The default place: in the user's runtime folder, else in a folder of this user alone under /tmp.
ControlPlace DefaultControlPlace();

/// Whether `folder` belongs to this user and nobody else may use it. Anybody can make a folder
/// under /tmp.
bool IsOwnFolder(const std::string &folder);

/// The control socket that a client uses by default: that of the simulator under which it runs,
/// else the one at the default place. Throws `SimulatorNotTrusted` when somebody else made its
/// folder.
std::string ClientControlSocket();

}  // namespace trxsim
