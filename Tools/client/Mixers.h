#pragma once

#include <string>
#include <vector>

namespace client {

/// One connected mixer, as the system describes it.
struct Mixer {
  std::string product;
  unsigned bus = 0;
  unsigned address = 0;
  /// Empty when the mixer has none.
  std::string serial = {};
  /// The file that it is opened through; empty where the system has no such files.
  std::string node = {};
  /// On macOS, in place of bus and address.
  unsigned location = 0;
};

/// What there is on the USB bus besides mixers.
struct UsbBus {
  /// Whether the system shows its USB devices at all.
  bool visible = false;
  /// The system's reason when it does not.
  int reason = 0;
  /// All USB devices, mixers and hubs included.
  std::size_t devices = 0;
  /// Devices of the mixers' maker that are no mixers, such as "Headphones (4f52:0020)".
  std::vector<std::string> othersOfMaker = {};
};

/// The connected mixers, in the order of their bus and address. Empty also when they cannot be
/// listed, as on macOS, where only the library looks for them.
std::vector<Mixer> ConnectedMixers();

/// Whether the library finds a mixer connected.
bool IsMixerConnected();

/// 0 when this user may open the mixer, else the system's reason why not.
int RefusalToOpen(const Mixer &mixer);

/// Looks at the USB bus.
UsbBus SeenOnUsb();

}  // namespace client
