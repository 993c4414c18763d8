// Units that do not open. On macOS a unit is opened by asking every device: one that cannot be
// asked has no position, and the last one asked decides the status of every opening.
#include "../../InstalledFiles.h"
#include "../../WireLines.h"

namespace trxtest {
namespace {

constexpr const char *kFramework = "/Library/Frameworks/TRX-SELVASetup.framework";
constexpr const char *kItalian =
    "/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Italian.lproj/"
    "Localizable.strings";

class FirstUnit : public InstalledFiles {
 protected:
  void SetUp() override {
    for (int i = 0; i < 2; ++i) rig_->SetPort(rig_->PlugMixer(), 1, 0);
    rig_->SetFirmware(2, 0x0215);
    rig_->SetFault(1, UnitFault::kRefusesToOpen);
  }
};

TEST_F(FirstUnit, AFirstUnitThatCannotBeAskedLeavesItsPlaceToTheSecond) {
  std::uint32_t version = 77;
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(kSelva, &version), kSuccess);
  EXPECT_EQ(version, 0x0215U);
  EXPECT_EQ(rig_->WireLog(), std::vector<std::string>{Asked(2, "8001", 2, "2 bytes 15 02")});
}

TEST_F(FirstUnit, AFirstUnitThatCannotBeAskedLeavesTheWarningToTheSecond) {
  InstallSystem("10.15");
  Install(kItalian,
          "<key>WARNING2</key><string>two</string><key>WARNING3</key><string>three</string>");
  LinkResources(kFramework);
  ORVStringRef text = nullptr;
  EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 4, &text),
            kSuccess);
  EXPECT_EQ(CharactersOf(text), "three");
  EXPECT_EQ(rig_->WireLog(), std::vector<std::string>{Asked(2, "8006", 2, "2 bytes 01 00")});
}

class LastUnit : public Acceptance {};

TEST_F(LastUnit, ALastUnitThatCannotBeAskedKeepsEveryUnitFromBeingReached) {
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(3, UnitFault::kHeldByAnotherProcess);
  EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(), std::vector<std::string>());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>0</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 0)});
}

}  // namespace
}  // namespace trxtest
