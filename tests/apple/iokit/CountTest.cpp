// Counting the mixers, call for call.
#include "IOKitTest.h"
#include "USBDevice.h"

namespace trxtest {
namespace {

std::int32_t CountMixers(ProductId model) {
  orv::BusLook look;
  return orv::CheckUSBAudio(model, &look);
}

// Counting begins, up to the walk: `port` is what the registry is asked through.
Lines CountBegins(const std::string &port, const std::string &services) {
  return {
      "IOServiceMatching(IOUSBDevice) = dictionary 1",
      "CFNumberCreate(default, SInt32, 20306) = number 1",
      "CFDictionarySetValue(dictionary 1, idVendor, number 1)",
      "CFNumberCreate(default, SInt32, 31) = number 2",
      "CFDictionarySetValue(dictionary 1, idProduct, number 2)",
      "IOServiceGetMatchingServices(" + port + ", dictionary 1) = " + services,
  };
}

class Count : public IOKitTest {};

TEST_F(Count, NoDeviceAtAllIsCountedAsZero) {
  EXPECT_EQ(CountMixers(11), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortGiven()},
                    CountBegins("master port", "iterator 1"),
                    {"IOIteratorNext(iterator 1) = nothing", "IOObjectRelease(iterator 1)"}}));
}

TEST_F(Count, OneMixerIsCounted) {
  devices_.PlugMixer();
  EXPECT_EQ(CountMixers(11), 1);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortGiven()},
                    CountBegins("master port", "iterator 1"),
                    {"IOIteratorNext(iterator 1) = device 1", "IOObjectRelease(device 1)",
                     "IOIteratorNext(iterator 1) = nothing", "IOObjectRelease(iterator 1)"}}));
}

TEST_F(Count, ThreeMixersAreCountedAmongStrangers) {
  devices_.PlugUnrelated();
  devices_.PlugMixer();
  devices_.PlugOtherProductOfTheMaker();
  devices_.PlugMixer();
  devices_.PlugOtherMakerWithTheSameProduct();
  devices_.PlugMixer();
  EXPECT_EQ(CountMixers(11), 3);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortGiven()},
                    CountBegins("master port", "iterator 1"),
                    {"IOIteratorNext(iterator 1) = device 2", "IOObjectRelease(device 2)",
                     "IOIteratorNext(iterator 1) = device 4", "IOObjectRelease(device 4)",
                     "IOIteratorNext(iterator 1) = device 6", "IOObjectRelease(device 6)",
                     "IOIteratorNext(iterator 1) = nothing", "IOObjectRelease(iterator 1)"}}));
}

TEST_F(Count, StrangersAreNotCounted) {
  devices_.PlugUnrelated();
  devices_.PlugOtherProductOfTheMaker();
  devices_.PlugOtherMakerWithTheSameProduct();
  EXPECT_EQ(CountMixers(11), 0);
}

TEST_F(Count, TheCountIsTheSameForEveryModel) {
  devices_.PlugMixer();
  for (const ProductId model : {0U, 1U, 2U, 7U, 11U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(CountMixers(model), 1) << model;
  }
}

TEST_F(Count, MixersThatCannotBeOpenedAreCountedToo) {
  devices_.SetFaults(devices_.PlugMixer(), {.plugIn = kIOReturnExclusiveAccess});
  EXPECT_EQ(CountMixers(11), 1);
}

TEST_F(Count, AFailingMasterPortDoesNotMatter) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.masterPort = kIOReturnNoResources});
  EXPECT_EQ(CountMixers(11), 1);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortRefused("E00002BE")},
                    CountBegins("null port", "iterator 1"),
                    {"IOIteratorNext(iterator 1) = device 1", "IOObjectRelease(device 1)",
                     "IOIteratorNext(iterator 1) = nothing", "IOObjectRelease(iterator 1)"}}));
}

TEST_F(Count, TheCountIsZeroWithoutADictionary) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.noDictionary = true});
  EXPECT_EQ(CountMixers(11), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            (Lines{MasterPortGiven(), "IOServiceMatching(IOUSBDevice) = nothing"}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1}));
}

TEST_F(Count, TheCountIsZeroWhenTheRegistryCannotBeAsked) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.services = kIOReturnError});
  EXPECT_EQ(CountMixers(11), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortGiven()}, CountBegins("master port", "E00002BC")}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
}

TEST_F(Count, TheCountIsZeroWithoutAnIterator) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.noIterator = true});
  EXPECT_EQ(CountMixers(11), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({{MasterPortGiven()}, CountBegins("master port", "nothing")}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
}

TEST_F(Count, CountingLeavesThePortAndTheTwoNumbersAndNothingElse) {
  devices_.PlugMixer();
  devices_.PlugMixer();
  CountMixers(11);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 1, .numbers = 2}));
  CountMixers(11);
  CountMixers(11);
  EXPECT_EQ(IOKitDouble::Alive(), (References{.ports = 3, .numbers = 6}));
}

}  // namespace
}  // namespace trxtest
