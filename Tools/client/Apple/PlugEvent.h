#pragma once

#include <optional>
#include <string>

namespace client {

/// The product name of the mixer for which launchd has started this process; nothing when launchd
/// has not, or the mixer is gone. Taking the event keeps launchd from starting it again.
std::optional<std::string> ProductOfPlugEvent();

}  // namespace client
