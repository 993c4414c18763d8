// A whole conversation over USB/IP, with the test in the place of the kernel: a unit of a real desk
// at the other end of a socket pair.

#include <gtest/gtest.h>

#include "HexBytes.h"
#include "KernelSide.h"
#include "MakerIds.h"
#include "Model/Desk.h"
#include "Model/RequestGate.h"
#include "RecordingFrontEnd.h"

namespace trxsim {
namespace {

using Lines = std::vector<std::string>;

// Setup packets.
const std::string kReadFirmware = "c0000000 01800200";
const std::string kReadSelectors = "c0000000 02800500";
const std::string kWriteLevel = "40030003 03800000";

/// Unit 1 is a mixer, unit 2 another device; both are connected.
class Usbip : public testing::Test {
 protected:
  Usbip() {
    gate_.Open(desk_);
    desk_.Plug();
    desk_.Plug(UsbIds{0x1234, 0x5678});
    mixer_ = std::make_unique<KernelSide>(Session(1));
    other_ = std::make_unique<KernelSide>(Session(2));
  }

  DeviceSession Session(int number) {
    return {desk_.UnitOf(number).identity, [this, number](const ControlRequest &request) {
              return gate_.Transfer(number, request);
            }};
  }

  RecordingFrontEnd frontEnd_;
  Desk desk_{frontEnd_};
  RequestGate gate_;
  std::unique_ptr<KernelSide> mixer_;
  std::unique_ptr<KernelSide> other_;
};

std::string VendorOnTheWire() { return VendorId().substr(2) + VendorId().substr(0, 2); }

TEST_F(Usbip, MixerTellsItsDescriptors) {
  EXPECT_EQ(mixer_->Request("80060001 00001200"),
            "0 12010002 00000040 " + VendorOnTheWire() + "1f00 00010102 0301");
  EXPECT_EQ(mixer_->Request("80060002 00000900"), "0 09023500 030100c0 00");
  EXPECT_EQ(mixer_->Request("80060002 0000ff00"),
            "0 09023500 030100c0 00090400 00000101 00000a24 0100010a 00020102 "
            "09040100 00010200 00090402 00000103 00000724 01000107 00");
}

TEST_F(Usbip, MixerTellsItsTexts) {
  EXPECT_EQ(mixer_->Request("80060003 0000ff00"), "0 04030904");
  EXPECT_EQ(mixer_->Request("80060103 0904ff00"),
            "0 18034f00 72007600 69006b00 20004100 75006400 69006f00");
  EXPECT_EQ(mixer_->Request("80060203 0904ff00"), "0 14035400 52005800 2d005300 45004c00 56004100");
  EXPECT_EQ(mixer_->Request("80060303 0904ff00"), "0 12035300 49004d00 30003000 30003000 3100");
}

TEST_F(Usbip, OtherDeviceTellsItsOwnIdsAndTexts) {
  EXPECT_EQ(other_->Request("80060001 00001200"), "0 12010002 00000040 34127856 00010002 0001");
  EXPECT_EQ(other_->Request("80060002 0000ff00"), "0 09021200 010100c0 00090400 0000ff00 0000");
  EXPECT_EQ(other_->Request("80060103 0904ff00"), "-32");
  EXPECT_EQ(other_->Request("80060203 0904ff00"),
            "0 1a034f00 74006800 65007200 20006400 65007600 69006300 6500");
}

TEST_F(Usbip, DescriptorIsNoLongerThanTheKernelAskedFor) {
  EXPECT_EQ(mixer_->Request("80060001 00000800"), "0 12010002 00000040");
  EXPECT_EQ(mixer_->Request("80060001 00004000").size(), 2u + 36u + 4u);
}

TEST_F(Usbip, DescriptorsThatTheMixerDoesNotHaveStall) {
  EXPECT_EQ(mixer_->Request("80060403 0904ff00"), "-32");  // a fourth text
  EXPECT_EQ(mixer_->Request("80060101 00001200"), "-32");  // a second device descriptor
  EXPECT_EQ(mixer_->Request("80060102 00000900"), "-32");  // a second configuration
  EXPECT_EQ(mixer_->Request("80060006 00000a00"), "-32");  // what it is at full speed
  EXPECT_EQ(mixer_->Request("8006000f 00000500"), "-32");  // binary object store
  EXPECT_EQ(mixer_->Request("80060022 0000ff00"), "-32");
}

TEST_F(Usbip, MixerIsConfiguredByTheKernel) {
  EXPECT_EQ(mixer_->Request("80080000 00000100"), "0 00");
  EXPECT_EQ(mixer_->Request("010b0000 00000000"), "-32");  // no interfaces yet
  EXPECT_EQ(mixer_->Request("00090100 00000000"), "0");
  EXPECT_EQ(mixer_->Request("80080000 00000100"), "0 01");
  EXPECT_EQ(mixer_->Request("00090200 00000000"), "-32");
  EXPECT_EQ(mixer_->Request("80080000 00000100"), "0 01");
  EXPECT_EQ(mixer_->Request("00090000 00000000"), "0");
  EXPECT_EQ(mixer_->Request("80080000 00000100"), "0 00");
}

TEST_F(Usbip, ConfiguredMixerHasThreeInterfacesOfOneSettingEach) {
  mixer_->Request("00090100 00000000");
  EXPECT_EQ(mixer_->Request("010b0000 00000000"), "0");
  EXPECT_EQ(mixer_->Request("010b0000 02000000"), "0");
  EXPECT_EQ(mixer_->Request("010b0000 03000000"), "-32");
  EXPECT_EQ(mixer_->Request("010b0100 00000000"), "-32");
  EXPECT_EQ(mixer_->Request("810a0000 02000100"), "0 00");
  EXPECT_EQ(mixer_->Request("810a0000 03000100"), "-32");
}

TEST_F(Usbip, MixerTellsItsStatus) {
  mixer_->Request("00090100 00000000");
  EXPECT_EQ(mixer_->Request("80000000 00000200"), "0 0100");
  EXPECT_EQ(mixer_->Request("81000000 02000200"), "0 0000");
  EXPECT_EQ(mixer_->Request("81000000 03000200"), "-32");
  EXPECT_EQ(mixer_->Request("82000000 00000200"), "0 0000");
  EXPECT_EQ(mixer_->Request("82000000 80000200"), "0 0000");
  EXPECT_EQ(mixer_->Request("82000000 81000200"), "-32");
}

TEST_F(Usbip, OtherStandardRequestsStall) {
  EXPECT_EQ(mixer_->Request("00050500 00000000"), "0");    // any address
  EXPECT_EQ(mixer_->Request("00030100 00000000"), "-32");  // wake up the computer
  EXPECT_EQ(mixer_->Request("02010000 81000000"), "-32");  // an endpoint that is not there
  EXPECT_EQ(mixer_->Request("80050000 00000200"), "-32");  // a read of what is written only
}

TEST_F(Usbip, GettingToKnowAMixerIsNotLogged) {
  mixer_->Request("80060001 00001200");
  mixer_->Request("00090100 00000000");
  mixer_->Request("80060022 0000ff00");
  EXPECT_TRUE(desk_.Log().empty());
}

TEST_F(Usbip, MixerReportsWhatItWasToldTo) {
  desk_.Change(1, [](MixerState &state) {
    state = {1, {5, 0, 0, 9}, {1, 0}, {2, 3}, 0x0123, 0x01020304};
  });
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 2301");
  EXPECT_EQ(mixer_->Request(kReadSelectors), "0 01050000 09");
  EXPECT_EQ(mixer_->Request("c0000000 04800200"), "0 0100");
  EXPECT_EQ(mixer_->Request("c0000000 06800200"), "0 0203");
  EXPECT_EQ(mixer_->Request("c0000000 07800400"), "0 01020304");
}

TEST_F(Usbip, MixerGivesNoMoreThanItIsAskedForAndNoMoreThanItHas) {
  EXPECT_EQ(mixer_->Request("c0000000 02800300"), "0 000000");
  EXPECT_EQ(mixer_->Request("c0000000 01800400"), "0 0001");
  EXPECT_EQ(mixer_->Request("c0000000 01800000"), "0");
}

TEST_F(Usbip, WritesReachTheMixer) {
  EXPECT_EQ(mixer_->Request("40030a02 02800000"), "0");
  EXPECT_EQ(mixer_->Request(kWriteLevel), "0");
  EXPECT_EQ(mixer_->Request("4003000f 04800000"), "0");
  EXPECT_EQ(mixer_->Request("40030100 05800000"), "0");
  EXPECT_EQ(mixer_->Request("40030201 16800000"), "0");
  const Unit unit = desk_.UnitOf(1);
  EXPECT_EQ(unit.mixer->LastWritten(RequestId::kMixerOutput), 0x020A);
  EXPECT_EQ(unit.mixer->LastWritten(RequestId::kUsbOutputLevel), 0x0300);
  EXPECT_EQ(unit.mixer->LastWritten(RequestId::kMidiChannel), 0x0F00);
  EXPECT_EQ(unit.mixer->LastWritten(RequestId::kMidiKeyMode), 0x0001);
  EXPECT_EQ(unit.mixer->LastWritten(RequestId::kMixerInput), 0x0102);
}

TEST_F(Usbip, OtherVendorAndClassRequestsStall) {
  EXPECT_EQ(mixer_->Request("c0000000 03800200"), "-32");
  EXPECT_EQ(mixer_->Request("a1810001 00010200"), "-32");
  EXPECT_EQ(other_->Request(kReadFirmware), "-32");
}

TEST_F(Usbip, WireLogIsThatOfEveryFrontEnd) {
  other_->Request(kReadFirmware);
  mixer_->Request(kWriteLevel);
  mixer_->Request("c0000000 02800400");
  mixer_->Request("a1810001 00010200");
  EXPECT_EQ(desk_.Log(), (Lines{"unit 2  IN   c0 00  wValue 0000  wIndex 8001  wLength 2  "
                                "-> stalled                 firmware version",
                                "unit 1  OUT  40 03  wValue 0300  wIndex 8003  wLength 0  "
                                "-> 0 bytes                 USB output level",
                                "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 4  "
                                "-> 4 bytes 00 00 00 00     input selectors",
                                "unit 1  IN   a1 81  wValue 0100  wIndex 0100  wLength 2  "
                                "-> stalled                 (unknown)"}));
}

TEST_F(Usbip, WriteWithDataIsReadToItsEndBeforeItStalls) {
  mixer_->Send(
      "00000001 00000063 00010001 00000000 00000000 "
      "00000000 00000003 00000000 00000000 00000000 40030000 03800300 aabbcc");
  EXPECT_EQ(mixer_->Reply(),
            "00000003 00000063 00000000 00000000 00000000 "
            "ffffffe0 00000000 00000000 00000000 00000000 00000000 00000000");
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 0001");
}

TEST_F(Usbip, OtherEndpointsStall) {
  mixer_->Send(
      "00000001 00000063 00010001 00000001 00000001 "
      "00000000 00000040 00000000 00000000 00000001 c0000000 01800200");
  EXPECT_EQ(mixer_->Reply(),
            "00000003 00000063 00000000 00000000 00000000 "
            "ffffffe0 00000000 00000000 00000000 00000000 00000000 00000000");
}

TEST_F(Usbip, StallFaultLeavesTheKernelItsOwnRequests) {
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kStall, 0});
  EXPECT_EQ(mixer_->Request(kReadFirmware), "-32");
  EXPECT_EQ(mixer_->Request("80060001 00000800"), "0 12010002 00000040");
  desk_.ClearFaults(1);
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 0001");
}

