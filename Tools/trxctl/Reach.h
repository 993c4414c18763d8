#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "MixerList.h"

namespace trxctl {

/// Where a value goes: which mixers are there to take it, at the time when this is made.
struct Reach {
  bool connected = IsMixerConnected();
  std::vector<Mixer> mixers = connected ? ConnectedMixers() : std::vector<Mixer>();
  std::size_t accessible = CountAccessible(mixers);
};

/// Throws Failure when no mixer can be reached.
///
/// @param message  what is not done then, such as "nothing was sent".
void RequireReached(const Reach &reach, const std::string &message);

/// "2 of 3 connected mixers"; nothing when the system does not tell.
std::string CountAsText(const Reach &reach);

/// "Sent to 2 of 2 mixers." and, for each mixer that could not be reached, why.
std::string ReachAsText(const Reach &reach);

/// The members "connected", "sent_to" and "mixers" of the documented shape.
nlohmann::ordered_json ReachAsJson(const Reach &reach);

}  // namespace trxctl
