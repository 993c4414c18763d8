// Faults of opening, with the error that a real host sees.

#include <gtest/gtest.h>

#include "SimulatorRun.h"

namespace {

constexpr const char *kOpenFirst = "open /dev/bus/usb/001/002";
constexpr const char *kOpenSecond = "open /dev/bus/usb/001/003";

/// A run whose client has none of root's privileges, whoever runs the tests.
class OpenFault : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(run_.Client().Ask("drop-capabilities"), "dropped"); }

  SimulatorRun run_{2};
};

TEST_F(OpenFault, ARefusedOpenFailsForEverybody) {
  run_.Control("fault 1 refuse");
  EXPECT_EQ(run_.Client().Ask(kOpenFirst), "ENXIO");
  Program asWhoeverRunsTheTests(run_.FurtherClient(), run_.folder);
  EXPECT_EQ(asWhoeverRunsTheTests.Ask(kOpenFirst), "ENXIO");
}

TEST_F(OpenFault, ADeniedOpenIsAMissingPermission) {
  run_.Control("fault 1 deny");
  EXPECT_EQ(run_.Client().Ask(kOpenFirst), "EACCES");
}

TEST_F(OpenFault, AHeldUnitIsABusyDevice) {
  run_.Control("fault 1 hold");
  EXPECT_EQ(run_.Client().Ask(kOpenFirst), "EBUSY");
}

TEST_F(OpenFault, AnOpenFaultLeavesTheUnitOnTheBusAndTheOthersAlone) {
  for (const char *fault : {"refuse", "deny", "hold"}) {
    run_.Control(std::string("fault 1 ") + fault);
    EXPECT_EQ(run_.Client().Ask("list"), "1-1=001/002 1-2=001/003 usb1=001/001");
    const std::string handle = run_.Client().Ask(kOpenSecond);
    EXPECT_EQ(run_.Client().Ask("control " + handle + " c0 0 0 8001 2 1000"), "2 00 01");
    EXPECT_EQ(run_.Client().Ask("close " + handle), "closed");
  }
}

TEST_F(OpenFault, AnOpenFaultEndsWithClear) {
  for (const char *fault : {"refuse", "deny", "hold"}) {
    run_.Control(std::string("fault 1 ") + fault);
    run_.Control("clear 1");
    const std::string handle = run_.Client().Ask(kOpenFirst);
    EXPECT_EQ(run_.Client().Ask("control " + handle + " c0 0 0 8001 2 1000"), "2 00 01") << fault;
    EXPECT_EQ(run_.Client().Ask("close " + handle), "closed");
  }
}

TEST_F(OpenFault, AnOpenFaultLeavesHandlesThatAreOpenAlone) {
  const std::string handle = run_.Client().Ask(kOpenFirst);
  run_.Control("fault 1 refuse");
  EXPECT_EQ(run_.Client().Ask("control " + handle + " c0 0 0 8001 2 1000"), "2 00 01");
}

TEST_F(OpenFault, AnOpenFaultStaysOverReplug) {
  run_.Control("fault 1 refuse");
  run_.Control("unplug 1");
  run_.Control("replug 1");
  EXPECT_EQ(run_.Client().Ask("open /dev/bus/usb/001/004"), "ENXIO");
}

TEST_F(OpenFault, AnOpenFaultMayBeMetAnyNumberOfTimesByOneProcess) {
  for (const char *fault : {"refuse", "deny", "hold"}) {
    run_.Control(std::string("fault 1 ") + fault);
    EXPECT_EQ(run_.Client().Ask("open-often 200 /dev/bus/usb/001/002"), "200") << fault;
  }
  EXPECT_EQ(run_.Client().Ask("open-often 200 /dev/bus/usb/001/099"), "200");
  EXPECT_EQ(run_.Client().Ask("open-often 200 /dev/bus/usb/001/003"), "0");
}

}  // namespace
