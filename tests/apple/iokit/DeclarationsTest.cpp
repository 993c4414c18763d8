// The declarations that the product is compiled with here are those of the platform: layouts,
// types, values.
#include <cstddef>
#include <type_traits>

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>
#include <gtest/gtest.h>
#include <mach/mach.h>

#include "DoubleState.h"

namespace trxtest {
namespace {

// --- Layouts -----------------------------------------------------------------------------------

static_assert(sizeof(void *) == 8);

static_assert(sizeof(CFUUIDBytes) == 16);
static_assert(offsetof(CFUUIDBytes, byte15) == 15);

static_assert(sizeof(IOUSBDevRequest) == 24);
static_assert(offsetof(IOUSBDevRequest, bmRequestType) == 0);
static_assert(offsetof(IOUSBDevRequest, bRequest) == 1);
static_assert(offsetof(IOUSBDevRequest, wValue) == 2);
static_assert(offsetof(IOUSBDevRequest, wIndex) == 4);
static_assert(offsetof(IOUSBDevRequest, wLength) == 6);
static_assert(offsetof(IOUSBDevRequest, pData) == 8);
static_assert(offsetof(IOUSBDevRequest, wLenDone) == 16);

static_assert(sizeof(IOUSBFindInterfaceRequest) == 8);

static_assert(sizeof(IOCFPlugInInterface) == 64);
static_assert(offsetof(IOCFPlugInInterface, QueryInterface) == 8);
static_assert(offsetof(IOCFPlugInInterface, AddRef) == 16);
static_assert(offsetof(IOCFPlugInInterface, Release) == 24);
static_assert(offsetof(IOCFPlugInInterface, version) == 32);
static_assert(offsetof(IOCFPlugInInterface, revision) == 34);
static_assert(offsetof(IOCFPlugInInterface, Probe) == 40);
static_assert(offsetof(IOCFPlugInInterface, Start) == 48);
static_assert(offsetof(IOCFPlugInInterface, Stop) == 56);

// The place of a function is what the platform calls it by.
constexpr std::size_t Place(std::size_t offset) { return offset / sizeof(void *); }

static_assert(sizeof(IOUSBDeviceInterface) == 29 * sizeof(void *));
static_assert(Place(offsetof(IOUSBDeviceInterface, QueryInterface)) == 1);
static_assert(Place(offsetof(IOUSBDeviceInterface, AddRef)) == 2);
static_assert(Place(offsetof(IOUSBDeviceInterface, Release)) == 3);
static_assert(Place(offsetof(IOUSBDeviceInterface, CreateDeviceAsyncEventSource)) == 4);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceAsyncEventSource)) == 5);
static_assert(Place(offsetof(IOUSBDeviceInterface, CreateDeviceAsyncPort)) == 6);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceAsyncPort)) == 7);
static_assert(Place(offsetof(IOUSBDeviceInterface, USBDeviceOpen)) == 8);
static_assert(Place(offsetof(IOUSBDeviceInterface, USBDeviceClose)) == 9);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceClass)) == 10);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceSubClass)) == 11);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceProtocol)) == 12);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceVendor)) == 13);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceProduct)) == 14);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceReleaseNumber)) == 15);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceAddress)) == 16);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceBusPowerAvailable)) == 17);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetDeviceSpeed)) == 18);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetNumberOfConfigurations)) == 19);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetLocationID)) == 20);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetConfigurationDescriptorPtr)) == 21);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetConfiguration)) == 22);
static_assert(Place(offsetof(IOUSBDeviceInterface, SetConfiguration)) == 23);
static_assert(Place(offsetof(IOUSBDeviceInterface, GetBusFrameNumber)) == 24);
static_assert(Place(offsetof(IOUSBDeviceInterface, ResetDevice)) == 25);
static_assert(Place(offsetof(IOUSBDeviceInterface, DeviceRequest)) == 26);
static_assert(Place(offsetof(IOUSBDeviceInterface, DeviceRequestAsync)) == 27);
static_assert(Place(offsetof(IOUSBDeviceInterface, CreateInterfaceIterator)) == 28);

// --- Types -------------------------------------------------------------------------------------

template <auto function, typename Type>
constexpr bool kIs = std::is_same_v<decltype(function), Type>;

