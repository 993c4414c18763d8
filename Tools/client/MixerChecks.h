#pragma once

#include <vector>

#include "Diagnosis.h"

namespace client {

/// Looks at everything from the USB bus to the answer of a mixer, as far as the platform shows it.
std::vector<Check> CheckMixers();

}  // namespace client
