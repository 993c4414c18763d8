// Lists the mixers among the USB devices of the kernel.
#pragma once

#include "BusLook.h"

namespace orv {

/// The units connected now, in the order of the bus. Reads the devices anew each time and skips an
/// entry that vanishes meanwhile. May throw std::bad_alloc.
BusLook LookAtBus();

}  // namespace orv
