// The wire log, character by character: other tests compare its lines literally.

#include <gtest/gtest.h>

#include "Model/WireLog.h"

namespace trxsim {
namespace {

TEST(WireLog, AWriteIsLoggedWithoutData) {
  EXPECT_EQ(WireLogLine(1, {0x40, 3, 0x0300, 0x8003, 0}, {Outcome::kDone, {}}),
            "unit 1  OUT  40 03  wValue 0300  wIndex 8003  wLength 0  "
            "-> 0 bytes                 USB output level");
}

TEST(WireLog, AReadIsLoggedWithItsBytes) {
  EXPECT_EQ(WireLogLine(2, {0xC0, 0, 0, 0x8002, 4}, {Outcome::kDone, {0x00, 0x06, 0x0A, 0xFF}}),
            "unit 2  IN   c0 00  wValue 0000  wIndex 8002  wLength 4  "
            "-> 4 bytes 00 06 0a ff     input selectors");
}

TEST(WireLog, ASingleByteIsNoPlural) {
  EXPECT_EQ(WireLogLine(1, {0xC0, 0, 0, 0x8004, 1}, {Outcome::kDone, {0x01}}),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8004  wLength 1  "
            "-> 1 byte 01               Serato activity");
}

TEST(WireLog, ALongReplyPushesTheNameOn) {
  EXPECT_EQ(WireLogLine(12, {0xC0, 0, 0, 0x8002, 8}, {Outcome::kDone, {0, 1, 2, 3, 4, 5, 6}}),
            "unit 12  IN   c0 00  wValue 0000  wIndex 8002  wLength 8  "
            "-> 7 bytes 00 01 02 03 04 05 06  input selectors");
}

TEST(WireLog, AStallIsLogged) {
  EXPECT_EQ(WireLogLine(1, {0x40, 3, 0x0F00, 0x8004, 0}, {Outcome::kStalled, {}}),
            "unit 1  OUT  40 03  wValue 0f00  wIndex 8004  wLength 0  "
            "-> stalled                 MIDI channel");
}

TEST(WireLog, AMissingReplyIsLogged) {
  EXPECT_EQ(WireLogLine(1, {0xC0, 0, 0, 0x8007, 4}, {Outcome::kNoReply, {}}),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8007  wLength 4  "
            "-> no reply                certify level");
}

TEST(WireLog, AnUnplugDuringTheRequestIsLogged) {
  EXPECT_EQ(WireLogLine(1, {0xC0, 0, 0, 0x8001, 2}, {Outcome::kUnplugged, {}}),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8001  wLength 2  "
            "-> unplugged               firmware version");
}

TEST(WireLog, AnUnknownRequestIsLogged) {
  EXPECT_EQ(WireLogLine(1, {0x80, 6, 0x0100, 0, 18}, {Outcome::kStalled, {}}),
            "unit 1  IN   80 06  wValue 0100  wIndex 0000  wLength 18  "
            "-> stalled                 (unknown)");
}

TEST(WireLog, TheLogNamesTheRemainingRequests) {
  const TransferResult done{Outcome::kDone, {}};
  EXPECT_TRUE(WireLogLine(1, {0xC0, 0, 0, 0x8006, 2}, done).ends_with("  port state"));
  EXPECT_TRUE(WireLogLine(1, {0x40, 3, 0, 0x8002, 0}, done).ends_with("  mixer output"));
  EXPECT_TRUE(WireLogLine(1, {0x40, 3, 0, 0x8005, 0}, done).ends_with("  MIDI key mode"));
  EXPECT_TRUE(WireLogLine(1, {0x40, 3, 0, 0x8016, 0}, done).ends_with("  mixer input"));
}

TEST(WireLog, TheLogKeepsLinesInOrderAndHandsThemOn) {
  std::vector<std::string> handedOn;
  WireLog log([&handedOn](const std::string &line) { handedOn.push_back(line); });
  log.Add(1, {0xC0, 0, 0, 0x8001, 2}, {Outcome::kStalled, {}});
  log.Add(2, {0xC0, 0, 0, 0x8001, 2}, {Outcome::kStalled, {}});
  ASSERT_EQ(log.Lines().size(), 2u);
  EXPECT_TRUE(log.Lines()[0].starts_with("unit 1 "));
  EXPECT_TRUE(log.Lines()[1].starts_with("unit 2 "));
  EXPECT_EQ(handedOn, log.Lines());
  log.Clear();
  EXPECT_TRUE(log.Lines().empty());
  EXPECT_EQ(handedOn.size(), 2u);
}

}  // namespace
}  // namespace trxsim
