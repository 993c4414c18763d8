// The run loop on which notifications are delivered.
#pragma once

#include <functional>

namespace orv {

/// Runs this thread's run loop in its default mode until a condition holds. Returns whether it does
/// within the time that anything may take.
bool RunLoopUntil(const std::function<bool()> &condition);

}  // namespace orv
