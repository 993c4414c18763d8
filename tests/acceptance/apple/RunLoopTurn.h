#pragma once

#include <chrono>

namespace trxtest {

/// Runs this thread's run loop: waits at most `limit` for notifications and delivers them.
void TakeRunLoopTurn(std::chrono::milliseconds limit);

/// Returns when the daemon has everything that this process has posted: GNUstep sends it in the
/// background.
void PassThroughDaemon();

}  // namespace trxtest
