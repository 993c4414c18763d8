// Requests of real hosts: processes, children and threads at once.

#include <csignal>

#include <gtest/gtest.h>

#include "SimulatorRun.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char *kFirst = "/dev/bus/usb/001/002";
constexpr const char *kSecond = "/dev/bus/usb/001/003";

TEST(Client, ReadsWhatTheMixerReports) {
  SimulatorRun run(1);
  run.Control("set 1 reply-leading-byte 1");
  run.Control("set 1 selector 0 5");
  run.Control("set 1 selector 3 9");
  run.Control("set 1 serato 1");
  run.Control("set 1 port 1 0");
  run.Control("set 1 firmware 0x0123");
  run.Control("set 1 certify 0x01020304");
  const std::string control = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8001 2 1000"), "2 23 01");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8002 5 1000"), "5 01 05 00 00 09");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8004 2 1000"), "2 01 00");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8006 2 1000"), "2 01 00");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8007 4 1000"), "4 01 02 03 04");
}

TEST(Client, GetsNoMoreThanItAskedForAndNoMoreThanThereIs) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8002 3 1000"), "3 00 00 00");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8001 4 1000"), "2 00 01 ee ee");
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8001 0 1000"), "0");
}

TEST(Client, WritesReachTheMixer) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(control + " 40 3 020a 8002 0 1000"), "0");
  EXPECT_EQ(run.Client().Ask(control + " 40 3 0300 8003 0 1000"), "0");
  EXPECT_EQ(run.Client().Ask(control + " 40 3 0f00 8004 0 1000"), "0");
  EXPECT_EQ(run.Client().Ask(control + " 40 3 0001 8005 0 1000"), "0");
  EXPECT_EQ(run.Client().Ask(control + " 40 3 0102 8016 0 1000"), "0");
  const Lines state = run.Control("get 1");
  EXPECT_EQ(Lines(state.end() - 5, state.end()),
            (Lines{"written mixer-output 0x020a", "written usb-output-level 0x0300",
                   "written midi-channel 0x0f00", "written midi-key-mode 0x0001",
                   "written mixer-input 0x0102"}));
}

TEST(Client, UnknownRequestStalls) {
  SimulatorRun run(1);
  const std::string control = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(control + " c0 0 0 8003 2 1000"), "EPIPE ee ee");
  EXPECT_EQ(run.Client().Ask(control + " 40 3 0 8001 0 1000"), "EPIPE");
}

TEST(Client, OverlongDataStageIsRefusedAsByTheKernel) {
  SimulatorRun run(1);
  const std::string handle = run.Open(kFirst);
  EXPECT_TRUE(
      run.Client().Ask("control " + handle + " c0 0 0 8002 4097 1000").starts_with("EINVAL"));
  EXPECT_TRUE(run.Log().empty());
}

TEST(Client, LogHoldsEveryRequestInOrder) {
  SimulatorRun run(2);
  const std::string first = "control " + run.Open(kFirst);
  const std::string second = "control " + run.Open(kSecond);
  run.Client().Ask(second + " 40 3 0300 8003 0 1000");
  run.Client().Ask(first + " c0 0 0 8002 4 1000");
  EXPECT_EQ(run.Log(), (Lines{"unit 2  OUT  40 03  wValue 0300  wIndex 8003  wLength 0  "
                              "-> 0 bytes                 USB output level",
                              "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 4  "
                              "-> 4 bytes 00 00 00 00     input selectors"}));
  run.Control("log clear");
  EXPECT_TRUE(run.Log().empty());
}

TEST(Client, ThreadsOnTwoUnitsAllSucceed) {
  SimulatorRun run(2);
  run.Control("set 1 selector 0 6");
  run.Control("set 2 selector 0 6");
  EXPECT_EQ(run.Client().Ask(std::string("threads 8 100 ") + kFirst + ' ' + kSecond), "800");
  EXPECT_EQ(run.Log().size(), 800u);
}

TEST(Client, ThreadsThatOpenAtOnceAreEnteredOneAfterTheOther) {
  const trxtest::TemporaryFolder folder;
  Program opens({TRX_MIXER_SIM, "--units", "1", "--", OPENS_AT_ONCE, kFirst}, folder);
  EXPECT_EQ(opens.Answer(), "one after the other");
  EXPECT_EQ(opens.Finish(), 0);
}

TEST(Client, ProcessesAtOnceAllSucceed) {
  SimulatorRun run(1);
  run.Control("set 1 selector 0 6");
  Program second(run.FurtherClient(), run.folder);
  Program third(run.FurtherClient(), run.folder);
  const std::string work = std::string("threads 2 100 ") + kFirst;
  run.Client().Tell(work);
  second.Tell(work);
  third.Tell(work);
  EXPECT_EQ(run.Client().Answer(), "200");
  EXPECT_EQ(second.Answer(), "200");
  EXPECT_EQ(third.Answer(), "200");
}

TEST(Client, ChildSeesTheSameDesk) {
  SimulatorRun run(1);
  run.Control("set 1 selector 0 6");
  EXPECT_EQ(run.Client().Ask("child list"), "1-1=001/002 usb1=001/001");
  EXPECT_EQ(run.Client().Ask(std::string("child threads 1 3 ") + kFirst), "3");
}

TEST(Client, KilledInMidRequestDoesNoHarm) {
  SimulatorRun run(2);
  run.Control("fault 1 no-reply");
  {
    Program victim(run.FurtherClient(), run.folder);
    const std::string handle = victim.Ask(std::string("open ") + kFirst);
    victim.Tell("control " + handle + " c0 0 0 8001 2 150");
    run.WaitForRequest();
    victim.Signal(SIGKILL);
    EXPECT_EQ(victim.Finish(), 1000 + SIGKILL);
  }
  // A later request with a longer time-out outlives that of the victim.
  const std::string first = "control " + run.Open(kFirst);
  EXPECT_EQ(run.Client().Ask(first + " c0 0 0 8001 2 200"), "ETIMEDOUT ee ee");
  const std::string second = "control " + run.Open(kSecond);
  EXPECT_EQ(run.Client().Ask(second + " c0 0 0 8001 2 1000"), "2 00 01");
  EXPECT_EQ(run.Client().Finish(), 0);
  EXPECT_EQ(run.Client().Errors(), "");
}

}  // namespace
