// A notification service that is absent, appears, ends, comes back or hangs.
#include <algorithm>
#include <chrono>

#include "../../Deliveries.h"

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
      if (++announced % 5 == 1) rig().Announce(BoostChange("TRX-SELVA", 11, 99));
      return false;
    });
    DeliverAll();
    return isHeard;
  }

  // Setting works as usual: the unit gets the value, the file is written.
  void ExpectSettingWorks(std::uint32_t index, const std::string &onTheWire) {
    rig().ClearWireLog();
    EXPECT_EQ(ORV_SetBoostLevelIndex(11, index), 100);
    EXPECT_EQ(rig().WireLog(), (std::vector<std::string>{"unit 1 OUT 40 03 wValue " + onTheWire +
                                                         " wIndex 8003 wLength 0 -> 0 bytes"}));
    EXPECT_EQ(SettingsOf("TRX-SELVA"),
              (Settings{{"MaxLevel", "<integer>" + std::to_string(index) + "</integer>"}}));
  }
};

TEST_F(NotificationService, AbsentAtFirstEverythingElseWorksAndLaterItIsFound) {
  rig().PlugMixer();
  rig().StopNotificationService();
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  EXPECT_EQ(ORV_RegisterInputAudioChangedCallback(11, ChannelIndexA, &selva), 100);
  EXPECT_EQ(ORV_UnregisterInputAudioChangedCallback(11, ChannelIndexA), 100);
  ExpectSettingWorks(2, "0100");
  rig().RunEventLoop(std::chrono::milliseconds(0));
  EXPECT_EQ(Calls(), CallList());
  rig().StartNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  rig().TakeAnnouncements(0);
  ExpectSettingWorks(1, "0200");
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", 11, 1)});
  EXPECT_EQ(DeliverAll(), (CallList{{"A selva", -1, 1}}));
}

TEST_F(NotificationService, RestartedTheRegistrationsMadeBeforeWorkAgain) {
  rig().PlugMixer();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  ExpectSettingWorks(0, "0300");
  ASSERT_EQ(DeliverAll(), (CallList{{"A selva", -1, 0}}));
  for (int restart = 0; restart < 2; ++restart) {
    rig().StopNotificationService();
    ExpectSettingWorks(3, "0000");
    rig().StartNotificationService();
    ASSERT_TRUE(WaitUntilHeard());
    rig().TakeAnnouncements(0);
    ExpectSettingWorks(2, "0100");
    EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", 11, 2)});
    EXPECT_EQ(DeliverAll(), (CallList{{"A selva", -1, 2}})) << "once, not once a restart";
  }
}

TEST_F(NotificationService, RestartedBetweenTwoSetsTheSecondIsAnnounced) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 0), 100);
  ASSERT_EQ(rig().TakeAnnouncements(1).size(), 1U);
  rig().StopNotificationService();
  rig().StartNotificationService();
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", 11, 1)});
}

TEST_F(NotificationService, RegistrationsMadeWhileItIsAwayCountWhenItIsBack) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  rig().StopNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(6, IndexB, &lumen), 100);
  rig().StartNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  ASSERT_EQ(ORV_SetBoostLevelIndex(6, 1), 100);
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 2), 100);
  EXPECT_EQ(DeliverAll(), (CallList{{"B lumen", -1, 1}, {"A selva", -1, 2}, {"A selva", -1, 2}}));
}

// Nothing but the registration can have found it: the event loop has not run yet.
TEST_F(NotificationService, ThatHasComeIsFoundByARegistration) {
  rig().StopNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  rig().StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(6, IndexB, &lumen), 100);
  rig().Announce(BoostChange("TRX-SELVA", 11, 1));
  rig().Announce(BoostChange("TRX-LUMEN", 6, 2));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"B lumen", -1, 2}}));
}

TEST_F(NotificationService, RestartedIsFoundByARegistration) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  rig().StopNotificationService();
  rig().StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(6, IndexB, &lumen), 100);
  rig().Announce(BoostChange("TRX-SELVA", 11, 1));
  rig().Announce(BoostChange("TRX-LUMEN", 6, 2));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"B lumen", -1, 2}}));
}

// Here there is nothing to ask the service for; only listening shows that it has gone.
TEST_F(NotificationService, RestartedIsFoundByARegistrationForTheSameChange) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  rig().StopNotificationService();
  rig().StartNotificationService();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexB, &lumen), 100);
  rig().Announce(BoostChange("TRX-SELVA", 11, 1));
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 2; }));
  EXPECT_EQ(Calls(), (CallList{{"B lumen", -1, 1}, {"B lumen", -1, 1}}));
}

TEST_F(NotificationService, WhatHadArrivedBeforeItWentIsStillDelivered) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  const auto host = rig().StartHost();
  ASSERT_EQ(host->Ask("register BoostLevel 11 host"), "100");
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 1), 100);
  ASSERT_EQ(host->TakeCalls(1).size(), 1U);
  ASSERT_EQ(rig().TakeAnnouncements(1).size(), 1U);
  rig().StopNotificationService();
  EXPECT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}}));
}

TEST_F(NotificationService, AProcessThatIsNotToldWhereItIsWorksWithoutIt) {
  rig().PlugMixer();
  for (const LostService how : {LostService::kNothingSaid, LostService::kNonsenseSaid}) {
    rig().LoseNotificationService(how);
    EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
    ExpectSettingWorks(1, "0200");
    rig().RunEventLoop(std::chrono::milliseconds(0));
    const auto host = rig().StartHost();
    EXPECT_EQ(host->Ask("register BoostLevel 11 host"), "100");
    EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
    EXPECT_EQ(host->Ask("unregister BoostLevel 11"), "100");
  }
  EXPECT_EQ(Calls(), CallList());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(NotificationService, WhileItHangsSettersWaitOnceAndTheirAnnouncementsComeLater) {
  rig().PlugMixer();
  rig().FreezeNotificationService();
  ExpectSettingWorks(1, "0200");
  ExpectSettingWorks(3, "0000");
  ExpectSettingWorks(0, "0300");
  rig().ThawNotificationService();
  // They are sent with the first setter for which the service answers again.
  std::vector<Announcement> arrived;
  EXPECT_TRUE(WaitUntil([&] {
    ExpectSettingWorks(2, "0100");
    for (const Announcement &one : rig().TakeAnnouncements(0)) arrived.push_back(one);
    return arrived.size() >= 4;
  }));
  arrived.resize(std::min<std::size_t>(arrived.size(), 4));
  EXPECT_EQ(arrived,
            (std::vector{BoostChange("TRX-SELVA", 11, 1), BoostChange("TRX-SELVA", 11, 3),
                         BoostChange("TRX-SELVA", 11, 0), BoostChange("TRX-SELVA", 11, 2)}));
}

TEST_F(NotificationService, WhileItHangsRegistrationsWaitOnceAndCountLater) {
  rig().FreezeNotificationService();
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(8, IndexA, &selva), 100);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(6, IndexA, &selva), 100);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(11, IndexA, &selva), 100);
  rig().ThawNotificationService();
  ASSERT_TRUE(WaitUntilHeard());
  ASSERT_EQ(ORV_SetBoostLevelIndex(11, 3), 100);
  EXPECT_EQ(DeliverAll(), (CallList{{"A selva", -1, 3}}));
}

TEST_F(NotificationService, TwoThousandAnnouncedBeforeTheReceiverLooksAllArriveInOrder) {
  constexpr int kCount = 2000;
  const auto receiver = rig().StartHost();
  const auto setter = rig().StartHost();
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
