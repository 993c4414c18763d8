// A first unit that does not open, for functions that ask only the first unit: on Linux a unit has
// its position on the bus whether it opens or not.
#include "../../InstalledFiles.h"

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
    rig_->SetFault(1, UnitFault::kRefusesToOpen);
  }
};

TEST_F(FirstUnit, AFirstUnitThatDoesNotOpenHasFirmwareZeroAndTheSecondIsNotAsked) {
  std::uint32_t version = 77;
  EXPECT_EQ(ORV_GetFirmwareVersionIndex(kSelva, &version), kSuccess);
  EXPECT_EQ(version, 0U);
  ExpectNothingHappened();
}

TEST_F(FirstUnit, AFirstUnitThatDoesNotOpenCountsAsConnectedForAWarningAndTheSecondIsNotAsked) {
  InstallSystem("10.15");
  Install(kItalian,
          "<key>WARNING2</key><string>two</string><key>WARNING3</key><string>three</string>");
  LinkResources(kFramework);
  ORVStringRef text = nullptr;
  EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 4, &text),
            kSuccess);
  EXPECT_EQ(CharactersOf(text), "two");
  ExpectNothingHappened();
}

}  // namespace
}  // namespace trxtest
