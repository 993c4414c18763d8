// Opening when a step of it fails: what is done still, what is released, what is answered.
#include <array>
#include <cstdint>
#include <string>

#include "IOKitTest.h"
#include "USBDevice.h"

namespace trxtest {
namespace {

using orv::closeUSB;
using orv::DeviceHandle;
using orv::open_pipes;
using orv::openUSB;
using orv::PlatformStatus;

constexpr auto kGeneralError = static_cast<PlatformStatus>(0xE00002BC);
constexpr auto kHeld = static_cast<PlatformStatus>(0xE00002C5);
constexpr auto kNoResources = static_cast<PlatformStatus>(0xE00002BE);

class OpenFailure : public IOKitTest {
 protected:
  // A handle in use, which nothing here may touch: it shows what the walk itself answers.
  DeviceHandle InUse() { return &nothing_; }

 private:
  IOUSBDeviceInterface *nothing_ = nullptr;
};

// --- In front of the walk ----------------------------------------------------------------------

TEST_F(OpenFailure, AFailureOfTheMasterPortEndsItAtOnce) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.masterPort = kNoResources});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::TakeCalls(), (Lines{
                                          MasterPortRefused("E00002BE"),
                                          "mach_port_deallocate(mach_task_self, null port)",
                                      }));
  handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), kNoResources);
  EXPECT_EQ(handle, InUse());
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheDictionaryGivesThePortBack) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.noDictionary = true});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::TakeCalls(), (Lines{
                                          MasterPortGiven(),
                                          "IOServiceMatching(IOUSBDevice) = nothing",
                                          "mach_port_deallocate(mach_task_self, master port)",
                                      }));
  handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), 0);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheServicesGivesThePortBack) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.services = kNoResources});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            (Lines{
                MasterPortGiven(),
                "IOServiceMatching(IOUSBDevice) = dictionary 1",
                "IOServiceGetMatchingServices(master port, dictionary 1) = E00002BE",
                "mach_port_deallocate(mach_task_self, master port)",
            }));
  handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), kNoResources);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheIteratorGivesThePortBack) {
  devices_.PlugMixer();
  IOKitDouble::SetFaults({.noIterator = true});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            (Lines{
                MasterPortGiven(),
                "IOServiceMatching(IOUSBDevice) = dictionary 1",
                "IOServiceGetMatchingServices(master port, dictionary 1) = nothing",
                "mach_port_deallocate(mach_task_self, master port)",
            }));
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

// --- A plug-in that cannot be made -------------------------------------------------------------

TEST_F(OpenFailure, AFailureOfAPlugInInFrontOfTheMixerIsForgotten) {
  devices_.SetFaults(devices_.PlugUnrelated(), {.plugIn = kHeld});
  devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_NE(handle, nullptr);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Found("1", " = E00002C5"), Kept("2"), WalkEnds()}));
  closeUSB(&handle);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfAPlugInBehindTheMixerIsWhatTheCallerIsTold) {
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugUnrelated(), {.plugIn = kHeld});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kHeld);
  EXPECT_NE(handle, nullptr);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Kept("1"), Found("2", " = E00002C5"), WalkEnds()}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.interfaces = 1}));
}

TEST_F(OpenFailure, AFailureOfAPlugInIsForgottenWhenAnotherDeviceFollows) {
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugUnrelated(), {.plugIn = kHeld});
  devices_.PlugUnrelated();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_NE(handle, nullptr);
}

TEST_F(OpenFailure, AFailureOfAMixersOwnPlugInMovesTheMixersBehindItUp) {
  devices_.SetFaults(devices_.PlugMixer(), {.plugIn = kHeld});
  devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Found("1", " = E00002C5"), Kept("2"), WalkEnds()}));
}

TEST_F(OpenFailure, AFailureOfTheOnlyMixersPlugInIsTheGeneralError) {
  devices_.SetFaults(devices_.PlugMixer(), {.plugIn = kHeld});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(handle, nullptr);
}

TEST_F(OpenFailure, AFailureOfAPlugInShowsItsStatusToAHandleInUse) {
  devices_.SetFaults(devices_.PlugMixer(), {.plugIn = kHeld});
  DeviceHandle handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), kHeld);
  EXPECT_EQ(handle, InUse());
}

TEST_F(OpenFailure, APlugInThatSaysItWasMadeMayBeMissing) {
  devices_.SetFaults(devices_.PlugMixer(), {.noPlugIn = true});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::TakeCalls(), Joined({WalkBegins(), Found("1"), WalkEnds()}));
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

// --- An interface that is not given ------------------------------------------------------------

