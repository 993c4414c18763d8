// The results of platform calls: IOKit's own, with IOKit's own names for them.
#pragma once

#include <IOKit/IOReturn.h>

namespace orv {

/// What a platform operation answers; 0 is success.
using PlatformStatus = IOReturn;

}  // namespace orv
