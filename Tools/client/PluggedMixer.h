#pragma once

#include <optional>
#include <string>

#include "Mixers.h"

namespace client {

/// The mixer that a device of the system is, or is a part of; nothing when it is none, or is gone.
///
/// @param device  on Linux its folder below /sys, that of one of its interfaces, or its device
///                file; on macOS kPlugEvent.
std::optional<Mixer> PluggedMixer(const std::string &device);

/// On macOS: the mixer of the event for which launchd has started this process.
inline constexpr char kPlugEvent[] = "plug-event";

/// What came of waiting for the right to open a mixer.
struct AccessWait {
  /// 0 when this user may open it now, else the system's reason why not.
  int refusal = 0;
  /// Whether this user sits at no machine, as after a login from elsewhere, so that no wait helps.
  bool isWithoutSeat = false;
};

/// Waits until this user may open the mixer, as the right follows the plug. For half a minute at
/// most, and not at all when something else keeps it from being opened.
AccessWait WaitForAccess(const Mixer &mixer);

/// The library sends to every mixer that it can open. After this call it can open this one only, in
/// this process and for the rest of its life; the process can then write to no other file either.
///
/// @return false where the system cannot do this.
bool LeaveOtherMixersAlone(const Mixer &mixer);

}  // namespace client
