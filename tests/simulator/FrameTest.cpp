// The frames of USB/IP, byte by byte. A header has 48 bytes: command, sequence number, device,
// direction and endpoint, then what the command needs.

#include <gtest/gtest.h>

#include "HexBytes.h"
#include "usbip/Frames.h"

namespace trxsim {
namespace {

// Read five bytes of selectors: sequence 7, device 1-2, direction in, endpoint 0, flags 0x200,
// length 5, three fields of zero, setup packet.
const std::string kRead =
    "00000001 00000007 00010002 00000001 00000000 "
    "00000200 00000005 00000000 00000000 00000000 c0000000 02800500";

// Write the USB output level: no data stage.
const std::string kWrite =
    "00000001 00000008 00010002 00000000 00000000 "
    "00000000 00000000 00000000 00000000 00000000 40030003 03800000";

// A write with three bytes of data.
const std::string kWriteWithData =
    "00000001 00000009 00010002 00000000 00000000 "
    "00000000 00000003 00000000 ffffffff 00000000 40030000 03800300 aabbcc";

// Take request 7 back.
const std::string kUnlink =
    "00000002 0000000a 00010002 00000000 00000000 "
    "00000007 00000000 00000000 00000000 00000000 00000000 00000000";

DecodedFrames Decode(const std::string &hex) { return DecodeFrames(BytesOf(hex)); }

TEST(Frames, ReadIsTakenApart) {
  const DecodedFrames decoded = Decode(kRead);
  EXPECT_EQ(decoded.error, "");
  EXPECT_EQ(decoded.used, 48u);
  ASSERT_EQ(decoded.frames.size(), 1u);
  const auto &frame = std::get<SubmitFrame>(decoded.frames[0]);
  EXPECT_EQ(frame.sequence, 7u);
  EXPECT_EQ(frame.endpoint, 0u);
  EXPECT_TRUE(frame.isRead);
  EXPECT_EQ(frame.length, 5u);
  EXPECT_EQ(frame.setup.requestType, 0xC0);
  EXPECT_EQ(frame.setup.request, 0);
  EXPECT_EQ(frame.setup.value, 0);
  EXPECT_EQ(frame.setup.index, 0x8002);
  EXPECT_EQ(frame.setup.length, 5);
  EXPECT_TRUE(frame.data.empty());
}

TEST(Frames, WriteIsTakenApart) {
  const DecodedFrames decoded = Decode(kWrite);
  ASSERT_EQ(decoded.frames.size(), 1u);
  const auto &frame = std::get<SubmitFrame>(decoded.frames[0]);
  EXPECT_FALSE(frame.isRead);
  EXPECT_EQ(frame.setup.requestType, 0x40);
  EXPECT_EQ(frame.setup.request, 3);
  EXPECT_EQ(frame.setup.value, 0x0300);
  EXPECT_EQ(frame.setup.index, 0x8003);
  EXPECT_EQ(frame.setup.length, 0);
}

TEST(Frames, DataOfAWriteBelongsToItsFrame) {
  const DecodedFrames decoded = Decode(kWriteWithData);
  EXPECT_EQ(decoded.used, 51u);
  ASSERT_EQ(decoded.frames.size(), 1u);
  EXPECT_EQ(HexOf(std::get<SubmitFrame>(decoded.frames[0]).data), "aabbcc");
}

TEST(Frames, UnlinkNamesItsVictim) {
  const DecodedFrames decoded = Decode(kUnlink);
  EXPECT_EQ(decoded.used, 48u);
  ASSERT_EQ(decoded.frames.size(), 1u);
  const auto &frame = std::get<UnlinkFrame>(decoded.frames[0]);
  EXPECT_EQ(frame.sequence, 10u);
  EXPECT_EQ(frame.victim, 7u);
}

TEST(Frames, AllFramesOfAPieceAreTakenInTheirOrder) {
  const DecodedFrames decoded = Decode(kWriteWithData + kRead + kUnlink);
  EXPECT_EQ(decoded.used, 147u);
  ASSERT_EQ(decoded.frames.size(), 3u);
  EXPECT_EQ(std::get<SubmitFrame>(decoded.frames[0]).sequence, 9u);
  EXPECT_EQ(std::get<SubmitFrame>(decoded.frames[1]).sequence, 7u);
  EXPECT_EQ(std::get<UnlinkFrame>(decoded.frames[2]).sequence, 10u);
}

TEST(Frames, BeginningOfAFrameWaitsForTheRest) {
  const std::vector<std::uint8_t> whole = BytesOf(kWriteWithData);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const DecodedFrames decoded = DecodeFrames(std::span(whole).first(length));
    EXPECT_EQ(decoded.error, "") << length;
    EXPECT_EQ(decoded.used, 0u) << length;
    EXPECT_TRUE(decoded.frames.empty()) << length;
  }
}

TEST(Frames, ReadWithoutDataStageMayComeAsAWrite) {
  const DecodedFrames decoded = Decode(
      "00000001 00000007 00010002 00000000 00000000 "
      "00000000 00000000 00000000 00000000 00000000 c0000000 01800000");
  EXPECT_EQ(decoded.error, "");
  EXPECT_EQ(decoded.frames.size(), 1u);
}

TEST(Frames, LongestDataStageIsTaken) {
  const DecodedFrames decoded = Decode(
      "00000001 00000007 00010002 00000001 00000000 "
      "00000000 0000ffff 00000000 00000000 00000000 c0000000 0180ffff");
  EXPECT_EQ(decoded.error, "");
  EXPECT_EQ(decoded.frames.size(), 1u);
}

struct Malformed {
  const char *name;
  std::string header;
  const char *error;
};

class MalformedFrames : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedFrames, MalformedFramesAreNamed) {
  const DecodedFrames decoded = Decode(GetParam().header);
  EXPECT_EQ(decoded.error, GetParam().error);
  EXPECT_EQ(decoded.used, 0u);
  EXPECT_TRUE(decoded.frames.empty());
}

