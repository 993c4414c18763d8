#pragma once

#include <CoreFoundation/CFBase.h>
#include <IOKit/IOReturn.h>

#define iokit_usb_err(return ) (sys_iokit | sub_iokit_usb | return )
#define kIOUSBPipeStalled iokit_usb_err(0x4f)
#define kIOUSBTransactionTimeout iokit_usb_err(0x51)

typedef UInt16 USBDeviceAddress;
typedef struct IOUSBConfigurationDescriptor *IOUSBConfigurationDescriptorPtr;

/// One control transfer: the setup packet, where its data is, and how much of it was transferred.
typedef struct IOUSBDevRequest {
  UInt8 bmRequestType;
  UInt8 bRequest;
  UInt16 wValue;
  UInt16 wIndex;
  UInt16 wLength;
  void *pData;
  UInt32 wLenDone;
} IOUSBDevRequest;

typedef struct IOUSBFindInterfaceRequest {
  UInt16 bInterfaceClass;
  UInt16 bInterfaceSubClass;
  UInt16 bInterfaceProtocol;
  UInt16 bAlternateSetting;
} IOUSBFindInterfaceRequest;
