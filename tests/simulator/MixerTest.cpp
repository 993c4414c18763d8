// A mixer answers exactly its ten vendor requests.

#include <tuple>

#include <gtest/gtest.h>

#include "Model/Mixer.h"

namespace trxsim {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Read(Mixer &mixer, std::uint16_t index, std::uint16_t length) {
  const TransferResult result = mixer.Answer({0xC0, 0, 0, index, length});
  EXPECT_EQ(result.outcome, Outcome::kDone);
  return result.data;
}

TEST(MixerReads, FirmwareIsLeastSignificantByteFirst) {
  Mixer mixer;
  mixer.State().firmware = 0x0123;
  EXPECT_EQ(Read(mixer, 0x8001, 2), (Bytes{0x23, 0x01}));
}

TEST(MixerReads, SelectorsFollowALeadingByte) {
  Mixer mixer;
  mixer.State().leadingByte = 0x01;
  mixer.State().selectors = {5, 7, 2, 9};
  EXPECT_EQ(Read(mixer, 0x8002, 5), (Bytes{0x01, 5, 7, 2, 9}));
}

TEST(MixerReads, SelectorsAreFiveZeroBytesAtFirst) {
  Mixer mixer;
  EXPECT_EQ(Read(mixer, 0x8002, 64), (Bytes{0, 0, 0, 0, 0}));
}

TEST(MixerReads, SeratoIsTwoBytesAsSet) {
  Mixer mixer;
  mixer.State().serato = {1, 0xAB};
  EXPECT_EQ(Read(mixer, 0x8004, 2), (Bytes{1, 0xAB}));
}

TEST(MixerReads, PortStateIsTwoBytesAsSet) {
  Mixer mixer;
  mixer.State().port = {1, 2};
  EXPECT_EQ(Read(mixer, 0x8006, 2), (Bytes{1, 2}));
}

TEST(MixerReads, CertifyLevelIsMostSignificantByteFirst) {
  Mixer mixer;
  mixer.State().certify = 0x01020304;
  EXPECT_EQ(Read(mixer, 0x8007, 4), (Bytes{1, 2, 3, 4}));
}

TEST(MixerReads, ReplyIsCutToTheLengthAskedFor) {
  Mixer mixer;
  mixer.State().selectors = {5, 7, 2, 9};
  EXPECT_EQ(Read(mixer, 0x8002, 3), (Bytes{0, 5, 7}));
  EXPECT_EQ(Read(mixer, 0x8007, 0), Bytes{});
}

TEST(MixerReads, ReplyIsNotStretchedToTheLengthAskedFor) {
  Mixer mixer;
  EXPECT_EQ(Read(mixer, 0x8001, 64).size(), 2u);
}

class MixerWrites : public testing::TestWithParam<std::tuple<std::uint16_t, RequestId>> {};

TEST_P(MixerWrites, WritesKeepTheLastValue) {
  const auto [index, id] = GetParam();
  Mixer mixer;
  EXPECT_EQ(mixer.LastWritten(id), std::nullopt);
  EXPECT_EQ(mixer.Answer({0x40, 3, 0x020A, index, 0}).outcome, Outcome::kDone);
  EXPECT_EQ(mixer.Answer({0x40, 3, 0x0F00, index, 0}).outcome, Outcome::kDone);
  EXPECT_EQ(mixer.LastWritten(id), 0x0F00);
}

TEST_P(MixerWrites, WritesLeaveTheOtherSettingsAlone) {
  const auto [index, id] = GetParam();
  Mixer mixer;
  mixer.Answer({0x40, 3, 0x0300, index, 0});
  int written = 0;
  for (const RequestEntry &entry : RequestTable()) {
    written += mixer.LastWritten(*RequestNamed(entry.word)) ? 1 : 0;
  }
  EXPECT_EQ(written, 1);
}

TEST_P(MixerWrites, WritesWithADataStageStall) {
  const auto [index, id] = GetParam();
  Mixer mixer;
  EXPECT_EQ(mixer.Answer({0x40, 3, 0x0300, index, 2}).outcome, Outcome::kStalled);
  EXPECT_EQ(mixer.LastWritten(id), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(EveryWrite, MixerWrites,
                         testing::Values(std::tuple{0x8002, RequestId::kMixerOutput},
                                         std::tuple{0x8003, RequestId::kUsbOutputLevel},
                                         std::tuple{0x8004, RequestId::kMidiChannel},
                                         std::tuple{0x8005, RequestId::kMidiKeyMode},
                                         std::tuple{0x8016, RequestId::kMixerInput}));

class MixerStalls : public testing::TestWithParam<ControlRequest> {};

TEST_P(MixerStalls, AMixerStallsOnAnythingElse) {
  Mixer mixer;
  const TransferResult result = mixer.Answer(GetParam());
  EXPECT_EQ(result.outcome, Outcome::kStalled);
  EXPECT_TRUE(result.data.empty());
}

INSTANTIATE_TEST_SUITE_P(
    NearMisses, MixerStalls,
    testing::Values(ControlRequest{0xC0, 0, 0, 0x8003, 2},   // write only
                    ControlRequest{0xC0, 0, 0, 0x8005, 2},   // write only
                    ControlRequest{0xC0, 0, 0, 0x8016, 2},   // write only
                    ControlRequest{0x40, 3, 0, 0x8001, 0},   // read only
                    ControlRequest{0x40, 3, 0, 0x8006, 0},   // read only
                    ControlRequest{0x40, 3, 0, 0x8007, 0},   // read only
                    ControlRequest{0xC0, 0, 1, 0x8001, 2},   // with a wValue
                    ControlRequest{0xC0, 3, 0, 0x8001, 2},   // bRequest of writes
                    ControlRequest{0x40, 0, 0, 0x8003, 0},   // bRequest of reads
                    ControlRequest{0xC1, 0, 0, 0x8001, 2},   // to an interface
                    ControlRequest{0x80, 6, 0x0100, 0, 18},  // standard request
                    ControlRequest{0, 0, 0, 0, 0}));

}  // namespace
}  // namespace trxsim
