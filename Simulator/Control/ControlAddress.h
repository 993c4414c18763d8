#pragma once

#include <string>

namespace trxsim {

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

/// The control socket that a client talks to when nothing else is said: that of the simulator it
/// runs under, else the default one.
std::string ClientControlSocket();

}  // namespace trxsim
