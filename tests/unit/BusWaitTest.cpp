// How long the library waits for a session bus that hangs, how often it looks for a missing one,
// what wakes the host meanwhile, and how much of a flood it reads at once. The tests check the
// requested waits, to the microsecond; no test really waits.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "Constants.h"
#include "NotificationCentre.h"
#include "PrivateSessionBus.h"
#include "WatchedSystem.h"

namespace trxtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{60};

int delivered = 0;

// Observes a new name and returns it.
std::string Observe() {
  static int names = 0;
  const std::string name = "Change " + std::to_string(++names);
  orv::AddObserver(name,
                   {[](void * /*receiver*/, const orv::Notification &) { ++delivered; }, nullptr});
  return name;
}

void Post(const std::string &name) { orv::PostNotification(name, {}, orv::Delivery::kPlain); }

void Dispatch() { EXPECT_EQ(ORV_DispatchNotifications(), kSuccess); }

bool BecomesReadable() {
  pollfd loop = {-1, POLLIN, 0};
  EXPECT_EQ(ORV_GetNotificationDescriptor(&loop.fd), kSuccess);
  return poll(&loop, 1, 60'000) == 1;
}

// Runs the event loop as a host does.
bool RunEventLoopUntil(const std::function<bool()> &isDone) {
  const auto end = Clock::now() + kPatience;
  while (!isDone()) {
    if (Clock::now() >= end) return false;
    pollfd loop = {-1, POLLIN, 0};
    EXPECT_EQ(ORV_GetNotificationDescriptor(&loop.fd), kSuccess);
    if (poll(&loop, 1, 100) > 0) Dispatch();
  }
  return true;
}

// Posts until it is delivered.
bool IsHeard(const std::string &name) {
  delivered = 0;
  return RunEventLoopUntil([&] {
    Post(name);
    return delivered > 0;
  });
}

class BusWait : public testing::Test {
 protected:
  void SetUp() override { delivered = 0; }

  PrivateSessionBus bus_;
};

// --- Registering and dispatching -----------------------------------------------------------------

TEST_F(BusWait, RegistrationsWaitForABusThatHangsOnceAndForFiveSeconds) {
  Observe();
  bus_.Freeze();
  std::string last;
  {
    const WatchedSystem system;
    Observe();
    EXPECT_THAT(system.TakeWaits(), ElementsAre(5'000'000));
    Observe();
    last = Observe();
    EXPECT_THAT(system.TakeWaits(), IsEmpty());
  }
  bus_.Thaw();
  EXPECT_TRUE(IsHeard(last));
  bus_.Freeze();
  const WatchedSystem system;
  Observe();
  EXPECT_THAT(system.TakeWaits(), ElementsAre(5'000'000)) << "it had answered since";
  bus_.Thaw();
}

TEST_F(BusWait, ABusThatHangsFromTheStartIsWaitedForOnceToo) {
  bus_.Freeze();
  const WatchedSystem system;
  Observe();
  Observe();
  EXPECT_THAT(system.TakeWaits(), ElementsAre(5'000'000));
  bus_.Thaw();
}

TEST_F(BusWait, DispatchNeverWaits) {
  Observe();
  bus_.Freeze();
  const WatchedSystem system;
  Dispatch();
  Observe();
  system.TakeWaits();
  Dispatch();
  bus_.Stop();
  Dispatch();
  bus_.Start();
  bus_.Freeze();
  Dispatch();
  Dispatch();
  EXPECT_THAT(system.TakeWaits(), IsEmpty());
  bus_.Thaw();
}

TEST_F(BusWait, ABusThatIsAwayIsLookedForAfterOneSecond) {
  Observe();
  bus_.Stop();
  const WatchedSystem system;
  Dispatch();
  EXPECT_THAT(system.TimerRunsOutIn(), Optional(1'000'000));
  Dispatch();
  EXPECT_THAT(system.TimerRunsOutIn(), Optional(1'000'000));
  Observe();
  EXPECT_THAT(system.TimerRunsOutIn(), Optional(1'000'000));
  EXPECT_THAT(system.TakeWaits(), IsEmpty());
}

TEST_F(BusWait, WhileTheBusIsThereNoTimerWakesTheHost) {
  const std::string name = Observe();
  EXPECT_FALSE(IsTimerOn());
  Post(name);
  EXPECT_TRUE(RunEventLoopUntil([] { return delivered > 0; }));
  EXPECT_FALSE(IsTimerOn());
}

// The bus has the request and will answer it: asking again would ask twice.
TEST_F(BusWait, AnAnswerThatDoesNotComeInTimeIsNoRefusal) {
  setenv("SYSTEMD_BUS_TIMEOUT", "20ms", 1);
  ASSERT_TRUE(IsHeard(Observe())) << "the connection is up";
  bus_.Freeze();
  {
    const WatchedSystem system;
    Observe();
  }
  EXPECT_TRUE(RunEventLoopUntil([] { return !IsTimerOn(); })) << "asked again";
  bus_.Thaw();
  unsetenv("SYSTEMD_BUS_TIMEOUT");
}

// --- A flood -------------------------------------------------------------------------------------

TEST_F(BusWait, AProgramThatPostsWithoutPauseHoldsNeitherDispatchNorRegistration) {
  const std::string name = Observe();
  constexpr int kMost = 10'000;
  const BusFlood flood(name, kMost);
  Dispatch();
  EXPECT_EQ(delivered, 1'024);
  EXPECT_TRUE(BecomesReadable());
  Observe();
  EXPECT_LT(flood.Posted(), kMost);
  // Nothing of it is lost.
  EXPECT_TRUE(RunEventLoopUntil([] { return delivered == kMost; }));
}

// --- Watching the connection ---------------------------------------------------------------------

TEST_F(BusWait, AConnectionThatCannotBeWatchedAtOnceIsWatchedAfterOneSecond) {
  bus_.Stop();
  const std::string name = Observe();
  bus_.Start();
  {
    const WatchedSystem system;
    WatchedSystem::RefuseWatches(true);
    Dispatch();
    ASSERT_THAT(system.TimerRunsOutIn(), Optional(1'000'000));
  }
  // The host only watches the descriptor.
  ASSERT_TRUE(RunEventLoopUntil([] { return !IsTimerOn(); }));
  Post(name);
  EXPECT_TRUE(RunEventLoopUntil([] { return delivered > 0; }));
}

// --- Posting -------------------------------------------------------------------------------------

TEST_F(BusWait, PostsWaitForABusThatHangsOnceAndForFiveSeconds) {
  bus_.Freeze();
  const WatchedSystem system;
  Post("a name");
  EXPECT_THAT(system.TakeWaits(), ElementsAre(5'000'000));
  Post("a name");
  Post("a name");
  EXPECT_THAT(system.TakeWaits(), IsEmpty());
  bus_.Thaw();
}

TEST_F(BusWait, PostsToABusThatIsAwayDoNotWait) {
  bus_.Stop();
  const WatchedSystem system;
  Post("a name");
  EXPECT_THAT(system.TakeWaits(), IsEmpty());
}

TEST_F(BusWait, PostsThatABusLeavesInTheProcessAreWaitedForOnce) {
  const std::string heard = Observe();
  Post(heard);
  for (int hang = 0; hang < 2; ++hang) {
    bus_.Freeze();
    {
      const WatchedSystem system;
      std::vector<std::uint64_t> waits;
      // Messages that fit into the socket leave at once.
      for (int i = 0; i < 1'000'000 && waits.empty(); ++i) {
        Post("a name");
        waits = system.TakeWaits();
      }
      EXPECT_THAT(waits, ElementsAre(5'000'000)) << "hang " << hang;
      Post("a name");
      EXPECT_THAT(system.TakeWaits(), IsEmpty()) << "hang " << hang;
    }
    bus_.Thaw();
    EXPECT_TRUE(IsHeard(heard));
  }
}

}  // namespace
}  // namespace trxtest
