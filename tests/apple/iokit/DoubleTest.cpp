// The double itself: it must notice what the tests count on it to notice.
#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>
#include <mach/mach.h>

#include "IOKitTest.h"

namespace trxtest {
namespace {

class Double : public IOKitTest {
 protected:
  io_iterator_t Walk() {
    io_iterator_t iterator = IO_OBJECT_NULL;
    IOServiceGetMatchingServices(MACH_PORT_NULL, IOServiceMatching("IOUSBDevice"), &iterator);
    return iterator;
  }

  IOCFPlugInInterface **PlugIn() {
    IOCFPlugInInterface **plugIn = nullptr;
    SInt32 score = 0;
    const io_iterator_t iterator = Walk();
    const io_service_t device = IOIteratorNext(iterator);
    IOCreatePlugInInterfaceForService(device, kIOUSBDeviceUserClientTypeID, kIOCFPlugInInterfaceID,
                                      &plugIn, &score);
    IOObjectRelease(device);
    IOObjectRelease(iterator);
    return plugIn;
  }
};

TEST_F(Double, TheDoubleCountsADictionaryAndWhatItRefersTo) {
  const SInt32 one = 1;
  const CFMutableDictionaryRef dictionary = IOServiceMatching("IOUSBDevice");
  const CFNumberRef number = CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &one);
  CFDictionarySetValue(dictionary, CFSTR("idVendor"), number);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.dictionaries = 1, .numbers = 2}));
  CFRelease(number);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.dictionaries = 1, .numbers = 1}));
  CFRetain(dictionary);
  CFRelease(dictionary);
  CFRelease(dictionary);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(Double, TheDoubleReplacesADemandOfTheSameName) {
  const SInt32 one = 1;
  const CFMutableDictionaryRef dictionary = IOServiceMatching("IOUSBDevice");
  for (int i = 0; i < 2; ++i) {
    const CFNumberRef number = CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &one);
    CFDictionarySetValue(dictionary, CFSTR("idVendor"), number);
    CFRelease(number);
  }
  EXPECT_EQ(IOKitDouble::Alive(), (References{.dictionaries = 1, .numbers = 1}));
  CFRelease(dictionary);
}

TEST_F(Double, TheDoubleFindsNoDeviceOfAnotherClass) {
  devices_.PlugMixer();
  io_iterator_t iterator = IO_OBJECT_NULL;
  IOServiceGetMatchingServices(MACH_PORT_NULL, IOServiceMatching("IOUSBInterface"), &iterator);
  EXPECT_EQ(IOIteratorNext(iterator), IO_OBJECT_NULL);
}

TEST_F(Double, TheDoubleCountsWhatIsLeftOfAWalk) {
  devices_.PlugMixer();
  IOIteratorNext(Walk());
  EXPECT_EQ(IOKitDouble::Alive(), (References{.iterators = 1, .devices = 1}));
}

TEST_F(Double, TheDoubleCountsPlugInsAndInterfaces) {
  devices_.PlugMixer();
  IOCFPlugInInterface **const plugIn = PlugIn();
  LPVOID device = nullptr;
  (*plugIn)->QueryInterface(plugIn, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID), &device);
  EXPECT_EQ((*plugIn)->AddRef(plugIn), 2U);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.plugIns = 2, .interfaces = 1}));
  EXPECT_EQ((*plugIn)->Release(plugIn), 1U);
  EXPECT_EQ((*plugIn)->Release(plugIn), 0U);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.interfaces = 1}));
}

TEST_F(Double, TheDoubleGivesNoInterfaceThatItDoesNotKnow) {
  devices_.PlugMixer();
  IOCFPlugInInterface **const plugIn = PlugIn();
  LPVOID device = nullptr;
  EXPECT_EQ((*plugIn)->QueryInterface(plugIn, CFUUIDGetUUIDBytes(kIOCFPlugInInterfaceID), &device),
            E_NOINTERFACE);
  EXPECT_EQ(device, nullptr);
}

TEST_F(Double, TheDoubleShowsTheOpeningOfADeviceInItsRecord) {
  devices_.PlugMixer();
  IOCFPlugInInterface **const plugIn = PlugIn();
  LPVOID given = nullptr;
  (*plugIn)->QueryInterface(plugIn, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID), &given);
  IOKitDouble::TakeCalls();
  auto **const device = static_cast<IOUSBDeviceInterface **>(given);
  (*device)->USBDeviceOpen(device);
  EXPECT_EQ(IOKitDouble::TakeCalls(), (Lines{"interface of device 1: USBDeviceOpen"}));
}

TEST_F(Double, TheDoubleNoticesWhatIsReleasedTwice) {
  const io_iterator_t iterator = Walk();
  IOObjectRelease(iterator);
  IOObjectRelease(iterator);
  mach_port_deallocate(mach_task_self(), 0x0903);
  const CFMutableDictionaryRef dictionary = IOServiceMatching("IOUSBDevice");
  CFRelease(dictionary);
  CFRelease(dictionary);
  EXPECT_EQ(IOKitDouble::TakeMisuses(), (Lines{
                                            "IOObjectRelease of what is not held",
                                            "mach_port_deallocate of a port that is not held",
                                            "CFRelease of what is no value or alive no more",
                                        }));
}

TEST_F(Double, TheDoubleNoticesWhatIsUsedAfterItsEndOrForAnother) {
  devices_.PlugMixer();
  IOIteratorNext(IO_OBJECT_NULL);
  io_iterator_t iterator = IO_OBJECT_NULL;
  IOServiceGetMatchingServices(0x0903, IOServiceMatching("IOUSBDevice"), &iterator);
  IOCFPlugInInterface **const plugIn = PlugIn();
  (*plugIn)->AddRef(plugIn);
  (*plugIn)->Release(&iterator);
  EXPECT_EQ(IOKitDouble::TakeMisuses(),
            (Lines{
                "IOIteratorNext of what is no iterator",
                "IOServiceGetMatchingServices with a port that is not held",
                "Release of what is not held",
            }));
}

TEST_F(Double, TheDoubleNoticesAPlugInOfWhatIsNoDevice) {
  const io_iterator_t iterator = Walk();
  IOCFPlugInInterface **plugIn = nullptr;
  SInt32 score = 0;
  IOCreatePlugInInterfaceForService(iterator, kIOUSBDeviceUserClientTypeID, kIOCFPlugInInterfaceID,
                                    &plugIn, &score);
  EXPECT_EQ(plugIn, nullptr);
  EXPECT_EQ(IOKitDouble::TakeMisuses(),
            (Lines{"IOCreatePlugInInterfaceForService of what is no device"}));
}

TEST_F(Double, TheDoubleShowsNoDeviceWithoutASource) {
  devices_.PlugMixer();
  IOKitDouble::Show(nullptr);
  EXPECT_EQ(IOIteratorNext(Walk()), IO_OBJECT_NULL);
}

}  // namespace
}  // namespace trxtest
