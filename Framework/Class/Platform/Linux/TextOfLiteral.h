#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// A literal as a text for the host; null stays null. On Linux a literal already is a text. Any
/// thread.
inline constexpr ORVStringRef TextOfLiteral(const char *literal) noexcept { return literal; }

}  // namespace orv