TEST_F(Usbip, ShortFaultCutsTheReply) {
  desk_.SetFault(1, RequestId::kSelectors, {RequestFaultKind::kShort, 2});
  EXPECT_EQ(mixer_->Request(kReadSelectors), "0 0000");
  desk_.SetFault(1, RequestId::kSelectors, {RequestFaultKind::kShort, 0});
  EXPECT_EQ(mixer_->Request(kReadSelectors), "0");
}

TEST_F(Usbip, RequestWithoutReplyEndsWhenTheKernelTakesItBack) {
  desk_.SetFault(1, RequestId::kSelectors, {RequestFaultKind::kNoReply, 0});
  mixer_->Submit(0x51, kReadSelectors);
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 0001");
  mixer_->Send(
      "00000002 00000052 00010001 00000000 00000000 "
      "00000051 00000000 00000000 00000000 00000000 00000000 00000000");
  EXPECT_EQ(mixer_->Reply(),
            "00000004 00000052 00000000 00000000 00000000 "
            "ffffff98 00000000 00000000 00000000 00000000 00000000 00000000");
  EXPECT_EQ(desk_.Log().front(),
            "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 5  "
            "-> no reply                input selectors");
}

TEST_F(Usbip, RequestThatWasAnsweredCannotBeTakenBack) {
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 0001");
  mixer_->Send(
      "00000002 00000052 00010001 00000000 00000000 "
      "00000001 00000000 00000000 00000000 00000000 00000000 00000000");
  EXPECT_EQ(mixer_->Reply(),
            "00000004 00000052 00000000 00000000 00000000 "
            "00000000 00000000 00000000 00000000 00000000 00000000 00000000");
}