TEST_F(OpenFailure, AFailureOfTheInterfaceMakesTheDeviceNone) {
  devices_.SetFaults(devices_.PlugMixer(), {.query = E_NOINTERFACE, .noInterface = true});
  devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_EQ(
      IOKitDouble::TakeCalls(),
      Joined({WalkBegins(), Found("1"), Exchanged("1", " = 80000004"), Kept("2"), WalkEnds()}));
  closeUSB(&handle);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheInterfaceBehindTheMixerDoesNotCostTheMixer) {
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugUnrelated(), {.query = E_NOINTERFACE, .noInterface = true});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_NE(handle, nullptr);
  closeUSB(&handle);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheInterfaceAloneIsTheGeneralError) {
  devices_.SetFaults(devices_.PlugMixer(), {.noInterface = true});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_F(OpenFailure, AFailureOfTheQueryDoesNotMatterWhenTheInterfaceIsGivenAllTheSame) {
  devices_.SetFaults(devices_.PlugMixer(), {.query = E_NOINTERFACE});
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_NE(handle, nullptr);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Found("1"), Exchanged("1", " = 80000004"), ReadInFull("1"),
                    WalkEnds()}));
}

// --- A read that fails -------------------------------------------------------------------------

struct FailingRead {
  const char *name;
  DeviceFaults faults;
  Lines asked;  // Up to the one that fails.
};

const std::array<FailingRead, 4> kFailingReads = {{
    {"Class", {.readClass = kNoResources}, {"GetDeviceClass = E00002BE"}},
    {"SubClass",
     {.readSubClass = kNoResources},
     {"GetDeviceClass", "GetDeviceSubClass = E00002BE"}},
    {"Vendor",
     {.readVendor = kNoResources},
     {"GetDeviceClass", "GetDeviceSubClass", "GetDeviceVendor = E00002BE"}},
    {"Product",
     {.readProduct = kNoResources},
     {"GetDeviceClass", "GetDeviceSubClass", "GetDeviceVendor", "GetDeviceProduct = E00002BE"}},
}};

class OpenFailureOfRead : public OpenFailure, public testing::WithParamInterface<FailingRead> {
 protected:
  static Lines Asked(const std::string &device) {
    Lines lines;
    for (const std::string &call : GetParam().asked) {
      lines.push_back("interface of device " + device + ": " + call);
    }
    return lines;
  }
};

TEST_P(OpenFailureOfRead, AFailingReadMakesAMixerNoneAndReleasesIt) {
  devices_.SetFaults(devices_.PlugMixer(), GetParam().faults);
  devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(), Joined({WalkBegins(), Found("1"), Exchanged("1"), Asked("1"),
                                              InterfaceReleased("1"), Kept("2"), WalkEnds()}));
  closeUSB(&handle);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

TEST_P(OpenFailureOfRead, BehindTheMixerIsWhatTheCallerIsTold) {
  devices_.PlugMixer();
  devices_.SetFaults(devices_.PlugUnrelated(), GetParam().faults);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kNoResources);
  EXPECT_NE(handle, nullptr);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Kept("1"), Found("2"), Exchanged("2"), Asked("2"), WalkEnds()}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.interfaces = 2}));
}

TEST_P(OpenFailureOfRead, AFailingReadOfTheOnlyMixerIsTheGeneralError) {
  devices_.SetFaults(devices_.PlugMixer(), GetParam().faults);
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), kGeneralError);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(IOKitDouble::Alive(), References());
}

INSTANTIATE_TEST_SUITE_P(Each, OpenFailureOfRead, testing::ValuesIn(kFailingReads),
                         NameOf<FailingRead>);

// --- What Release answers ----------------------------------------------------------------------

TEST_F(OpenFailure, WithoutAFailureTheLastReleaseAnswers) {
  devices_.SetFaults(devices_.PlugUnrelated(), {.release = 7});
  DeviceHandle handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), 7);
  devices_.SetFaults(1, {.release = 0xE00002C5});
  EXPECT_EQ(openUSB(&handle, 0, {}), kHeld);
  EXPECT_EQ(handle, InUse());
}

TEST_F(OpenFailure, AFailureOfAReadIsForgottenOverWhatReleaseAnswered) {
  devices_.SetFaults(devices_.PlugUnrelated(), {.readClass = kNoResources, .release = 3});
  DeviceHandle handle = InUse();
  EXPECT_EQ(openUSB(&handle, 0, {}), 3);
}

TEST_F(OpenFailure, NoReleaseInFrontOfTheMixerReachesTheCaller) {
  devices_.SetFaults(devices_.PlugUnrelated(), {.release = 7});
  devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_NE(handle, nullptr);
}

// --- Positions behind the chosen mixer ---------------------------------------------------------

TEST_F(OpenFailure, NoSecondMixerIsChosenBehindTheFirst) {
  for (int i = 0; i < 4; ++i) devices_.PlugMixer();
  DeviceHandle handle = nullptr;
  EXPECT_EQ(open_pipes(&handle, 0, {}), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            Joined({WalkBegins(), Kept("1"), Kept("2"), Kept("3"), Kept("4"), WalkEnds()}));
  EXPECT_EQ(IOKitDouble::Alive(), (References{.interfaces = 4}));
}

}  // namespace
}  // namespace trxtest
