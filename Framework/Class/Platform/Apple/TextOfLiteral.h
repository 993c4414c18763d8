#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// A literal as a text that can be handed to a host; null stays null. The string object is made
/// when the literal is first asked for, and stays; null when there is no memory for it. Any thread.
ORVStringRef TextOfLiteral(const char *literal) noexcept;

}  // namespace orv
