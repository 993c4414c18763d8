// Which USB devices the double of IOKit shows, and what they answer.
#pragma once

#include <optional>
#include <vector>

#include <CoreFoundation/CFPlugInCOM.h>
#include <IOKit/IOReturn.h>
#include <IOKit/usb/USB.h>

namespace trxtest {

/// The steps between finding a device and knowing it that can fail, and with what.
struct DeviceFaults {
  IOReturn plugIn = kIOReturnSuccess;  ///< The plug-in's creation; gives none when it fails.
  bool noPlugIn = false;               ///< None, even when its creation succeeds.
  HRESULT query = S_OK;                ///< What the plug-in's QueryInterface answers...
  bool noInterface = false;            ///< ...and whether it gives nothing, whatever it answers.
  IOReturn readClass = kIOReturnSuccess;
  IOReturn readSubClass = kIOReturnSuccess;
  IOReturn readVendor = kIOReturnSuccess;
  IOReturn readProduct = kIOReturnSuccess;
  IOReturn readLocation = kIOReturnSuccess;
  std::optional<ULONG> release = {};  ///< Its interface's Release answers this, not a count.
};

/// One device of the registry.
struct UsbDevice {
  int number = 0;  ///< What it is called by; its own for as long as the source lives.
  UInt16 vendor = 0;
  UInt16 product = 0;
  UInt8 deviceClass = 0;
  UInt8 subclass = 0;
  UInt32 location = 0;  ///< Where it is plugged in.
  DeviceFaults faults = {};
};

/// How one control transfer ended.
struct TransferAnswer {
  IOReturn status = kIOReturnSuccess;
  std::vector<UInt8> bytes = {};  ///< The data stage of a read; cut to what was asked for.
  /// What is noted as transferred. Nothing: as many bytes as came, or for a transfer that failed
  /// without a byte, no note at all.
  std::optional<UInt32> lengthDone = {};
};

/// The devices behind the double, in this process or in another one. Called on the threads that
/// call IOKit, on several at once when they do; never with anything of the double locked.
class DeviceSource {
 public:
  virtual ~DeviceSource() = default;

  /// The devices plugged in now, in the order of the registry.
  virtual std::vector<UsbDevice> Devices() = 0;

  /// Carries out one control transfer on endpoint 0 of the device with this number, also of one
  /// that was unplugged since it was found. The double puts what comes back where it belongs.
  virtual TransferAnswer Transfer(int device, const IOUSBDevRequest &request) = 0;
};

}  // namespace trxtest
