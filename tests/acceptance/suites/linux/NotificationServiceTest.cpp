// A notification service that is absent, appears, ends, comes back or hangs.
#include <algorithm>
#include <chrono>

#include "../../Deliveries.h"
#include "../../WireLines.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;
using Lines = std::vector<std::string>;

std::string selva = "selva";
std::string lumen = "lumen";

class NotificationService : public Deliveries {
 protected:
  // Announces from outside until a callback runs: only then has the library found the service.
  // Returns whether that happened, and forgets these calls.
  bool WaitUntilHeard() {
    int announced = 0;
    const bool isHeard = RunEventLoopUntil([&] {
      if (!Calls().empty()) return true;
      if (++announced % 5 == 1) rig_->Announce(BoostChange("TRX-SELVA", kSelva, 99));
      return false;
    });
    DeliverAll();
    return isHeard;
  }

  // Setting works as usual: the unit gets the value, the file is written.
  void ExpectSettingWorks(std::uint32_t index, const std::string &onTheWire) {
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, index), kSuccess);
    EXPECT_EQ(rig_->WireLog(), Lines{Sent(1, onTheWire, "8003")});
    EXPECT_EQ(SettingsOf("TRX-SELVA"),
              (Settings{{"MaxLevel", "<integer>" + std::to_string(index) + "</integer>"}}));
  }
};

TEST_F(NotificationService, WithoutAServiceEverythingElseWorksAndLaterItIsFound) {
  rig_->PlugMixer();
  rig_->StopNotificationService();
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  EXPECT_EQ(ORV_UnregisterInputAudioChangedCallback(kSelva, ChannelIndexA), kSuccess);
  ExpectSettingWorks(2, "0100");
  rig_->RunEventLoop(std::chrono::milliseconds(0));
  EXPECT_EQ(Calls(), CallList());
  rig_->StartNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  rig_->TakeAnnouncements(0);
  ExpectSettingWorks(1, "0200");
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
}

TEST_F(NotificationService, RegistrationsMadeBeforeARestartOfTheServiceWorkAfterIt) {
  rig_->PlugMixer();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ExpectSettingWorks(0, "0300");
  ASSERT_TRUE(Delivered({{"A selva", -1, 0}}));
  for (int restart = 0; restart < 2; ++restart) {
    rig_->StopNotificationService();
    ExpectSettingWorks(3, "0000");
    rig_->StartNotificationService();
    ASSERT_TRUE(WaitUntilHeard());
    rig_->TakeAnnouncements(0);
    ExpectSettingWorks(2, "0100");
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 2)});
    EXPECT_TRUE(Delivered({{"A selva", -1, 2}})) << "once, not once a restart";
  }
}

TEST_F(NotificationService, ASetAfterARestartOfTheServiceIsAnnounced) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  ASSERT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
  rig_->StopNotificationService();
  rig_->StartNotificationService();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
}

TEST_F(NotificationService, RegistrationsMadeWhileTheServiceIsAwayCountWhenItIsBack) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->StopNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  rig_->StartNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 1), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"B lumen", -1, 1}, {"A selva", -1, 2}, {"A selva", -1, 2}}));
}

// Nothing but the registration can have found it: the event loop has not run yet.
TEST_F(NotificationService, ARegistrationFindsAServiceThatHasStarted) {
  rig_->StopNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  rig_->Announce(BoostChange("TRX-SELVA", kSelva, 1));
  rig_->Announce(BoostChange("TRX-LUMEN", kLumen, 2));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"B lumen", -1, 2}}));
}

TEST_F(NotificationService, ARegistrationFindsARestartedService) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->StopNotificationService();
  rig_->StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  rig_->Announce(BoostChange("TRX-SELVA", kSelva, 1));
  rig_->Announce(BoostChange("TRX-LUMEN", kLumen, 2));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"B lumen", -1, 2}}));
}

// Here there is nothing to ask the service for; only listening shows that it has gone.
TEST_F(NotificationService, ARegistrationForTheSameChangeFindsARestartedService) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->StopNotificationService();
  rig_->StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexB, &lumen), kSuccess);
  rig_->Announce(BoostChange("TRX-SELVA", kSelva, 1));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"B lumen", -1, 1}, {"B lumen", -1, 1}}));
}

TEST_F(NotificationService, WhatArrivedBeforeTheServiceEndedIsDelivered) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("register BoostLevel 11 host"), "100");
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_EQ(host->TakeCalls(1).size(), 1U);
  ASSERT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
  rig_->StopNotificationService();
  EXPECT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}}));
}

TEST_F(NotificationService, AProcessThatDoesNotKnowTheServicesAddressWorksWithoutIt) {
  rig_->PlugMixer();
  for (const LostService how : {LostService::kNothingSaid, LostService::kNonsenseSaid}) {
    rig_->LoseNotificationService(how);
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
    ExpectSettingWorks(1, "0200");
    rig_->RunEventLoop(std::chrono::milliseconds(0));
    const auto host = rig_->StartHost();
    EXPECT_EQ(host->Ask("register BoostLevel 11 host"), "100");
    EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
    EXPECT_EQ(host->Ask("unregister BoostLevel 11"), "100");
  }
  EXPECT_EQ(Calls(), CallList());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(NotificationService, SettersWaitOnceForAServiceThatHangsAndAnnounceLater) {
  rig_->PlugMixer();
  rig_->FreezeNotificationService();
  ExpectSettingWorks(1, "0200");
  ExpectSettingWorks(3, "0000");
  ExpectSettingWorks(0, "0300");
  rig_->ThawNotificationService();
  // They are sent with the first setter for which the service answers again.
  std::vector<Announcement> arrived;
  EXPECT_TRUE(WaitUntil([&] {
    ExpectSettingWorks(2, "0100");
    for (const Announcement &one : rig_->TakeAnnouncements(0)) arrived.push_back(one);
    return arrived.size() >= 4;
  }));
  arrived.resize(std::min<std::size_t>(arrived.size(), 4));
  EXPECT_EQ(
      arrived,
      (std::vector{BoostChange("TRX-SELVA", kSelva, 1), BoostChange("TRX-SELVA", kSelva, 3),
                   BoostChange("TRX-SELVA", kSelva, 0), BoostChange("TRX-SELVA", kSelva, 2)}));
}

TEST_F(NotificationService, RegistrationsWaitOnceForAServiceThatHangsAndCountLater) {
  rig_->FreezeNotificationService();
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kMorrow, IndexA, &selva), kSuccess);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexA, &selva), kSuccess);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->ThawNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 3}}));
}

TEST_F(NotificationService, TwoThousandAnnouncedBeforeTheReceiverLooksAllArriveInOrder) {
  constexpr int kCount = 2000;
  const auto receiver = rig_->StartHost();
  const auto setter = rig_->StartHost();
  ASSERT_EQ(receiver->Ask("register BoostLevel 11 r"), "100");
  ASSERT_EQ(receiver->Ask("stop-receiving"), "done");
  ASSERT_EQ(setter->Ask("levels 11 " + std::to_string(kCount)), "100");
  ASSERT_EQ(receiver->Ask("go-on-receiving"), "done");
  Lines expected;
  for (int i = 0; i < kCount; ++i) expected.push_back("r " + std::to_string(i % 4));
  EXPECT_EQ(receiver->TakeCalls(kCount), expected);
}

}  // namespace
}  // namespace trxtest
