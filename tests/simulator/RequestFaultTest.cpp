// Faults of requests, with the error that a real host sees.

#include <chrono>

#include <gtest/gtest.h>

#include "SimulatorRun.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char *kFirst = "/dev/bus/usb/001/002";
constexpr const char *kSecond = "/dev/bus/usb/001/003";
constexpr const char *kReadSelectors = " c0 0 0 8002 5 1000";
constexpr const char *kReadFirmware = " c0 0 0 8001 2 1000";

TEST(RequestFault, StallOfOneRequestLeavesTheOthers) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  run.Control("fault 1 stall selectors");
  EXPECT_EQ(run.Client().Ask(control + kReadSelectors), "EPIPE ee ee ee ee ee");
  EXPECT_EQ(run.Client().Ask(control + kReadFirmware), "2 00 01");
}

TEST(RequestFault, StallOfEveryRequestEndsWithClear) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  run.Control("fault 1 stall");
  EXPECT_EQ(run.Client().Ask(control + kReadFirmware), "EPIPE ee ee");
  run.Control("clear 1");
  EXPECT_EQ(run.Client().Ask(control + kReadFirmware), "2 00 01");
}

TEST(RequestFault, ShortReplyLeavesTheRestOfTheBuffer) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  run.Control("fault 1 short 2 selectors");
  EXPECT_EQ(run.Client().Ask(control + kReadSelectors), "2 00 00 ee ee ee");
  run.Control("fault 1 short 0 selectors");
  EXPECT_EQ(run.Client().Ask(control + kReadSelectors), "0 ee ee ee ee ee");
}

TEST(RequestFault, NoReplyTakesTheTimeOutOfTheCaller) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  run.Control("fault 1 no-reply");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8001 2 200"), "ETIMEDOUT ee ee");
  const auto taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(taken, std::chrono::milliseconds(200));
  EXPECT_LT(taken, std::chrono::milliseconds(2000));
}

TEST(RequestFault, NoReplyHoldsUpNeitherOtherUnitsNorOtherClients) {
  SimulatorRun run(2);
  run.Control("fault 1 no-reply selectors");
  const std::string first = run.Open(kFirst);
  run.Client().Tell("control " + first + " c0 0 0 8002 5 60000");
  Program other(run.FurtherClient(), run.folder);
  const std::string sameUnit = other.Ask(std::string("open ") + kFirst);
  const std::string otherUnit = other.Ask(std::string("open ") + kSecond);
  run.WaitForRequest();
  EXPECT_EQ(other.Ask("control " + otherUnit + kReadFirmware), "2 00 01");
  EXPECT_EQ(other.Ask("control " + sameUnit + kReadFirmware), "2 00 01");
  run.Control("unplug 1");
  EXPECT_EQ(run.Client().Answer(), "ENODEV ee ee ee ee ee");
}

TEST(RequestFault, NoReplyWithoutTimeOutLastsUntilTheUnitIsUnplugged) {
  SimulatorRun run(1);
  run.Control("fault 1 no-reply");
  const std::string handle = run.Open(kFirst);
  run.Client().Tell("control " + handle + " c0 0 0 8001 2 0");
  run.WaitForRequest();
  run.Control("unplug 1");
  EXPECT_EQ(run.Client().Answer(), "ENODEV ee ee");
}

TEST(RequestFault, VanishUnplugsInTheMiddleOfTheRequest) {
  SimulatorRun run(2);
  run.Control("fault 1 vanish selectors");
  const std::string control = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(control + kReadFirmware), "2 00 01");
  EXPECT_EQ(run.Client().Ask(control + kReadSelectors), "ENODEV ee ee ee ee ee");
  EXPECT_EQ(run.Client().Ask("list"), "1-2=001/003 usb1=001/001");
  EXPECT_EQ(run.Log().back(),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 5  "
            "-> unplugged               input selectors");
}

}  // namespace
