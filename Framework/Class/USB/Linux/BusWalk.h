// The walk over the USB devices that the kernel shows.
#pragma once

#include "BusLook.h"

namespace orv {

/// The units connected now, in the order of the bus. Looks at the bus afresh each time; an entry
/// that vanishes while the walk looks at it is passed over. May throw std::bad_alloc.
BusLook LookAtBus();

}  // namespace orv
