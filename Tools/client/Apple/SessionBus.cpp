#include "SessionBus.h"

namespace client {

// The system's own centre carries announcements, and it is always there.
std::optional<bool> HasSessionBus() { return std::nullopt; }

}  // namespace client
