// Stands in the place of IOKit, of the little of CoreFoundation that goes with it, and of the
// kernel's ports. The registry shows what a DeviceSource has; every call is recorded as a line;
// every reference is counted. What the code under test leaves alive stays the double's, so that
// no memory is lost with it.
#pragma once

#include <string>
#include <vector>

#include <IOKit/IOReturn.h>

#include "DeviceSource.h"
#include "References.h"

namespace trxtest {

/// The steps in front of any device that can fail, and with what.
struct RegistryFaults {
  IOReturn masterPort = kIOReturnSuccess;
  bool noDictionary = false;
  IOReturn services = kIOReturnSuccess;
  bool noIterator = false;  ///< Success, yet no iterator.
};

/// One for the process, as IOKit is. Safe for any number of threads.
class IOKitDouble {
 public:
  IOKitDouble() = delete;

  /// Shows the devices of `source`, which must outlive that; none with a null pointer, as at the
  /// start.
  static void Show(DeviceSource *source);

  static void SetFaults(const RegistryFaults &faults);

  /// The calls since the start or the last taking, such as "IOObjectRelease(device 2)". A result
  /// follows after " = "; a status does so only when it is not success, as "= E00002C5".
  static std::vector<std::string> TakeCalls();

  /// The references alive now.
  static References Alive();

  /// What no caller may do, since the start or the last taking: to use or release what it has no
  /// reference to, or to pass what is of another kind.
  static std::vector<std::string> TakeMisuses();

  /// Back to the start: no source, no faults, nothing alive, no calls, no misuses.
  static void Reset();
};

}  // namespace trxtest
