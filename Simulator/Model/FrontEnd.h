#pragma once

#include <cstdint>
#include <string>

#include "Fault.h"

namespace trxsim {

/// What a unit says of itself to the USB core. It stays the same over unplug and replug.
struct UsbIdentity {
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;
  bool isMixer = false;      ///< One of ours: shows audio and MIDI interfaces.
  std::string manufacturer;  ///< Empty: the unit has no such text.
  std::string productName;   ///< Empty: the unit has no such text.
  std::string serial;        ///< Empty: the unit has no such text.
};

/// Where a plugged unit is found.
struct BusAddress {
  int bus = 0;
  int device = 0;

  bool operator==(const BusAddress &) const = default;
};

/// The side that shows units to hosts. The desk calls it with its lock held, one call at a time;
/// it must not call the desk from within these functions. Requests of hosts come in the other way,
/// through a `RequestGate`.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  /// Makes unit `number` appear on the bus, with `fault` in force from the start, and says where.
  /// Throws `DeskError` when it cannot.
  virtual BusAddress Plug(int number, const UsbIdentity &identity, OpenFault fault) = 0;

  /// Makes unit `number` disappear; requests of it that are still under way end at once.
  virtual void Unplug(int number) = 0;

  /// Sets what happens when a host opens the plugged unit `number`. Throws `DeskError` when the
  /// system does not allow it.
  virtual void SetOpenFault(int number, OpenFault fault) = 0;
};

}  // namespace trxsim
