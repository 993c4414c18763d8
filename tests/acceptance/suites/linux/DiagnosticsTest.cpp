// Reports about units that do not open: on Linux a unit has its position whether it opens or not.
// And a path that follows the user's folders.
#include <cstdlib>

#include "../../RequestReports.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class UnopenedUnit : public RequestReports {};

TEST_F(UnopenedUnit, AnUnopenedUnitIsReportedInItsTurnWithItsPlace) {
  PlugMixers(3);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 open 0000 0000 gone",
                                  "unit 3 write 8003 0300 done"}));
}

// Unplugged while the first one is served: only this one is skipped.
TEST_F(UnopenedUnit, UnpluggedInTheMiddleOfASetIsGone) {
  PlugMixers(3);
  WhileReported([&] {
    WhileReported(nullptr);
    rig_->Unplug(2);
  });
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 done", "unit 2 open 0000 0000 gone",
                                  "unit 3 write 8003 0300 done"}));
}

TEST_F(UnopenedUnit, AnUnopenedUnitIsTheOnlyOneThatASetMissesWhenItVanishesInItsRequest) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kVanishes);
  Observe();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8003 0300 gone", "unit 2 write 8003 0300 done",
                                  "unit 3 write 8003 0300 done"}));
}

// The read after a setting goes to the units that got the setting, whatever is plugged in or out
// meanwhile.
TEST_F(UnopenedUnit,
       AnUnopenedUnitIsMissedByTheReadsOfTheSameCallAndAMixerPluggedInSinceIsNotAsked) {
  PlugMixers(2);
  int reports = 0;
  WhileReported([&] {
    if (++reports != 2) return;
    rig_->Unplug(1);
    rig_->PlugMixer();
  });
  Observe();
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 1), kSuccess);
  EXPECT_EQ(TakeReports(), (Lines{"unit 1 write 8016 0101 done", "unit 2 write 8016 0101 done",
                                  "unit 1 open 0000 0000 gone", "unit 2 read 8002 0000 done"}));
}

TEST_F(UnopenedUnit, HeldByAnotherProcessIsBusy) {
  for (int i = 0; i < 2; ++i) rig_->PlugMixer();
  rig_->SetFault(1, UnitFault::kHeldByAnotherProcess);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up admin"), "done");
  ASSERT_EQ(host->Ask("observe-requests"), "100");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 0"), "100");
  EXPECT_EQ(host->TakeCalls(2), (Lines{"kind 0 outcome 6", "kind 2 outcome 0"}));
}

TEST_F(UnopenedUnit, WithoutARuleForThisUserIsNotPermitted) {
  for (int i = 0; i < 2; ++i) rig_->PlugMixer();
  rig_->SetFault(2, UnitFault::kNotPermitted);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up root"), "done");
  ASSERT_EQ(host->Ask("observe-requests"), "100");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 0"), "100");
  EXPECT_EQ(host->TakeCalls(2), (Lines{"kind 2 outcome 0", "kind 0 outcome 5"}));
}

class SettingsPathOfLinux : public Acceptance {};

TEST_F(SettingsPathOfLinux, ASettingsPathFollowsTheUsersFoldersAndLeavesEarlierTextsAsTheyAre) {
  const std::string before = rig_->SettingsFile("TRX-VOLT");
  ORVStringRef first = nullptr;
  EXPECT_EQ(ORV_GetSettingsFilePath(kVolt, &first), kSuccess);
  setenv("XDG_CONFIG_HOME", "/elsewhere/\xC3\xA4 and \xFF", 1);
  ORVStringRef second = nullptr;
  EXPECT_EQ(ORV_GetSettingsFilePath(kVolt, &second), kSuccess);
  EXPECT_STREQ(second,
               "/elsewhere/\xC3\xA4 and \xFF/orvikaudio/Preferences/"
               "com.orvikaudio.TRX-VOLTautosetup.plist");
  setenv("XDG_CONFIG_HOME", "not/absolute", 1);
  setenv("HOME", "/home/somebody", 1);
  ORVStringRef third = nullptr;
  EXPECT_EQ(ORV_GetSettingsFilePath(kVolt, &third), kSuccess);
  EXPECT_STREQ(third,
               "/home/somebody/.config/orvikaudio/Preferences/"
               "com.orvikaudio.TRX-VOLTautosetup.plist");
  EXPECT_EQ(CharactersOf(first), before);
}

}  // namespace
}  // namespace trxtest
