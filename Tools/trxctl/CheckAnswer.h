#pragma once

#include "Check.h"

namespace trxctl {

/// Finds that no mixer is connected.
Check NoMixer();

/// Asks the connected mixers something, without a change to anything.
Check CheckAnswer();

}  // namespace trxctl
