// EventLoop.h: the descriptor is readable exactly when there is something to do, and dispatching
// delivers all of it without ever blocking.
#include <atomic>
#include <chrono>
#include <csetjmp>
#include <thread>

#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "../../Deliveries.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kSoon{10'000};
constexpr milliseconds kNow{0};
// Long enough for everything on its way to arrive.
constexpr milliseconds kAWhile{150};

std::string selva = "selva";
std::string lumen = "lumen";

std::int32_t Descriptor() {
  std::int32_t descriptor = -1;
  EXPECT_EQ(ORV_GetNotificationDescriptor(&descriptor), kSuccess);
  EXPECT_GE(descriptor, 0);
  return descriptor;
}

bool IsReadableWithin(milliseconds limit) {
  pollfd watched = {Descriptor(), POLLIN, 0};
  return poll(&watched, 1, static_cast<int>(limit.count())) == 1 && watched.revents == POLLIN;
}

void Dispatch() { EXPECT_EQ(ORV_DispatchNotifications(), kSuccess); }

class EventLoop : public Deliveries {
 protected:
  // Dispatches as a host does, when the descriptor is readable, until nothing is left.
  void DispatchUntilQuiet() {
    while (IsReadableWithin(kAWhile)) Dispatch();
  }
};

TEST_F(EventLoop, ANullPointerIsRefused) {
  EXPECT_EQ(ORV_GetNotificationDescriptor(nullptr), kBadArgument);
}

TEST_F(EventLoop, WithoutRegistrationsThereIsADescriptorAndNothingToDo) {
  EXPECT_FALSE(IsReadableWithin(kAWhile));
  Dispatch();
  EXPECT_FALSE(IsReadableWithin(kAWhile));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

TEST_F(EventLoop, TheDescriptorStaysTheSameForTheLifeOfTheProcess) {
  const std::int32_t descriptor = Descriptor();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  EXPECT_EQ(Descriptor(), descriptor);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  DeliverAll();
  EXPECT_EQ(Descriptor(), descriptor);
  std::thread([&] { EXPECT_EQ(Descriptor(), descriptor); }).join();
  rig_->StopNotificationService();
  Dispatch();
  EXPECT_EQ(Descriptor(), descriptor);
  rig_->StartNotificationService();
  EXPECT_TRUE(RunEventLoopUntil([&] {
    rig_->Announce(BoostChange("TRX-SELVA", kSelva, 2));
    return !Calls().empty();
  }));
  EXPECT_EQ(Descriptor(), descriptor);
}

TEST_F(EventLoop, TheDescriptorIsReadableUntilWhatArrivedIsDelivered) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  DispatchUntilQuiet();
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
  EXPECT_TRUE(IsReadableWithin(kSoon));
  EXPECT_TRUE(IsReadableWithin(kNow)) << "it stays so until dispatched";
  EXPECT_EQ(Calls(), CallList());
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 2}}));
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

TEST_F(EventLoop, WhatNobodyRegisteredForDoesNotWakeTheHost) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  DispatchUntilQuiet();
  rig_->Announce(BoostChange("TRX-LUMEN", kLumen, 1));
  rig_->Announce({"Somebody Else's Change", {}});
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

// A hundred fit into the buffer of a socket, so by then all have arrived in this process.
TEST_F(EventLoop, OneDispatchDeliversAllThatHasArrived) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  const auto witness = rig_->StartHost();
  ASSERT_EQ(witness->Ask("register BoostLevel 11 w"), "100");
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("levels 11 100"), "100");
  ASSERT_EQ(witness->TakeCalls(100).size(), 100U);
  ASSERT_EQ(rig_->TakeAnnouncements(100).size(), 100U);
  Dispatch();
  EXPECT_EQ(Calls().size(), 100U);
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

// While Register waits for the bus's answer, other notifications arrive on the same connection
// before it. They have been read already, so the socket is not readable because of them.
TEST_F(EventLoop, TheDescriptorIsReadableForWhatArrivedWhileARegistrationWaited) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 3"), "100");
  ASSERT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow}) {
    DispatchUntilQuiet();
    Calls().clear();
    rig_->FreezeNotificationService();
    ASSERT_EQ(host->Ask("levels 11 3"), "100");
    std::atomic<bool> thawed = false;
    std::thread thaw([&] {
      std::this_thread::sleep_for(milliseconds(60));
      thawed = true;
      rig_->ThawNotificationService();
    });
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(product, IndexB, &lumen), kSuccess);
    EXPECT_TRUE(thawed) << "the registration did not wait for the bus";
    thaw.join();
    EXPECT_EQ(Calls(), CallList()) << "delivered inside the registration";
    while (Calls().size() < 3 && IsReadableWithin(kSoon)) Dispatch();
    EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 0}, {"A selva", -1, 1}, {"A selva", -1, 2}}));
  }
}

TEST_F(EventLoop, NothingIsLostWhileOthersAnnounceDuringManyRegistrations) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  const auto host = rig_->StartHost();
  host->Begin("levels 11 400");
  for (int round = 0; round < 20; ++round) {
    for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow}) {
      ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexB, &lumen), kSuccess);
      ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(product, IndexB, &lumen), kSuccess);
    }
  }
  while (Calls().size() < 400 && IsReadableWithin(milliseconds(2000))) Dispatch();
  EXPECT_EQ(host->Answer(), "100");
  ASSERT_EQ(Calls().size(), 400U);
  for (std::size_t i = 0; i < 400; ++i) {
    EXPECT_EQ(Calls()[i], (Call{"A selva", -1, static_cast<std::int32_t>(i % 4)})) << i;
  }
}