TEST_F(Usbip, RequestIsTakenBackOnce) {
  const std::string unlink =
      "00000002 00000052 00010001 00000000 00000000 "
      "00000051 00000000 00000000 00000000 00000000 00000000 00000000";
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kNoReply, 0});
  mixer_->Submit(0x51, kReadSelectors);
  mixer_->Send(unlink);
  EXPECT_EQ(mixer_->Reply().substr(45, 8), "ffffff98");
  mixer_->Send(unlink);
  EXPECT_EQ(mixer_->Reply().substr(45, 8), "00000000");
}

TEST_F(Usbip, VanishFaultHangsUpWithoutAReply) {
  desk_.SetFault(1, RequestId::kSelectors, {RequestFaultKind::kVanish, 0});
  EXPECT_EQ(mixer_->Request(kReadFirmware), "0 0001");
  EXPECT_EQ(mixer_->Request(kReadSelectors), "hung up");
  EXPECT_EQ(mixer_->EndOfConnection(), "");
  EXPECT_EQ(other_->Request(kReadFirmware), "-32");
  EXPECT_EQ(desk_.Log()[1],
            "unit 1  IN   c0 00  wValue 0000  wIndex 8002  wLength 5  "
            "-> unplugged               input selectors");
}

TEST_F(Usbip, PulledCableEndsARequestWithoutReply) {
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kNoReply, 0});
  mixer_->Submit(1, kReadFirmware);
  mixer_->Pull();
  EXPECT_EQ(mixer_->Reply(), "");
  EXPECT_EQ(mixer_->EndOfConnection(), "");
}

