// Memory that runs out during a call: no exception leaves the C interface, the status is one that
// the call promises, and the next call finds everything in order.
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Constants.h"
#include "FailingMemory.h"
#include "MockBus.h"
#include "PrivateSessionBus.h"
#include "TemporaryFolder.h"
#include "USBDevice.h"

namespace orv {
namespace {

using trxtest::kArden;
using trxtest::kBadArgument;
using trxtest::kConnected;
using trxtest::kNotConnected;
using trxtest::kSelva;
using trxtest::kSuccess;
using trxtest::kSuccessWithWarning;

using testing::Each;
using testing::UnorderedElementsAre;
using trxtest::PrivateSessionBus;
using trxtest::TemporaryFolder;

// Makes the call again and again, each time with memory for one more allocation, until that is
// enough. Returns all results.
std::set<StatusCode> AnswersWhileMemoryGrows(const std::function<StatusCode()> &call) {
  std::set<StatusCode> answers;
  constexpr int kMostAllocations = 2000;
  for (int allocations = 0; allocations < kMostAllocations; ++allocations) {
    MemoryLastsFor(allocations);
    const StatusCode answer = call();
    const bool wasEnough = !MemoryIsBack();
    answers.insert(answer);
    if (wasEnough) return answers;
  }
  ADD_FAILURE() << "the call never had enough";
  return answers;
}

class OutOfMemory : public testing::Test {
 protected:
  OutOfMemory() {
    setenv("XDG_CONFIG_HOME", folder_.Path().c_str(), 1);
    setenv("TRX_SYSTEM_ROOT", BUILT_SYSTEM_ROOT, 1);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    unsetenv("XDG_RUNTIME_DIR");
    usb_.PlugMixer("1-1", 1, 2);
    usb_.PlugMixer("1-2", 1, 3);
  }

  TemporaryFolder folder_;
  MockBus usb_;
};

TEST_F(OutOfMemory, AConnectionIsThenNotSeen) {
  EXPECT_THAT(AnswersWhileMemoryGrows([] { return ORV_IsUSBConnection(kSelva); }),
              UnorderedElementsAre(kConnected, kNotConnected));
}

TEST_F(OutOfMemory, AUnitIsThenNotOpened) {
  BusLook look;
  ASSERT_EQ(CheckUSBAudio(11, &look), 2);
  const auto statuses = AnswersWhileMemoryGrows([&] {
    DeviceHandle unit = nullptr;
    const PlatformStatus status = open_pipes(&unit, 0, look);
    EXPECT_EQ(unit != nullptr, status == 0);
    closeUSB(&unit);
    return status;
  });
  EXPECT_THAT(statuses, UnorderedElementsAre(0, static_cast<PlatformStatus>(0xE00002BD)));
}

TEST_F(OutOfMemory, ASetterAnswersAsUsualAndTheFileIsOldOrNew) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  const auto answers = AnswersWhileMemoryGrows([] {
    const StatusCode answer = ORV_SetBoostLevelIndex(kSelva, 1);
    MemoryIsBack();
    std::int32_t stored = -1;
    ORV_GetCurrentBoostLevelIndex(kSelva, &stored);
    EXPECT_TRUE(stored == 2 || stored == 1) << stored;
    return answer;
  });
  EXPECT_THAT(answers, Each(kSuccess));
}

TEST_F(OutOfMemory, AGetterGivesTheDefault) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  const auto answers = AnswersWhileMemoryGrows([] {
    std::int32_t level = -1;
    const StatusCode answer = ORV_GetCurrentBoostLevelIndex(kSelva, &level);
    EXPECT_TRUE(level == 2 || level == 3) << level;
    return answer;
  });
  EXPECT_THAT(answers, Each(kSuccess));
}

TEST_F(OutOfMemory, TextsAreThenRefusedAndUntouched) {
  for (const auto function :
       {ORV_GetPkgVersionText, ORV_GetLibraryVersionText, ORV_GetUtilityVersionText}) {
    const auto answers = AnswersWhileMemoryGrows([&] {
      ORVStringRef text = nullptr;
      const StatusCode answer = function(11, &text);
      EXPECT_EQ(text != nullptr, answer == kSuccess);
      return answer;
    });
    EXPECT_THAT(answers, UnorderedElementsAre(kSuccess, kBadArgument));
  }
  EXPECT_THAT(AnswersWhileMemoryGrows([] {
                ORVStringRef text = nullptr;
                return ORV_GetDriverVersionText(kSelva, &text);
              }),
              UnorderedElementsAre(kBadArgument));
  EXPECT_THAT(AnswersWhileMemoryGrows([] {
                ORVStringRef text = nullptr;
                return ORV_GetWarningTextForSetUSBAudioInput(kArden, 0, kSuccessWithWarning, 0,
                                                             &text);
              }),
              UnorderedElementsAre(kSuccess, kBadArgument));
}

void Count(std::int32_t /*index*/, void *counter) { ++*static_cast<int *>(counter); }

TEST_F(OutOfMemory, RegisteringAndDispatchingAnswerAsUsualAndWorkAgainAfterwards) {
  const PrivateSessionBus bus;
  int counter = 0;
  EXPECT_THAT(AnswersWhileMemoryGrows(
                  [&] { return ORV_RegisterBoostLevelChangedCallback(kSelva, Count, &counter); }),
              UnorderedElementsAre(kSuccess));
  for (int allocations = 0; allocations < 20; ++allocations) {
    ORV_SetBoostLevelIndex(kSelva, 1);
    MemoryLastsFor(allocations);
    EXPECT_EQ(ORV_DispatchNotifications(), kSuccess);
    MemoryIsBack();
  }

  pollfd loop = {-1, POLLIN, 0};
  ORV_GetNotificationDescriptor(&loop.fd);
  counter = 0;
  ORV_SetBoostLevelIndex(kSelva, 3);
  for (int turn = 0; counter == 0 && turn < 100; ++turn) {
    poll(&loop, 1, 100);
    ORV_DispatchNotifications();
  }
  EXPECT_GT(counter, 0);
}

}  // namespace
}  // namespace orv
