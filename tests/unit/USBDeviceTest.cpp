// The rules for handles that need no unit.
#include <cstdint>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "USBDevice.h"

namespace orv {
namespace {

constexpr std::uint32_t kNoSuchPosition = 0xFFFFFFFF;
constexpr auto kGeneralError = static_cast<PlatformStatus>(0xE00002BC);

TEST(OpenPipes, OpenPipesAnswersTheGeneralErrorForANullPointer) {
  EXPECT_EQ(open_pipes(nullptr, 0, {}), kGeneralError);
}

TEST(OpenPipes, OpenPipesClearsTheHandleEvenWhenThereIsNoSuchUnit) {
  USBDeviceInterface other = {-1, {}};
  DeviceHandle handle = &other;
  EXPECT_EQ(open_pipes(&handle, kNoSuchPosition, {}), kGeneralError);
  EXPECT_EQ(handle, nullptr);
}

TEST(OpenUSB, OpenUSBAnswersTheGeneralErrorWhenThereIsNoSuchUnit) {
  DeviceHandle handle = nullptr;
  EXPECT_EQ(openUSB(&handle, kNoSuchPosition, {}), kGeneralError);
  EXPECT_EQ(handle, nullptr);
}

TEST(CloseUSB, CloseUSBLeavesANullHandleAlone) {
  DeviceHandle handle = nullptr;
  closeUSB(&handle);
  EXPECT_EQ(handle, nullptr);
}

TEST(CloseUSB, CloseUSBClosesTheNodeAndClearsTheHandle) {
  const int descriptor = open("/dev/null", O_RDWR | O_CLOEXEC);
  ASSERT_GE(descriptor, 0);
  DeviceHandle handle = new USBDeviceInterface{descriptor, {}};
  closeUSB(&handle);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
  closeUSB(&handle);
  EXPECT_EQ(handle, nullptr);
}

}  // namespace
}  // namespace orv
