// The announcement of a boost level as those who do without the library would send it.
#pragma once

#include <string>

#include <systemd/sd-bus.h>

namespace trxbench {

/// An established connection to the session bus; never closed.
sd_bus *OpenBus();

/// The socket of such a connection.
int BusSocket();

/// The announcement as it travels, in whole.
std::string MarshalledAnnouncement();

}  // namespace trxbench
