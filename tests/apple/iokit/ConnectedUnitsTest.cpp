// How every setting reaches the mixers, with the code for macOS.
#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "ConnectedUnits.h"
#include "IOKitTest.h"

namespace trxtest {
namespace {

using orv::ApplyToEveryUnit;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kHeld = static_cast<IOReturn>(0xE00002C5);

class ConnectedUnits : public IOKitTest {
 protected:
  ConnectedUnits() {
    devices_.SetScript([this](int device, const IOUSBDevRequest &) {
      reached_.push_back(device);
      return TransferAnswer();
    });
  }

  // The devices that a setting reached, in order.
  std::vector<int> Reached() {
    reached_.clear();
    counted_ = ApplyToEveryUnit(11, orv::SetMidiChannelSetting, 0x0F00).Count();
    return reached_;
  }

  std::int32_t Counted() const { return counted_; }

 private:
  std::vector<int> reached_;
  std::int32_t counted_ = 0;
};

TEST_F(ConnectedUnits, AUnitIsCountedOpenedAskedAndClosed) {
  devices_.PlugMixer();
  EXPECT_THAT(Reached(), ElementsAre(1));
  EXPECT_EQ(
      IOKitDouble::TakeCalls(),
      Joined({{MasterPortGiven(), "IOServiceMatching(IOUSBDevice) = dictionary 1",
               "CFNumberCreate(default, SInt32, 20306) = number 1",
               "CFDictionarySetValue(dictionary 1, idVendor, number 1)",
               "CFNumberCreate(default, SInt32, 31) = number 2",
               "CFDictionarySetValue(dictionary 1, idProduct, number 2)",
               "IOServiceGetMatchingServices(master port, dictionary 1) = iterator 1",
               "IOIteratorNext(iterator 1) = device 1", "IOObjectRelease(device 1)",
               "IOIteratorNext(iterator 1) = nothing", "IOObjectRelease(iterator 1)"},
              WalkBegins("2"),
              Kept("1", "2"),
              WalkEnds("2"),
              {"interface of device 1: DeviceRequest(40 03 wValue 0f00 wIndex 8004 wLength 0)",
               "interface of device 1: USBDeviceClose = E00002CD",
               "interface of device 1: Release"}}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
}

TEST_F(ConnectedUnits, AllUnitsAreReachedInTheOrderOfTheRegistry) {
  devices_.PlugMixer();
  devices_.PlugUnrelated();
  devices_.PlugMixer();
  devices_.PlugMixer();
  EXPECT_THAT(Reached(), ElementsAre(1, 3, 4));
  EXPECT_EQ(Counted(), 3);
  // Behind the first mixer three interfaces are left, behind the second one.
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2, .interfaces = 4}));
}

TEST_F(ConnectedUnits, NoUnitIsReachedWhenThereIsNone) {
  devices_.PlugOtherProductOfTheMaker();
  EXPECT_THAT(Reached(), IsEmpty());
  EXPECT_EQ(Counted(), 0);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
}

TEST_F(ConnectedUnits, AUnitThatRefusesRequestsIsClosedAllTheSame) {
  devices_.PlugMixer();
  devices_.SetScript(
      [](int, const IOUSBDevRequest &) { return TransferAnswer{.status = kIOUSBPipeStalled}; });
  EXPECT_THAT(Reached(), IsEmpty());
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
}

TEST_F(ConnectedUnits, AUnitWithoutAPlugInIsSkipped) {
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugMixer(), {.plugIn = kHeld});
  devices_.PlugMixer();
  EXPECT_THAT(Reached(), ElementsAre(1, 3));
  EXPECT_EQ(Counted(), 3);
}

struct Status {
  const char *name;
  unsigned value;
};

// The status of a device after the chosen mixer counts as the mixer's.
class ConnectedUnitsBeforeAFailingDevice : public ConnectedUnits,
                                           public testing::WithParamInterface<Status> {};

TEST_P(ConnectedUnitsBeforeAFailingDevice, UnitsBeforeAFailingDeviceAreSkippedAndNotClosed) {
  devices_.PlugMixer();
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugUnrelated(), {.plugIn = static_cast<IOReturn>(GetParam().value)});
  EXPECT_THAT(Reached(), IsEmpty());
  EXPECT_EQ(Counted(), 2);
  for (const std::string &line : IOKitDouble::TakeCalls()) {
    EXPECT_THAT(line, testing::Not(testing::HasSubstr("USBDeviceClose")));
  }
  // Of the first walk both mixers, of the second the second one.
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2, .interfaces = 3}));
}

INSTANTIATE_TEST_SUITE_P(Each, ConnectedUnitsBeforeAFailingDevice,
                         testing::Values(Status{"Held", 0xE00002C5}, Status{"Error", 0xE00002BC},
                                         Status{"NoResources", 0xE00002BE}, Status{"One", 1}),
                         NameOf<Status>);

TEST_F(ConnectedUnits, AUnitUnpluggedSinceTheCountIsSkipped) {
  devices_.PlugMixer();
  devices_.PlugMixer();
  devices_.PlugMixer();
  std::vector<int> reached;
  devices_.SetScript([&](int device, const IOUSBDevRequest &) {
    reached.push_back(device);
    devices_.Unplug(2);
    return TransferAnswer();
  });
  EXPECT_EQ(ApplyToEveryUnit(11, orv::SetMidiChannelSetting, 0).Count(), 3);
  EXPECT_THAT(reached, ElementsAre(1, 3));
}

TEST_F(ConnectedUnits, UnitsAreReachedFromTwoThreadsAtOnce) {
  devices_.PlugMixer();
  devices_.PlugMixer();
  std::atomic<int> requests = 0;
  devices_.SetScript([&](int, const IOUSBDevRequest &) {
    ++requests;
    return TransferAnswer();
  });
  const auto apply = [] {
    for (int i = 0; i < 20; ++i) ApplyToEveryUnit(11, orv::SetMidiChannelSetting, 0);
  };
  std::thread other(apply);
  apply();
  other.join();
  EXPECT_EQ(requests, 80);
  // Of each first walk the second mixer is left.
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 40, .numbers = 80, .interfaces = 40}));
}

}  // namespace
}  // namespace trxtest
