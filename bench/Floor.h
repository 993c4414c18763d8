// The floor: the system calls that a call of the library cannot do without, and nothing else. No
// text is interpreted, nothing is looked up, nothing is allocated; what a call would have to find
// out is known beforehand.
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

/// Reads the settings file into a buffer, which it gives.
std::span<const char> BareRead();

/// Replaces the settings file by one of the same contents, durably.
void BareReplace();

/// Hands a finished message to the session bus.
void BarePost();

}  // namespace trxbench
