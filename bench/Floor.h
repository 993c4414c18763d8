// The floor: only the system calls that a call of the library cannot do without. Nothing is parsed,
// looked up or allocated; what a call would have to find out is known in advance.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace trxbench {

/// Reads the summary of every USB device, once.
void BareWalk();

/// What is sent to a unit when one unit is connected: one walk to count, one to find it, then its
/// node opened, one request, and closed.
void BareSend();

/// Reads the settings file into a buffer and returns it.
std::span<const char> BareRead();

/// Replaces the settings file by one with the same contents, durably.
void BareReplace();

/// Sends a finished message to the session bus.
void BarePost();

}  // namespace trxbench
