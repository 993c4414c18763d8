#pragma once

#include <optional>

namespace client {

/// Whether this process can reach a session bus. Without one nothing is announced; the library
/// itself stays silent about it. Nothing on a platform where announcements need no such bus.
std::optional<bool> HasSessionBus();

}  // namespace client