TEST_P(MalformedFrames, MalformedFramesLeaveTheSoundOnesBeforeThem) {
  const DecodedFrames decoded = Decode(kWriteWithData + GetParam().header + kRead);
  EXPECT_EQ(decoded.error, GetParam().error);
  EXPECT_EQ(decoded.used, 51u);
  EXPECT_EQ(decoded.frames.size(), 1u);
}

std::string Submit(const std::string &direction, const std::string &endpoint,
                   const std::string &length, const std::string &packets,
                   const std::string &setup) {
  return "00000001 00000007 00010002 " + direction + endpoint + "00000000" + length + "00000000" +
         packets + "00000000" + setup;
}

std::string Header(const std::string &command, const std::string &direction,
                   const std::string &endpoint) {
  return command + "00000007 00010002" + direction + endpoint + std::string(56, '0');
}

const std::string kReadSetup = "c0000000 02800500";

INSTANTIATE_TEST_SUITE_P(
    OfEveryKind, MalformedFrames,
    testing::Values(
        Malformed{"NoCommand", std::string(96, '0'), "unknown command 0x00000000"},
        Malformed{"UnknownCommand", Header("00000005", "00000000", "00000000"),
                  "unknown command 0x00000005"},
        Malformed{"CommandInTheWrongByteOrder", Header("01000000", "00000000", "00000000"),
                  "unknown command 0x01000000"},
        Malformed{"ReplyToASubmit", Header("00000003", "00000000", "00000000"),
                  "a reply where a request belongs"},
        Malformed{"ReplyToAnUnlink", Header("00000004", "00000000", "00000000"),
                  "a reply where a request belongs"},
        Malformed{"UnknownDirection",
                  Submit("00000002", "00000000", "00000005", "00000000", kReadSetup),
                  "unknown direction 2"},
        Malformed{"UnknownDirectionOfAnUnlink", Header("00000002", "ffffffff", "00000000"),
                  "unknown direction 4294967295"},
        Malformed{"EndpointThatCannotBe",
                  Submit("00000001", "00000010", "00000005", "00000000", kReadSetup),
                  "endpoint 16"},
        Malformed{"HighestEndpoint",
                  Submit("00000001", "ffffffff", "00000005", "00000000", kReadSetup),
                  "endpoint 4294967295"},
        Malformed{"OverlongRead",
                  Submit("00000001", "00000000", "00010000", "00000000", kReadSetup),
                  "a data stage of 65536 bytes"},
        Malformed{"NegativeLength",
                  Submit("00000000", "00000000", "ffffffff", "00000000", "40030000 03800000"),
                  "a data stage of 4294967295 bytes"},
        Malformed{"OverlongWriteAtAnotherEndpoint",
                  Submit("00000000", "00000001", "7fffffff", "00000000", "00000000 00000000"),
                  "a data stage of 2147483647 bytes"},
        Malformed{"Isochronous", Submit("00000001", "00000001", "00000005", "00000001", kReadSetup),
                  "an isochronous request"},
        Malformed{"NegativePackets",
                  Submit("00000001", "00000001", "00000005", "80000000", kReadSetup),
                  "an isochronous request"},
        Malformed{"ReadSetupInAWrite",
                  Submit("00000000", "00000000", "00000005", "00000000", kReadSetup),
                  "a setup packet of the other direction"},
        Malformed{"WriteSetupInARead",
                  Submit("00000001", "00000000", "00000005", "00000000", "40030000 03800500"),
                  "a setup packet of the other direction"}),
    [](const auto &test) { return test.param.name; });

TEST(Frames, AnyByteMayBeAnythingWithoutHarm) {
  const std::vector<std::uint8_t> sound = BytesOf(kWriteWithData + kUnlink + kRead);
  for (std::size_t place = 0; place < sound.size(); ++place) {
    for (int value = 0; value < 256; ++value) {
      std::vector<std::uint8_t> changed = sound;
      changed[place] = static_cast<std::uint8_t>(value);
      const DecodedFrames decoded = DecodeFrames(changed);
      EXPECT_LE(decoded.used, changed.size());
      EXPECT_GE(decoded.used, 48 * decoded.frames.size());
    }
  }
}

TEST(Frames, ReplyToAReadCarriesItsData) {
  EXPECT_EQ(HexOf(EncodeSubmitReply(7, 0, 5, BytesOf("0006000000"))),
            "00000003 00000007 00000000 00000000 00000000 "
            "00000000 00000005 00000000 00000000 00000000 00000000 00000000 00060000 00");
}

TEST(Frames, ReplyOfAFailedRequestHasItsErrorNumber) {
  EXPECT_EQ(HexOf(EncodeSubmitReply(0x01020304, -32, 0, {})),
            "00000003 01020304 00000000 00000000 00000000 "
            "ffffffe0 00000000 00000000 00000000 00000000 00000000 00000000");
}

TEST(Frames, ReplyToAnUnlinkHasAStatusOnly) {
  EXPECT_EQ(HexOf(EncodeUnlinkReply(10, -104)),
            "00000004 0000000a 00000000 00000000 00000000 "
            "ffffff98 00000000 00000000 00000000 00000000 00000000 00000000");
}

}  // namespace
}  // namespace trxsim
