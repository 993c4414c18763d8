// The floor: only the system calls that a call of the library cannot do without. Nothing is parsed,
// looked up or allocated; what a call would have to find out is known in advance. For the settings,
// InterfaceOperations.cpp adds what libplist alone takes.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace trxbench {

/// Reads the summary of every USB device, once.
void BareWalk();

/// What is sent to a unit when one unit is connected: one walk to find it, then its node opened,
/// its descriptor read, one request, and closed.
void BareSend();

/// Reads the settings file into a buffer and returns it.
std::span<const char> BareRead();

/// Replaces the settings file by one with these contents, durably.
void BareReplace(std::span<const char> contents);

/// Sends a finished message to the session bus.
void BarePost();

}  // namespace trxbench
