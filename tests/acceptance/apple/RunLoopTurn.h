#pragma once

#include <chrono>

namespace trxtest {

/// Lets this thread's run loop deliver what has arrived, waiting at most `limit` for something.
void TakeRunLoopTurn(std::chrono::milliseconds limit);

/// Returns once the daemon has all that this process has posted: GNUstep hands it over in the
/// background.
void PassThroughDaemon();

}  // namespace trxtest