static_assert(std::is_same_v<kern_return_t, int>);
static_assert(std::is_same_v<IOReturn, int>);
static_assert(std::is_same_v<HRESULT, int>);
static_assert(std::is_same_v<ULONG, unsigned int>);
static_assert(std::is_same_v<io_object_t, unsigned int>);
static_assert(std::is_same_v<mach_port_t, unsigned int>);
static_assert(std::is_same_v<SInt32, int>);
static_assert(std::is_same_v<CFIndex, long>);
static_assert(std::is_same_v<std::underlying_type_t<CFNumberType>, long>);

static_assert(kIs<IOServiceMatching, CFMutableDictionaryRef (*)(const char *)>);
static_assert(kIs<IOServiceGetMatchingServices,
                  kern_return_t (*)(mach_port_t, CFDictionaryRef, io_iterator_t *)>);
static_assert(kIs<IOIteratorNext, io_object_t (*)(io_iterator_t)>);
static_assert(kIs<IOObjectRelease, kern_return_t (*)(io_object_t)>);
static_assert(
    kIs<IOCreatePlugInInterfaceForService,
        kern_return_t (*)(io_service_t, CFUUIDRef, CFUUIDRef, IOCFPlugInInterface ***, SInt32 *)>);
static_assert(kIs<mach_port_deallocate, kern_return_t (*)(ipc_space_t, mach_port_name_t)>);
static_assert(kIs<CFNumberCreate, CFNumberRef (*)(CFAllocatorRef, CFNumberType, const void *)>);
static_assert(
    kIs<CFDictionarySetValue, void (*)(CFMutableDictionaryRef, const void *, const void *)>);
static_assert(kIs<CFUUIDGetUUIDBytes, CFUUIDBytes (*)(CFUUIDRef)>);

static_assert(kIs<&IOUSBDeviceInterface::DeviceRequest,
                  IOReturn (*IOUSBDeviceInterface::*)(void *, IOUSBDevRequest *)>);
static_assert(kIs<&IOUSBDeviceInterface::GetDeviceClass,
                  IOReturn (*IOUSBDeviceInterface::*)(void *, UInt8 *)>);
static_assert(kIs<&IOUSBDeviceInterface::GetDeviceVendor,
                  IOReturn (*IOUSBDeviceInterface::*)(void *, UInt16 *)>);
static_assert(kIs<&IOUSBDeviceInterface::Release, ULONG (*IOUSBDeviceInterface::*)(void *)>);
static_assert(kIs<&IOCFPlugInInterface::QueryInterface,
                  HRESULT (*IOCFPlugInInterface::*)(void *, CFUUIDBytes, void **)>);

// --- Values ------------------------------------------------------------------------------------

TEST(Declarations, StatusesHaveTheirValues) {
  EXPECT_EQ(kIOReturnSuccess, 0);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnError), 0xE00002BCU);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnNoDevice), 0xE00002C0U);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnBadArgument), 0xE00002C2U);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnExclusiveAccess), 0xE00002C5U);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnUnsupported), 0xE00002C7U);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnNotOpen), 0xE00002CDU);
  EXPECT_EQ(static_cast<unsigned>(kIOReturnNotResponding), 0xE00002EDU);
  EXPECT_EQ(static_cast<unsigned>(kIOUSBPipeStalled), 0xE000404FU);
  EXPECT_EQ(static_cast<unsigned>(kIOUSBTransactionTimeout), 0xE0004051U);
  EXPECT_EQ(static_cast<unsigned>(E_NOINTERFACE), 0x80000004U);
}

TEST(Declarations, OtherConstantsHaveTheirValues) {
  EXPECT_EQ(kCFNumberSInt32Type, 3);
  EXPECT_EQ(MACH_PORT_NULL, 0);
  EXPECT_EQ(IO_OBJECT_NULL, 0U);
}

TEST(Declarations, IdentifiersHaveTheirBytes) {
  EXPECT_EQ(Text(kIOUSBDeviceUserClientTypeID), "9DC7B780-9EC0-11D4-A54F-000A27052861");
  EXPECT_EQ(Text(kIOCFPlugInInterfaceID), "C244E858-109C-11D4-91D4-0050E4C6426F");
  EXPECT_EQ(Text(kIOUSBDeviceInterfaceID), "5C8187D0-9EF3-11D4-8B45-000A27052861");
}

}  // namespace
}  // namespace trxtest