TEST_F(Usbip, KernelThatDetachesIsReported) {
  mixer_->HangUp();
  EXPECT_EQ(mixer_->EndOfConnection(), "it detached the unit");
}

TEST_F(Usbip, FramesMayComeByteByByte) {
  const std::string frame =
      "00000001000000630001000100000001000000000000000000000002"
      "000000000000000000000000c000000001800200";
  for (std::size_t place = 0; place < frame.size(); place += 2) {
    mixer_->Send(frame.substr(place, 2));
  }
  mixer_->Submit(0x64, kReadFirmware);
  EXPECT_EQ(mixer_->Reply().substr(0, 17), "00000003 00000063");
}

TEST_F(Usbip, MalformedFrameEndsThatConnectionOnly) {
  mixer_->Send("00000009" + std::string(88, '0'));
  EXPECT_EQ(mixer_->Reply(), "");
  EXPECT_EQ(mixer_->EndOfConnection(), "it sent a malformed frame: unknown command 0x00000009");
  EXPECT_EQ(other_->Request(kReadFirmware), "-32");
}

TEST_F(Usbip, SoundFramesBeforeAMalformedOneAreAnswered) {
  mixer_->Send(
      "00000001 00000063 00010001 00000000 00000000 "
      "00000000 00000000 00000000 00000000 00000000 40030003 03800000" +
      std::string(96, 'f'));
  EXPECT_EQ(mixer_->Reply().substr(0, 17), "00000003 00000063");
  EXPECT_EQ(mixer_->Reply(), "");
  EXPECT_EQ(mixer_->EndOfConnection(), "it sent a malformed frame: unknown command 0xffffffff");
}

TEST_F(Usbip, FrameCutShortAnywhereIsReported) {
  const std::vector<std::uint8_t> frame = BytesOf(
      "00000001 00000063 00010001 00000000 00000000 "
      "00000000 00000003 00000000 00000000 00000000 40030000 03800300 aabbcc");
  for (std::size_t length = 1; length < frame.size(); ++length) {
    KernelSide kernel(Session(1));
    kernel.Send(HexOf(std::span(frame).first(length)));
    kernel.HangUp();
    EXPECT_EQ(kernel.EndOfConnection(), "it hung up in the middle of a frame") << length;
  }
  EXPECT_TRUE(desk_.Log().empty());
}

TEST_F(Usbip, RequestsEndQuietlyOnceTheDeskIsGone) {
  gate_.Close();
  EXPECT_EQ(mixer_->Request(kReadFirmware), "hung up");
  EXPECT_EQ(mixer_->EndOfConnection(), "");
}

}  // namespace
}  // namespace trxsim
