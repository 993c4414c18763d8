// Which units a request reaches, in which order, and what happens to those that fail. Tested with
// the boost level: all settings use the same operation.

#include "../Acceptance.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class Units : public Acceptance {
 protected:
  // Level 0 in the wire log of a unit that takes it.
  static std::string Taken(int unit, const std::string &outcome = "0 bytes") {
    return Sent(unit, "0300", "8003", outcome);
  }

  // Sets level 0, expects success and that it was stored and announced, and returns the wire log.
  Lines SetLevelZero() {
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
    EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>0</integer>"}}));
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 0)});
    return rig_->WireLog();
  }

  // Sends level 0 again from the settings file.
  Lines SendLevelZeroAgain() {
    PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>0</integer>");
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
    EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
    return rig_->WireLog();
  }
};

TEST_F(Units, WithoutAUnitNothingIsSent) {
  EXPECT_EQ(SetLevelZero(), Lines());
  EXPECT_EQ(SendLevelZeroAgain(), Lines());
}

TEST_F(Units, ThreeUnitsAreReachedOnceEachInTheOrderOfTheBus) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1), Taken(2), Taken(3)}));
  EXPECT_EQ(SendLevelZeroAgain(), (Lines{Taken(1), Taken(2), Taken(3)}));
}

TEST_F(Units, StrangersInBetweenAreNeverAsked) {
  rig_->PlugStranger(Stranger::kOtherMakerWithTheSameProduct);
  const int first = rig_->PlugMixer();
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  rig_->PlugStranger(Stranger::kUnrelated);
  const int second = rig_->PlugMixer();
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(first), Taken(second)}));
  EXPECT_EQ(SendLevelZeroAgain(), (Lines{Taken(first), Taken(second)}));
}

TEST_F(Units, NothingIsSentToStrangers) {
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  rig_->PlugStranger(Stranger::kOtherMakerWithTheSameProduct);
  EXPECT_EQ(SetLevelZero(), Lines());
}

TEST_F(Units, AReplugPutsAUnitBehindTheOthers) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->Unplug(1);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(2), Taken(3)}));
  rig_->Replug(1);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(2), Taken(3), Taken(1)}));
}

TEST_F(Units, TheOrderIsThatOfTheBusAndNotThatOfPluggingIn) {
  const int earlier = rig_->PlugMixer();
  rig_->Unplug(earlier);
  rig_->Replug(earlier);  // leaves the first place of the bus free
  const int later = rig_->PlugMixerInFront();
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(later), Taken(earlier)}));
}

TEST_F(Units, ManyUnitsAreReachedInTheOrderOfTheirNumbersNotOfTheirDigits) {
  Lines expected;
  for (int unit = 1; unit <= 12; ++unit) expected.push_back(Taken(rig_->PlugMixer()));
  EXPECT_EQ(SetLevelZero(), expected);
}

TEST_F(Units, AUnitThatDoesNotOpenIsPassedOver) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1), Taken(3)}));
  EXPECT_EQ(SendLevelZeroAgain(), (Lines{Taken(1), Taken(3)}));
  rig_->ClearFaults(2);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1), Taken(2), Taken(3)}));
}

TEST_F(Units, WhenNoUnitOpensTheLevelIsStoredAndAnnounced) {
  for (const int unit : {rig_->PlugMixer(), rig_->PlugMixer()}) {
    rig_->SetFault(unit, UnitFault::kRefusesToOpen);
  }
  EXPECT_EQ(SetLevelZero(), Lines());
}

TEST_F(Units, AUnitThatRefusesTheRequestDoesNotKeepTheOthersFromIt) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1, "stalled"), Taken(2), Taken(3)}));
  EXPECT_EQ(SendLevelZeroAgain(), (Lines{Taken(1, "stalled"), Taken(2), Taken(3)}));
}

TEST_F(Units, AUnitThatStaysSilentIsGivenUp) {
  rig_->PlugMixer();
  rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kStaysSilent);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1, "no reply"), Taken(2)}));
}

TEST_F(Units, AUnitThatVanishesDuringTheRequestIsPassedOver) {
  rig_->PlugMixer();
  rig_->PlugMixer();
  rig_->SetFault(2, UnitFault::kVanishes);
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1), Taken(2, "unplugged")}));
  EXPECT_EQ(SetLevelZero(), (Lines{Taken(1)}));
}

TEST_F(Units, AUnitUnpluggedDuringItsRequestEndsTheWait) {
  const int silent = rig_->PlugMixer();
  rig_->SetFault(silent, UnitFault::kStaysSilent);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("observe-requests"), "100");
  host->Begin("call ORV_SetBoostLevelIndex 11 0");
  ASSERT_TRUE(WaitUntil([&] { return rig_->WireLog().size() == 1; }));
  rig_->Unplug(silent);
  EXPECT_EQ(host->Answer(), "100");
  EXPECT_EQ(host->TakeCalls(1), Lines{"kind 2 outcome 4"}) << "gone, and not out of time";
}

TEST_F(Units, AUnitHeldByAnotherProcessIsPassedOver) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(2, UnitFault::kHeldByAnotherProcess);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up admin"), "done");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 0"), "100");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(1), Taken(3)}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>0</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 0)});
  rig_->ClearWireLog();
  EXPECT_EQ(host->Ask("call ORV_SetCurrentBoostLevelIndex 11"), "100");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(1), Taken(3)}));
}

TEST_F(Units, AUnitThatTheUserMayNotOpenIsPassedOver) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  PlugSomethingHealthyBehind();
  rig_->SetFault(3, UnitFault::kNotPermitted);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up root"), "done");
  EXPECT_EQ(host->Ask("call ORV_IsUSBConnection 11"), "103");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 0"), "100");
  EXPECT_EQ(rig_->WireLog(), (Lines{Taken(1), Taken(2)}));
}

TEST_F(Units, AUnitPluggedInAfterASetLearnsTheLevelWhenItIsSentAgain) {
  EXPECT_EQ(SetLevelZero(), Lines());
  rig_->PlugMixer();
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines{Taken(1)});
}

}  // namespace
}  // namespace trxtest
