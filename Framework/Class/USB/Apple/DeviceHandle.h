#pragma once

#include <IOKit/usb/IOUSBLib.h>

namespace orv {

/// Refers to one opened unit by its device interface, or to none when null. Lives inside one
/// exported call.
using DeviceHandle = IOUSBDeviceInterface **;

}  // namespace orv
