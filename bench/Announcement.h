// The announcement of a boost level as a program without the library would send it.
#pragma once

#include <string>

#include <systemd/sd-bus.h>

namespace trxbench {

/// An established connection to the session bus; never closed.
sd_bus *OpenBus();

/// The socket of such a connection.
int BusSocket();

/// The complete message as it is sent.
std::string MarshalledAnnouncement();

}  // namespace trxbench
