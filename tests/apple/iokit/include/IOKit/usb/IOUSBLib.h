// A USB device as a program talks to it.
#pragma once

#include <CoreFoundation/CFPlugInCOM.h>
#include <CoreFoundation/CFRunLoop.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/USB.h>

#define kIOUSBDeviceUserClientTypeID                                                            \
  CFUUIDGetConstantUUIDWithBytes(0, 0x9d, 0xc7, 0xb7, 0x80, 0x9e, 0xc0, 0x11, 0xD4, 0xa5, 0x4f, \
                                 0x00, 0x0a, 0x27, 0x05, 0x28, 0x61)

#define kIOUSBDeviceInterfaceID100                                                              \
  CFUUIDGetConstantUUIDWithBytes(0, 0x5c, 0x81, 0x87, 0xd0, 0x9e, 0xf3, 0x11, 0xD4, 0x8b, 0x45, \
                                 0x00, 0x0a, 0x27, 0x05, 0x28, 0x61)
#define kIOUSBDeviceInterfaceID kIOUSBDeviceInterfaceID100

// The class of a USB device goes by another name in builds for newer systems only; both names are
// in the registry.
#if __MAC_OS_X_VERSION_MIN_REQUIRED <= 101400
#define kIOUSBDeviceClassName "IOUSBDevice"
#else
#define kIOUSBDeviceClassName "IOUSBHostDevice"
#endif

typedef struct IOUSBDeviceStruct100 {
  IUNKNOWN_C_GUTS;
  IOReturn (*CreateDeviceAsyncEventSource)(void *self, CFRunLoopSourceRef *source);
  CFRunLoopSourceRef (*GetDeviceAsyncEventSource)(void *self);
  IOReturn (*CreateDeviceAsyncPort)(void *self, mach_port_t *port);
  mach_port_t (*GetDeviceAsyncPort)(void *self);
  IOReturn (*USBDeviceOpen)(void *self);
  IOReturn (*USBDeviceClose)(void *self);
  IOReturn (*GetDeviceClass)(void *self, UInt8 *devClass);
  IOReturn (*GetDeviceSubClass)(void *self, UInt8 *devSubClass);
  IOReturn (*GetDeviceProtocol)(void *self, UInt8 *devProtocol);
  IOReturn (*GetDeviceVendor)(void *self, UInt16 *devVendor);
  IOReturn (*GetDeviceProduct)(void *self, UInt16 *devProduct);
  IOReturn (*GetDeviceReleaseNumber)(void *self, UInt16 *devRelNum);
  IOReturn (*GetDeviceAddress)(void *self, USBDeviceAddress *addr);
  IOReturn (*GetDeviceBusPowerAvailable)(void *self, UInt32 *powerAvailable);
  IOReturn (*GetDeviceSpeed)(void *self, UInt8 *devSpeed);
  IOReturn (*GetNumberOfConfigurations)(void *self, UInt8 *numConfig);
  IOReturn (*GetLocationID)(void *self, UInt32 *locationID);
  IOReturn (*GetConfigurationDescriptorPtr)(void *self, UInt8 configIndex,
                                            IOUSBConfigurationDescriptorPtr *desc);
  IOReturn (*GetConfiguration)(void *self, UInt8 *configNum);
  IOReturn (*SetConfiguration)(void *self, UInt8 configNum);
  IOReturn (*GetBusFrameNumber)(void *self, UInt64 *frame, AbsoluteTime *atTime);
  IOReturn (*ResetDevice)(void *self);
  IOReturn (*DeviceRequest)(void *self, IOUSBDevRequest *req);
  IOReturn (*DeviceRequestAsync)(void *self, IOUSBDevRequest *req, IOAsyncCallback1 callback,
                                 void *refCon);
  IOReturn (*CreateInterfaceIterator)(void *self, IOUSBFindInterfaceRequest *req,
                                      io_iterator_t *iter);
} IOUSBDeviceInterface100;

// Newer versions add functions behind these. The name without a number is the newest version on the
// platform; only the oldest may be counted on, and that is all there is here.
typedef IOUSBDeviceInterface100 IOUSBDeviceInterface;