TEST_F(EventLoop, DispatchDoesNotBlockWhileTheBusHangs) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  DispatchUntilQuiet();
  rig_->FreezeNotificationService();
  Dispatch();
  EXPECT_FALSE(IsReadableWithin(kAWhile));
  rig_->ThawNotificationService();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
}

TEST_F(EventLoop, DispatchDoesNotBlockOnABusThatHangsRightAfterItsRestart) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->StopNotificationService();
  Dispatch();
  rig_->StartNotificationService();
  rig_->FreezeNotificationService();
  const auto end = Clock::now() + milliseconds(1500);  // the library looks again once a second
  while (Clock::now() < end) {
    if (IsReadableWithin(milliseconds(50))) Dispatch();
  }
  rig_->ThawNotificationService();
  EXPECT_TRUE(RunEventLoopUntil([&] {
    rig_->Announce(BoostChange("TRX-SELVA", kSelva, 2));
    return !Calls().empty();
  }));
}

// --- What callbacks may do -------------------------------------------------------------------

TEST_F(EventLoop, WhatACallbackCausesComesWithTheNextDispatch) {
  const auto setAgain = [](std::int32_t index, void *context) {
    IndexA(index, context);
    if (index == 3) return;
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, static_cast<std::uint32_t>(index) + 1), kSuccess);
    EXPECT_TRUE(IsReadableWithin(kSoon)) << "what the callback announced is back already";
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, setAgain, &selva), kSuccess);
  DispatchUntilQuiet();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_TRUE(IsReadableWithin(kSoon));
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}}));
  ASSERT_TRUE(IsReadableWithin(kNow));
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"A selva", -1, 2}}));
  ASSERT_TRUE(IsReadableWithin(kNow));
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"A selva", -1, 2}, {"A selva", -1, 3}}));
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

// Registering also reads what has arrived.
TEST_F(EventLoop, WhatACallbackCausesAndTakesInComesWithTheNextDispatch) {
  const auto setAndRegister = [](std::int32_t index, void *context) {
    IndexA(index, context);
    if (index == 2) return;
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
    EXPECT_TRUE(IsReadableWithin(kSoon)) << "what the callback announced is back already";
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, setAndRegister, &selva), kSuccess);
  DispatchUntilQuiet();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_TRUE(IsReadableWithin(kSoon));
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}}));
  EXPECT_TRUE(IsReadableWithin(kNow));
  Dispatch();
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"A selva", -1, 2}}));
}

// As hosts in C and interpreters do for their errors.
TEST_F(EventLoop, ACallbackMayLeaveByLongjmpAndTheRestIsNotForgotten) {
  static std::jmp_buf host;
  const auto leave = [](std::int32_t index, void *context) {
    IndexA(index, context);
    std::longjmp(host, 1);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, leave, &selva), kSuccess);
  DispatchUntilQuiet();
  const auto witness = rig_->StartHost();
  ASSERT_EQ(witness->Ask("register BoostLevel 11 w"), "100");
  for (const std::uint32_t index : {1U, 2U, 3U}) {
    ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, index), kSuccess);
  }
  ASSERT_EQ(witness->TakeCalls(3).size(), 3U);
  ASSERT_EQ(rig_->TakeAnnouncements(3).size(), 3U);
  while (Calls().size() < 3 && IsReadableWithin(kNow)) {
    if (setjmp(host) == 0) Dispatch();
  }
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"A selva", -1, 2}, {"A selva", -1, 3}}));
  EXPECT_FALSE(IsReadableWithin(kNow));
}

TEST_F(EventLoop, ACallbackMayRegisterAnother) {
  const auto registerAnother = [](std::int32_t index, void *context) {
    IndexA(index, context);
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, registerAnother, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"B lumen", -1, 2}}));
}

TEST_F(EventLoop, ACallbackMayRegisterItselfAgain) {
  static int runs;
  runs = 0;
  const auto again = [](std::int32_t index, void *context) {
    IndexA(index, context);
    if (++runs > 1) return;
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexB, &lumen), kSuccess);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, again, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"B lumen", -1, 2}, {"B lumen", -1, 2}}));
}

TEST_F(EventLoop, ACallbackMayUnregisterItselfAndOthers) {
  const auto unregister = [](std::int32_t index, void *context) {
    IndexA(index, context);
    EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, nullptr), kSuccess);
    EXPECT_EQ(ORV_UnregisterBoostLevelChangedCallback(kLumen, nullptr), kSuccess);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, unregister, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, unregister, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
}

TEST_F(EventLoop, ACallbackMayDispatchAndNothingIsLostDoubledOrOutOfOrder) {
  const auto dispatch = [](std::int32_t index, void *context) {
    IndexA(index, context);
    EXPECT_EQ(ORV_DispatchNotifications(), kSuccess);
  };
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, dispatch, &selva), kSuccess);
  for (const std::uint32_t index : {0U, 1U, 2U, 3U, 0U, 2U}) {
    ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, index), kSuccess);
  }
  EXPECT_TRUE(Delivered({{"A selva", -1, 0},
                         {"A selva", -1, 1},
                         {"A selva", -1, 2},
                         {"A selva", -1, 3},
                         {"A selva", -1, 0},
                         {"A selva", -1, 2}}));
  EXPECT_FALSE(IsReadableWithin(kAWhile));
}

}  // namespace
}  // namespace trxtest
