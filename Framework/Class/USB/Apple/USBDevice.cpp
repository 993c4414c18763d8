#include "USBDevice.h"

#include <Availability.h>
#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>
#include <mach/mach.h>

#include "RequestObserver.h"

namespace orv {
namespace {

// Spelled out: in builds for newer systems, IOKit's constant names another class.
constexpr const char *kDeviceClass = "IOUSBDevice";

// The port for calls to the registry. macOS 12 renamed the call: builds for older systems do not
// have the new name, and builds for newer ones warn about the old name.
kern_return_t GetMasterPort(mach_port_t *port) {
#if __MAC_OS_X_VERSION_MIN_REQUIRED >= 120000
  return IOMainPort(MACH_PORT_NULL, port);
#else
  return IOMasterPort(MACH_PORT_NULL, port);
#endif
}

// --- Counting ----------------------------------------------------------------------------------

// The dictionary holds its own reference to the number. Ours is not released: a few bytes for each
// count.
void Demand(CFMutableDictionaryRef matching, CFStringRef key, SInt32 value) {
  CFDictionarySetValue(matching, key,
                       CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value));
}  // NOLINT(clang-analyzer-osx.cocoa.RetainCount): left on purpose

std::int32_t CountAndRelease(io_iterator_t devices) {
  std::int32_t count = 0;
  while (const io_object_t device = IOIteratorNext(devices)) {
    ++count;
    IOObjectRelease(device);
  }
  return count;
}

// --- Opening -----------------------------------------------------------------------------------

// One walk over all USB devices for the mixer at one position.
struct Search {
  DeviceHandle *handle;
  std::uint32_t n;  // Mixers to pass before the chosen one. Wraps behind it.
  bool found = false;
  PlatformStatus status = kIOReturnSuccess;  // Of the device examined last.
};

enum class Walk { kOn, kEnd };

struct UsbIds {
  UInt16 vendor = 0;
  UInt16 product = 0;
};

// Null when the device has none. Either way the device itself is not needed any more.
IOCFPlugInInterface **CreatePlugIn(io_service_t device, PlatformStatus *status) {
  const CFUUIDRef type = kIOUSBDeviceUserClientTypeID;
  const CFUUIDRef plugInInterface = kIOCFPlugInInterfaceID;
  IOCFPlugInInterface **plugIn = nullptr;
  SInt32 score = 0;
  *status = IOCreatePlugInInterfaceForService(device, type, plugInInterface, &plugIn, &score);
  IOObjectRelease(device);
  return *status == kIOReturnSuccess ? plugIn : nullptr;
}

// Null when the plug-in has none. Only the pointer decides; the status is ignored.
DeviceHandle ExchangeForDevice(IOCFPlugInInterface **plugIn) {
  LPVOID device = nullptr;
  (*plugIn)->QueryInterface(plugIn, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID), &device);
  (*plugIn)->Release(plugIn);
  return static_cast<DeviceHandle>(device);
}

// The values of class and subclass are ignored, but a device that cannot report them is skipped.
PlatformStatus ReadIds(DeviceHandle device, UsbIds *ids) {
  UInt8 deviceClass = 0;
  UInt8 subclass = 0;
  PlatformStatus status = (*device)->GetDeviceClass(device, &deviceClass);
  if (status == kIOReturnSuccess) status = (*device)->GetDeviceSubClass(device, &subclass);
  if (status == kIOReturnSuccess) status = (*device)->GetDeviceVendor(device, &ids->vendor);
  if (status == kIOReturnSuccess) status = (*device)->GetDeviceProduct(device, &ids->product);
  return status;
}

bool IsMixer(const UsbIds &ids) {
  return ids.vendor == kMakerUsbVendorId && ids.product == MIXER_USB_PRODUCT_ID;
}

// Gives out the chosen mixer, unless the caller already holds another one.
Walk Choose(Search *search, DeviceHandle mixer) {
  search->found = true;
  if (*search->handle == nullptr) {
    *search->handle = mixer;
    return Walk::kOn;
  }
  (*mixer)->Release(mixer);
  search->status = kIOReturnError;
  return Walk::kEnd;
}

