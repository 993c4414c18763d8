// The requests on a real node: what each sends, and what it returns.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <Control/ControlAddress.h>
#include <Control/ControlClient.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "BusWalk.h"
#include "USBDevice.h"
#include "VendorRequest.h"

namespace orv {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

constexpr PlatformStatus kDone = 0;
constexpr auto kStalled = static_cast<PlatformStatus>(0xE000404F);
constexpr auto kNoDevice = static_cast<PlatformStatus>(0xE00002C0);

using Buffer = std::array<std::uint8_t, 6>;

Buffer PresetBuffer() {
  Buffer buffer;
  buffer.fill(0xEE);
  return buffer;
}

// The only unit, opened; plugged in and without a fault at the start of each case.
class Request : public testing::Test {
 protected:
  void SetUp() override {
    Tell("clear 1");
    Tell("log clear");
    ASSERT_EQ(open_pipes(&unit_, 0, LookAtBus()), kDone);
  }

  void TearDown() override { closeUSB(&unit_); }

  DeviceHandle Unit() { return unit_; }

  std::vector<std::string> Tell(const std::string &command) { return simulator_.Ask(command); }

  // The wire log with single blanks. A line ends with the simulator's own name for the request.
  std::vector<std::string> WireLog() {
    std::vector<std::string> lines = Tell("log");
    for (std::string &line : lines) {
      std::string plain;
      for (const char c : line) {
        if (c != ' ' || !plain.ends_with(' ')) plain += c;
      }
      line = plain;
    }
    return lines;
  }

 private:
  trxsim::ControlClient simulator_{trxsim::ClientControlSocket()};
  DeviceHandle unit_ = nullptr;
};

// --- Reads -------------------------------------------------------------------------------------

TEST_F(Request, TheFirmwareVersionIsReadFrom8001) {
  Tell("set 1 firmware 0x0213");
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetFirmwareVersionNumber(Unit(), buffer.data(), 2), kDone);
  EXPECT_THAT(buffer, ElementsAre(0x13, 0x02, 0xEE, 0xEE, 0xEE, 0xEE));
  EXPECT_THAT(WireLog(),
              ElementsAre(StartsWith(
                  "unit 1 IN c0 00 wValue 0000 wIndex 8001 wLength 2 -> 2 bytes 13 02 ")));
}

TEST_F(Request, TheInputSelectorsAreReadFrom8002) {
  Tell("set 1 reply-leading-byte 9");
  Tell("set 1 selector 0 6");
  Tell("set 1 selector 3 5");
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetInputSelectorInfo(Unit(), buffer.data(), 5), kDone);
  EXPECT_THAT(buffer, ElementsAre(9, 6, 0, 0, 5, 0xEE));
  EXPECT_THAT(WireLog(),
              ElementsAre(StartsWith("unit 1 IN c0 00 wValue 0000 wIndex 8002 wLength 5 -> "
                                     "5 bytes 09 06 00 00 05 ")));
}

TEST_F(Request, TheSeratoStateIsReadFrom8004) {
  Tell("set 1 serato 1 7");
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetSeratoActiveInfo(Unit(), buffer.data(), 2), kDone);
  EXPECT_THAT(buffer, ElementsAre(1, 7, 0xEE, 0xEE, 0xEE, 0xEE));
  EXPECT_THAT(WireLog(),
              ElementsAre(StartsWith(
                  "unit 1 IN c0 00 wValue 0000 wIndex 8004 wLength 2 -> 2 bytes 01 07 ")));
}

TEST_F(Request, ThePortStateIsReadFrom8006) {
  Tell("set 1 port 0x12 0x34");
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetPortInfo(Unit(), buffer.data(), 2), kDone);
  EXPECT_THAT(buffer, ElementsAre(0x12, 0x34, 0xEE, 0xEE, 0xEE, 0xEE));
  EXPECT_THAT(WireLog(),
              ElementsAre(StartsWith(
                  "unit 1 IN c0 00 wValue 0000 wIndex 8006 wLength 2 -> 2 bytes 12 34 ")));
}

