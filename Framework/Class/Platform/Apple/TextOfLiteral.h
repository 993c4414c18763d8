#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// A literal as a text for the host; null stays null. The string object is made at the first call
/// for a literal and then kept; null when there is no memory for it. Any thread.
ORVStringRef TextOfLiteral(const char *literal) noexcept;

}  // namespace orv
