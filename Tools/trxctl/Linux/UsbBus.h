#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace trxctl {

/// What there is on the USB bus besides mixers.
struct UsbBus {
  /// All USB devices, mixers and hubs included.
  std::size_t devices = 0;
  /// Devices of the mixers' maker that are no mixers, such as "Headphones (4f52:0020)".
  std::vector<std::string> others_of_maker;
};

/// Looks at the USB bus.
UsbBus SeenOnUsb();

}  // namespace trxctl
