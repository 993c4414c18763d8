// Requests that fail: the length and the buffer afterwards.
#include <array>
#include <cstdint>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "VendorRequest.h"

namespace orv {
namespace {

using testing::Each;

constexpr auto kGeneralError = static_cast<PlatformStatus>(0xE00002BC);

// Handles of files that are not USB devices.
class RequestToWhatIsNoDevice : public testing::Test {
 protected:
  void SetUp() override {
    std::array<int, 2> pipeEnds = {};
    ASSERT_EQ(pipe2(pipeEnds.data(), O_CLOEXEC), 0);
    pipe_.descriptor = pipeEnds[0];
    otherEnd_ = pipeEnds[1];
    null_.descriptor = open("/dev/null", O_RDWR | O_CLOEXEC);
    ASSERT_GE(null_.descriptor, 0);
  }
  void TearDown() override {
    close(pipe_.descriptor);
    close(otherEnd_);
    close(null_.descriptor);
  }

  USBDeviceInterface pipe_ = {-1, {}};
  USBDeviceInterface null_ = {-1, {}};
  USBDeviceInterface closed_ = {-1, {}};
  int otherEnd_ = -1;
};

TEST_F(RequestToWhatIsNoDevice, ARequestFailsWithTheGeneralErrorAndLengthZero) {
  for (const DeviceHandle handle : {&pipe_, &null_, &closed_}) {
    std::array<std::uint8_t, 8> buffer;
    buffer.fill(0xA5);
    std::uint16_t length = 5;
    EXPECT_EQ(DeviceRequest(handle, 0xC0, 0, 0, 0x8002, buffer.data(), &length), kGeneralError);
    EXPECT_EQ(length, 0);
    EXPECT_THAT(buffer, Each(0xA5));
  }
}

TEST_F(RequestToWhatIsNoDevice, ARequestLeavesTheBufferOfEveryReadAlone) {
  for (const ReadRequest request : {GetFirmwareVersionNumber, GetInputSelectorInfo,
                                    GetSeratoActiveInfo, GetPortInfo, GetCertifyLevel}) {
    std::array<std::uint8_t, 8> buffer;
    buffer.fill(0x5A);
    EXPECT_EQ(request(&null_, buffer.data(), 4), kGeneralError);
    EXPECT_THAT(buffer, Each(0x5A));
  }
}

TEST_F(RequestToWhatIsNoDevice, ARequestFailsForEveryWrite) {
  for (const WriteRequest request :
       {SetMixerOutputSetting, SetMixerInputSetting, SetUSBOutputLevelSetting,
        SetMidiChannelSetting, SetMidiKeyModeSetting}) {
    EXPECT_EQ(request(&pipe_, 0x0100), kGeneralError);
  }
}

}  // namespace
}  // namespace orv