TEST_F(Request, TheCertifyLevelIsReadFrom8007) {
  Tell("set 1 certify 0x01020304");
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetCertifyLevel(Unit(), buffer.data(), 4), kDone);
  EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 4, 0xEE, 0xEE));
  EXPECT_THAT(WireLog(),
              ElementsAre(StartsWith("unit 1 IN c0 00 wValue 0000 wIndex 8007 wLength 4 -> "
                                     "4 bytes 01 02 03 04 ")));
}

// --- Writes ------------------------------------------------------------------------------------

TEST_F(Request, WhatTheMixerSendsIsWrittenTo8002) {
  EXPECT_EQ(SetMixerOutputSetting(Unit(), 0x0208), kDone);
  EXPECT_THAT(
      WireLog(),
      ElementsAre(StartsWith("unit 1 OUT 40 03 wValue 0208 wIndex 8002 wLength 0 -> 0 bytes ")));
}

TEST_F(Request, WhatTheMixerReceivesIsWrittenTo8016) {
  EXPECT_EQ(SetMixerInputSetting(Unit(), 0x0304), kDone);
  EXPECT_THAT(
      WireLog(),
      ElementsAre(StartsWith("unit 1 OUT 40 03 wValue 0304 wIndex 8016 wLength 0 -> 0 bytes ")));
}

TEST_F(Request, TheOutputLevelIsWrittenTo8003) {
  EXPECT_EQ(SetUSBOutputLevelSetting(Unit(), 0x0300), kDone);
  EXPECT_THAT(
      WireLog(),
      ElementsAre(StartsWith("unit 1 OUT 40 03 wValue 0300 wIndex 8003 wLength 0 -> 0 bytes ")));
}

TEST_F(Request, TheMidiChannelIsWrittenTo8004) {
  EXPECT_EQ(SetMidiChannelSetting(Unit(), 0x0F00), kDone);
  EXPECT_THAT(
      WireLog(),
      ElementsAre(StartsWith("unit 1 OUT 40 03 wValue 0f00 wIndex 8004 wLength 0 -> 0 bytes ")));
}

TEST_F(Request, TheMidiKeyModeIsWrittenTo8005) {
  EXPECT_EQ(SetMidiKeyModeSetting(Unit(), 0x0100), kDone);
  EXPECT_THAT(
      WireLog(),
      ElementsAre(StartsWith("unit 1 OUT 40 03 wValue 0100 wIndex 8005 wLength 0 -> 0 bytes ")));
}

// --- What comes back ---------------------------------------------------------------------------

TEST_F(Request, AFullReplySaysItsLength) {
  Tell("set 1 certify 0x01020304");
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Unit(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kDone);
  EXPECT_EQ(length, 4);
  EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 4, 0xEE, 0xEE));
}

TEST_F(Request, AReplyShorterThanWhatWasAskedForSaysItsLengthAndLeavesTheRest) {
  Tell("set 1 certify 0x01020304");
  Tell("fault 1 short 3");
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Unit(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kDone);
  EXPECT_EQ(length, 3);
  EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 0xEE, 0xEE, 0xEE));
}

TEST_F(Request, AWriteSaysLengthZero) {
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 0;
  EXPECT_EQ(DeviceRequest(Unit(), 0x40, 3, 0x0100, 0x8003, buffer.data(), &length), kDone);
  EXPECT_EQ(length, 0);
  EXPECT_THAT(buffer, Each(0xEE));
}

TEST_F(Request, AStallSaysLengthZeroAndLeavesTheBufferAlone) {
  Tell("fault 1 stall");
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Unit(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kStalled);
  EXPECT_EQ(length, 0);
  EXPECT_THAT(buffer, Each(0xEE));
  EXPECT_EQ(SetUSBOutputLevelSetting(Unit(), 0x0300), kStalled);
}

TEST_F(Request, AUnitUnpluggedSinceItWasOpenedIsNoDevice) {
  Tell("unplug 1");
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Unit(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kNoDevice);
  EXPECT_EQ(length, 0);
  EXPECT_EQ(GetFirmwareVersionNumber(Unit(), buffer.data(), 2), kNoDevice);
  EXPECT_EQ(SetUSBOutputLevelSetting(Unit(), 0x0300), kNoDevice);
  EXPECT_THAT(buffer, Each(0xEE));
  Tell("replug 1");
}

}  // namespace
}  // namespace orv
