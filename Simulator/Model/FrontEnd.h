#pragma once

#include <cstdint>
#include <string>

#include "Fault.h"

namespace trxsim {

/// How a unit identifies itself. It stays the same over unplug and replug.
struct UsbIdentity {
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;
  bool isMixer = false;      ///< It has audio and MIDI interfaces.
  std::string manufacturer;  ///< Empty: the unit has no such text.
  std::string productName;   ///< Empty: the unit has no such text.
  std::string serial;        ///< Empty: the unit has no such text.
};

/// The address of a plugged unit.
struct BusAddress {
  int bus = 0;
  int device = 0;

  bool operator==(const BusAddress &) const = default;
};

/// Shows units to hosts. The desk calls it with its lock held, one call at a time, so these
/// functions must not call the desk. Requests of hosts reach the desk through a `RequestGate`.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  /// Plugs unit `number` in, with `fault` in force from the start, and returns its address.
  /// Throws `DeskError` when it cannot.
  virtual BusAddress Plug(int number, const UsbIdentity &identity, OpenFault fault) = 0;

  /// Unplugs unit `number`. Its requests that are under way end at once.
  virtual void Unplug(int number) = 0;

  /// Sets what happens when a host opens the plugged unit `number`. Throws `DeskError` when the
  /// system does not allow it.
  virtual void SetOpenFault(int number, OpenFault fault) = 0;
};

}  // namespace trxsim
