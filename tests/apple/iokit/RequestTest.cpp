// What the requests hand to the platform, and what they make of its answer.
#include <array>
#include <cstdint>

#include <gmock/gmock.h>

#include "IOKitTest.h"
#include "USBDevice.h"
#include "VendorRequest.h"

namespace trxtest {
namespace {

using orv::DeviceHandle;
using orv::DeviceRequest;
using orv::PlatformStatus;
using testing::ElementsAre;

constexpr auto kStalled = static_cast<PlatformStatus>(0xE000404F);

using Buffer = std::array<std::uint8_t, 6>;

Buffer PresetBuffer() {
  Buffer buffer;
  buffer.fill(0xEE);
  return buffer;
}

// The only mixer, opened. What it answers is up to the case; what it was handed is kept.
class Request : public IOKitTest {
 protected:
  Request() {
    devices_.PlugMixer();
    devices_.SetScript([this](int, const IOUSBDevRequest &request) {
      seen_ = request;
      if (request.wLength == 0) CopyUnused(request);
      return answer_;
    });
    EXPECT_EQ(orv::open_pipes(&mixer_, 0, {}), 0);
    IOKitDouble::TakeCalls();
  }
  ~Request() override { orv::closeUSB(&mixer_); }

  DeviceHandle Mixer() { return mixer_; }
  void Answer(const TransferAnswer &answer) { answer_ = answer; }
  const IOUSBDevRequest &Seen() const { return seen_; }
  const std::array<std::uint8_t, 2> &Unused() const { return unused_; }

  // The record that was handed over, as far as it goes over the wire.
  void ExpectSeen(int requestType, int request, int value, int index, int length) {
    EXPECT_EQ(seen_.bmRequestType, requestType);
    EXPECT_EQ(seen_.bRequest, request);
    EXPECT_EQ(seen_.wValue, value);
    EXPECT_EQ(seen_.wIndex, index);
    EXPECT_EQ(seen_.wLength, length);
  }

 private:
  // Writes point to two bytes that go nowhere.
  void CopyUnused(const IOUSBDevRequest &request) {
    const auto *const bytes = static_cast<const std::uint8_t *>(request.pData);
    unused_ = {bytes[0], bytes[1]};
  }

  DeviceHandle mixer_ = nullptr;
  TransferAnswer answer_;
  IOUSBDevRequest seen_ = {};
  std::array<std::uint8_t, 2> unused_ = {0xEE, 0xEE};
};

// --- The record --------------------------------------------------------------------------------

TEST_F(Request, ARequestIsOneCallWithTheHandleAndNoOther) {
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), 0);
  EXPECT_EQ(IOKitDouble::TakeCalls(),
            (Lines{
                "interface of device 1: DeviceRequest(c0 00 wValue 0000 wIndex 8007 wLength 4)",
            }));
}

TEST_F(Request, ARequestFillsTheRecordFieldByField) {
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 6;
  DeviceRequest(Mixer(), 0xA1, 0xB2, 0xC3D4, 0xE5F6, buffer.data(), &length);
  ExpectSeen(0xA1, 0xB2, 0xC3D4, 0xE5F6, 6);
  EXPECT_EQ(Seen().pData, buffer.data());
  EXPECT_EQ(Seen().wLenDone, 0U);
}

TEST_F(Request, ARequestAsksForTheLengthThatItIsGiven) {
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 0xFFFF;
  DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8001, buffer.data(), &length);
  EXPECT_EQ(Seen().wLength, 0xFFFF);
}

// --- What comes back ---------------------------------------------------------------------------

TEST_F(Request, AFullReplySaysItsLength) {
  Answer({.bytes = {1, 2, 3, 4}});
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), 0);
  EXPECT_EQ(length, 4);
  EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 4, 0xEE, 0xEE));
}

TEST_F(Request, AShortReplySaysItsLengthAndLeavesTheRest) {
  Answer({.bytes = {1, 2, 3}});
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 5;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8002, buffer.data(), &length), 0);
  EXPECT_EQ(length, 3);
  EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 0xEE, 0xEE, 0xEE));
}

