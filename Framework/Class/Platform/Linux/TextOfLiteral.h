#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// A literal as a text that can be handed to a host; null stays null. Here a text is what a literal
/// is already. Any thread.
inline constexpr ORVStringRef TextOfLiteral(const char *literal) noexcept { return literal; }

}  // namespace orv
