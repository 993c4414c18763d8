#pragma once

#include "BusLook.h"

namespace orv {

/// An opened unit: its device file, and where it is on the bus.
struct USBDeviceInterface {
  int descriptor;
  UnitAddress address;
};

/// Refers to one opened unit, or to none when null. Lives inside one exported call.
using DeviceHandle = USBDeviceInterface *;

}  // namespace orv