TEST_F(Request, ALengthOfMoreThan16BitsLosesTheUpperOnes) {
  Answer({.lengthDone = 0x00012345});
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), 0);
  EXPECT_EQ(length, 0x2345);
}

TEST_F(Request, TheLengthIsWrittenWhateverTheStatus) {
  Answer({.status = kStalled, .lengthDone = 0xFFFF0002});
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kStalled);
  EXPECT_EQ(length, 2);
}

TEST_F(Request, AFailureThatSaysNoLengthIsLengthZero) {
  Answer({.status = kStalled});
  Buffer buffer = PresetBuffer();
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length), kStalled);
  EXPECT_EQ(length, 0);
  EXPECT_EQ(buffer, PresetBuffer());
}

TEST_F(Request, TheStatusIsHandedOnAsItIs) {
  for (const unsigned status : {0U, 1U, 0xE00002BCU, 0xE00002C0U, 0xE00002C5U, 0xE0004051U}) {
    Answer({.status = static_cast<IOReturn>(status)});
    Buffer buffer = PresetBuffer();
    std::uint16_t length = 4;
    EXPECT_EQ(
        static_cast<unsigned>(DeviceRequest(Mixer(), 0xC0, 0, 0, 0x8007, buffer.data(), &length)),
        status);
    EXPECT_EQ(static_cast<unsigned>(orv::GetCertifyLevel(Mixer(), buffer.data(), 4)), status);
    EXPECT_EQ(static_cast<unsigned>(orv::SetMidiChannelSetting(Mixer(), 0)), status);
  }
}

// --- Reads -------------------------------------------------------------------------------------

struct Read {
  const char *name;
  orv::ReadRequest request;
  std::uint16_t length;
  int index;
};

class ReadRequests : public Request, public testing::WithParamInterface<Read> {};

TEST_P(ReadRequests, ReadsCarryTheirIndexAndTheCallersBuffer) {
  Answer({.bytes = {7, 8}});
  Buffer buffer = PresetBuffer();
  EXPECT_EQ(GetParam().request(Mixer(), buffer.data(), GetParam().length), 0);
  ExpectSeen(0xC0, 0, 0, GetParam().index, GetParam().length);
  EXPECT_EQ(Seen().pData, buffer.data());
  EXPECT_THAT(buffer, ElementsAre(7, 8, 0xEE, 0xEE, 0xEE, 0xEE));
}

INSTANTIATE_TEST_SUITE_P(Each, ReadRequests,
                         testing::Values(Read{"Firmware", orv::GetFirmwareVersionNumber, 2, 0x8001},
                                         Read{"Selectors", orv::GetInputSelectorInfo, 5, 0x8002},
                                         Read{"Serato", orv::GetSeratoActiveInfo, 2, 0x8004},
                                         Read{"Port", orv::GetPortInfo, 2, 0x8006},
                                         Read{"Certify", orv::GetCertifyLevel, 4, 0x8007}),
                         NameOf<Read>);

// --- Writes ------------------------------------------------------------------------------------

struct Write {
  const char *name;
  orv::WriteRequest request;
  std::uint16_t value;
  int index;
};

class WriteRequests : public Request, public testing::WithParamInterface<Write> {};

TEST_P(WriteRequests, WritesCarryTheirValueInWValueAndNoData) {
  EXPECT_EQ(GetParam().request(Mixer(), GetParam().value), 0);
  ExpectSeen(0x40, 3, GetParam().value, GetParam().index, 0);
  EXPECT_THAT(Unused(), ElementsAre(0, 0));
}

INSTANTIATE_TEST_SUITE_P(
    Each, WriteRequests,
    testing::Values(Write{"MixerOutput", orv::SetMixerOutputSetting, 0x020A, 0x8002},
                    Write{"OutputLevel", orv::SetUSBOutputLevelSetting, 0x0300, 0x8003},
                    Write{"MidiChannel", orv::SetMidiChannelSetting, 0x0F00, 0x8004},
                    Write{"MidiKeyMode", orv::SetMidiKeyModeSetting, 0x0100, 0x8005},
                    Write{"MixerInput", orv::SetMixerInputSetting, 0xFFFF, 0x8016}),
    NameOf<Write>);

}  // namespace
}  // namespace trxtest
