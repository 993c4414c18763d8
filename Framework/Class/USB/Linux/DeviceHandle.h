#pragma once

namespace orv {

/// An opened unit: its device file.
struct USBDeviceInterface {
  int descriptor;
};

/// Refers to one opened unit, or to none when null. Lives inside one exported call.
using DeviceHandle = USBDeviceInterface *;

}  // namespace orv
