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
  const std::string control = "control " + run.open(kFirst);
  run.control("fault 1 stall selectors");
  EXPECT_EQ(run.client().ask(control + kReadSelectors), "EPIPE ee ee ee ee ee");
  EXPECT_EQ(run.client().ask(control + kReadFirmware), "2 00 01");
}

TEST(RequestFault, StallOfEveryRequestEndsWithClear) {
  SimulatorRun run(1);
  const std::string control = "control " + run.open(kFirst);
  run.control("fault 1 stall");
  EXPECT_EQ(run.client().ask(control + kReadFirmware), "EPIPE ee ee");
  run.control("clear 1");
  EXPECT_EQ(run.client().ask(control + kReadFirmware), "2 00 01");
}

TEST(RequestFault, ShortReplyLeavesTheRestOfTheBuffer) {
  SimulatorRun run(1);
  const std::string control = "control " + run.open(kFirst);
  run.control("fault 1 short 2 selectors");
  EXPECT_EQ(run.client().ask(control + kReadSelectors), "2 00 00 ee ee ee");
  run.control("fault 1 short 0 selectors");
  EXPECT_EQ(run.client().ask(control + kReadSelectors), "0 ee ee ee ee ee");
}

TEST(RequestFault, NoReplyTakesTheTimeOutOfTheCaller) {
  SimulatorRun run(1);
  const std::string control = "control " + run.open(kFirst);
  run.control("fault 1 no-reply");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(run.client().ask(control + " c0 0 0 8001 2 200"), "ETIMEDOUT ee ee");
  const auto taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(taken, std::chrono::milliseconds(200));
  EXPECT_LT(taken, std::chrono::milliseconds(2000));
}

TEST(RequestFault, NoReplyHoldsUpNeitherOtherUnitsNorOtherClients) {
  SimulatorRun run(2);
  run.control("fault 1 no-reply selectors");
  const std::string first = run.open(kFirst);
  run.client().tell("control " + first + " c0 0 0 8002 5 60000");
  Program other(run.furtherClient(), run.folder);
  const std::string sameUnit = other.ask(std::string("open ") + kFirst);
  const std::string otherUnit = other.ask(std::string("open ") + kSecond);
  run.waitForRequest();
  EXPECT_EQ(other.ask("control " + otherUnit + kReadFirmware), "2 00 01");
  EXPECT_EQ(other.ask("control " + sameUnit + kReadFirmware), "2 00 01");
  run.control("unplug 1");
  EXPECT_EQ(run.client().answer(), "ENODEV ee ee ee ee ee");
}

TEST(RequestFault, NoReplyWithoutTimeOutLastsUntilTheUnitIsUnplugged) {
  SimulatorRun run(1);
  run.control("fault 1 no-reply");
  const std::string handle = run.open(kFirst);
  run.client().tell("control " + handle + " c0 0 0 8001 2 0");
  run.waitForRequest();
  run.control("unplug 1");
  EXPECT_EQ(run.client().answer(), "ENODEV ee ee");
}

TEST(RequestFault, VanishUnplugsInTheMiddleOfTheRequest) {
  SimulatorRun run(2);
  run.control("fault 1 vanish selectors");
  const std::string control = "control " + run.open(kFirst);
  EXPECT_EQ(run.client().ask(control + kReadFirmware), "2 00 01");
  EXPECT_EQ(run.client().ask(control + kReadSelectors), "ENODEV ee ee ee ee ee");
  EXPECT_EQ(run.client().ask("list"), "1-2=001/003 usb1=001/001");
  EXPECT_EQ(run.log().back(),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 5  "
            "-> unplugged               input selectors");
}

}  // namespace
