#pragma once

#include <vector>

#include "Check.h"

namespace trxctl {

/// Looks at everything that can be looked at from the USB bus to the answer of a mixer, in this
/// order. What makes no sense after a problem, such as opening a mixer that is not there, is left
/// out.
std::vector<Check> CheckMixers();

}  // namespace trxctl
