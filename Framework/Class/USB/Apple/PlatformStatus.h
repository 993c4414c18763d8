// The results of platform calls: those of IOKit.
#pragma once

#include <IOKit/IOReturn.h>

namespace orv {

/// The result of a platform operation; 0 is success.
using PlatformStatus = IOReturn;

}  // namespace orv