// Takes ownership of the device. One without an interface is not a mixer. It must not cost the
// caller a mixer found earlier, so its status is that of its plug-in, which was made.
Walk Examine(Search *search, io_service_t service) {
  IOCFPlugInInterface **const plugIn = CreatePlugIn(service, &search->status);
  if (plugIn == nullptr) return Walk::kOn;
  DeviceHandle device = ExchangeForDevice(plugIn);
  if (device == nullptr) return Walk::kOn;

  UsbIds ids;
  search->status = ReadIds(device, &ids);
  if (search->status == kIOReturnSuccess && IsMixer(ids)) {
    if (search->n == 0 && Choose(search, device) == Walk::kEnd) return Walk::kEnd;
    --search->n;
  }
  // After the chosen mixer, interfaces are not released: the result of Release would replace the
  // device's status.
  if (!search->found) search->status = static_cast<PlatformStatus>((*device)->Release(device));
  return Walk::kOn;
}

// To the end, also after the chosen mixer: the caller gets the status of the last device.
PlatformStatus WalkAll(io_iterator_t devices, DeviceHandle *handle, std::uint32_t n) {
  Search search = {.handle = handle, .n = n};
  while (const io_service_t device = IOIteratorNext(devices)) {
    if (Examine(&search, device) == Walk::kEnd) break;
  }
  return search.status;
}

// The iterator stays null when there is none, even if the status is success.
PlatformStatus FindDevices(mach_port_t *masterPort, io_iterator_t *devices) {
  const PlatformStatus status = GetMasterPort(masterPort);
  if (status != kIOReturnSuccess) return status;
  CFMutableDictionaryRef matching = IOServiceMatching(kDeviceClass);
  if (matching == nullptr) return kIOReturnSuccess;
  return IOServiceGetMatchingServices(*masterPort, matching, devices);
}

}  // namespace

// An unknown location stays 0.
UnitPlace PlaceOf(DeviceHandle unit) noexcept {
  UInt32 location = 0;
  if ((*unit)->GetLocationID(unit, &location) != kIOReturnSuccess) location = 0;
  return {.location = location};
}

std::int32_t CheckUSBAudio(ProductId /*productId*/, BusLook * /*look*/) noexcept {
  // The port is kept: it is one counted name for the process. A failure is ignored: the null port
  // means the same.
  mach_port_t masterPort = MACH_PORT_NULL;
  GetMasterPort(&masterPort);
  CFMutableDictionaryRef matching = IOServiceMatching(kDeviceClass);
  if (matching == nullptr) return 0;
  Demand(matching, CFSTR("idVendor"), kMakerUsbVendorId);
  Demand(matching, CFSTR("idProduct"), MIXER_USB_PRODUCT_ID);
  io_iterator_t devices = IO_OBJECT_NULL;
  if (IOServiceGetMatchingServices(masterPort, matching, &devices) != kIOReturnSuccess) return 0;
  if (devices == IO_OBJECT_NULL) return 0;
  const std::int32_t count = CountAndRelease(devices);
  IOObjectRelease(devices);
  return count;
}

// The device is never opened for exclusive use: requests on endpoint 0 need only the device
// interface, and the audio driver and other processes keep theirs.
PlatformStatus openUSB(DeviceHandle *handle, std::uint32_t n, const BusLook & /*look*/) noexcept {
  mach_port_t masterPort = MACH_PORT_NULL;
  io_iterator_t devices = IO_OBJECT_NULL;
  PlatformStatus status = FindDevices(&masterPort, &devices);
  if (status == kIOReturnSuccess && devices != IO_OBJECT_NULL) {
    status = WalkAll(devices, handle, n);
  }
  if (*handle == nullptr) status = kIOReturnError;
  if (devices != IO_OBJECT_NULL) IOObjectRelease(devices);
  mach_port_deallocate(mach_task_self(), masterPort);
  return status;
}

PlatformStatus open_pipes(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept {
  if (handle == nullptr) return kIOReturnError;
  *handle = nullptr;
  const PlatformStatus status = openUSB(handle, n, look);
  if (status != kIOReturnSuccess && IsObserved()) {
    Report({}, *handle != nullptr ? PlaceOf(*handle) : UnitPlace{}, OutcomeOf(status));
  }
  return status;
}

// The device was not opened, so closing it fails without harm.
void closeUSB(DeviceHandle *handle) noexcept {
  DeviceHandle device = *handle;
  if (device == nullptr) return;
  (*device)->USBDeviceClose(device);
  (*device)->Release(device);
  *handle = nullptr;
}

}  // namespace orv
