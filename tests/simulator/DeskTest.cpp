// The desk: numbers, plugging, faults applied to requests, the log.

#include <gtest/gtest.h>

#include "Model/Desk.h"
#include "RecordingFrontEnd.h"

namespace trxsim {
namespace {

constexpr ControlRequest kReadSelectors{0xC0, 0, 0, 0x8002, 5};
constexpr ControlRequest kWriteLevel{0x40, 3, 0x0300, 0x8003, 0};

class DeskTest : public testing::Test {
 protected:
  RecordingFrontEnd frontEnd_;
  Desk desk_{frontEnd_};
};

TEST_F(DeskTest, TheDeskNumbersAllUnitsFromOne) {
  EXPECT_EQ(desk_.Plug(), 1);
  EXPECT_EQ(desk_.Plug(UsbIds{0x1234, 0x5678}), 2);
  EXPECT_EQ(desk_.Plug(), 3);
}

TEST_F(DeskTest, MixerShowsTheMakersIds) {
  desk_.Plug();
  ASSERT_EQ(frontEnd_.identities.size(), 1u);
  EXPECT_EQ(frontEnd_.identities[0].vendor, MAKER_USB_VENDOR_ID);
  EXPECT_EQ(frontEnd_.identities[0].product, 0x001F);
  EXPECT_TRUE(frontEnd_.identities[0].isMixer);
}

TEST_F(DeskTest, MixerHasTheNameAndTheSelectorsOfItsModel) {
  const std::vector<std::pair<std::string, std::size_t>> expected{
      {"TRX-SELVA", 4},  {"TRX-Arden", 4}, {"TRX-VOLT", 2},
      {"TRX-HALDEN", 4}, {"TRX-LUMEN", 4}, {"TRX-MORROW", 4}};
  ASSERT_EQ(kMixerModels.size(), expected.size());
  for (std::size_t place = 0; place < expected.size(); ++place) {
    const Unit unit = desk_.UnitOf(desk_.Plug(kMixerModels[place]));
    EXPECT_EQ(unit.identity.productName, expected[place].first);
    EXPECT_EQ(unit.identity.product, 0x001F);
    EXPECT_EQ(unit.mixer->State().selectors.size(), expected[place].second);
  }
}

TEST_F(DeskTest, OtherDeviceOfTheMakerShowsTheMakersNameButIsNoMixer) {
  desk_.Plug(UsbIds{MAKER_USB_VENDOR_ID, 0x0020});
  EXPECT_EQ(frontEnd_.identities[0].manufacturer, "Orvik Audio");
  EXPECT_EQ(frontEnd_.identities[0].productName, "Other device");
  EXPECT_FALSE(frontEnd_.identities[0].isMixer);
}

TEST_F(DeskTest, OtherDeviceShowsItsIdsAndStalls) {
  desk_.Plug(UsbIds{0x1234, 0x5678});
  EXPECT_EQ(frontEnd_.identities[0].vendor, 0x1234);
  EXPECT_EQ(frontEnd_.identities[0].manufacturer, "");
  EXPECT_EQ(frontEnd_.identities[0].product, 0x5678);
  EXPECT_EQ(desk_.Transfer(1, kReadSelectors).outcome, Outcome::kStalled);
}

TEST_F(DeskTest, ReplugKeepsTheNumberAndTheSettingsButNotTheAddress) {
  desk_.Plug();
  desk_.Transfer(1, kWriteLevel);
  desk_.Unplug(1);
  EXPECT_FALSE(desk_.UnitOf(1).address);
  desk_.Replug(1);
  EXPECT_EQ(frontEnd_.calls, (std::vector<std::string>{"plug 1", "unplug 1", "plug 1"}));
  ASSERT_TRUE(desk_.UnitOf(1).address);
  EXPECT_EQ(desk_.UnitOf(1).address->device, 3);
  EXPECT_EQ(desk_.UnitOf(1).mixer->LastWritten(RequestId::kUsbOutputLevel), 0x0300);
}

TEST_F(DeskTest, UnitThatWentAwayByItselfIsUnplugged) {
  desk_.Plug();
  desk_.Lost(1, *desk_.UnitOf(1).address);
  EXPECT_FALSE(desk_.UnitOf(1).address);
  EXPECT_EQ(frontEnd_.calls, (std::vector<std::string>{"plug 1", "unplug 1"}));
}

TEST_F(DeskTest, LossOfAUnitThatWasPluggedInAgainIsOldNews) {
  desk_.Plug();
  const BusAddress first = *desk_.UnitOf(1).address;
  desk_.Unplug(1);
  desk_.Lost(1, first);
  desk_.Replug(1);
  desk_.Lost(1, first);
  EXPECT_TRUE(desk_.UnitOf(1).address);
  EXPECT_EQ(frontEnd_.calls, (std::vector<std::string>{"plug 1", "unplug 1", "plug 1"}));
}

TEST_F(DeskTest, RequestToAUnitThatWasNeverPluggedInLeavesNoTrace) {
  EXPECT_EQ(desk_.Transfer(1, kReadSelectors).outcome, Outcome::kGone);
  EXPECT_TRUE(desk_.Log().empty());
}

TEST_F(DeskTest, RequestToAnUnpluggedUnitLeavesNoTrace) {
  desk_.Plug();
  desk_.Unplug(1);
  EXPECT_EQ(desk_.Transfer(1, kReadSelectors).outcome, Outcome::kGone);
  EXPECT_TRUE(desk_.Log().empty());
}

TEST_F(DeskTest, StallFaultKeepsTheWriteOut) {
  desk_.Plug();
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kStall, 0});
  EXPECT_EQ(desk_.Transfer(1, kWriteLevel).outcome, Outcome::kStalled);
  EXPECT_EQ(desk_.UnitOf(1).mixer->LastWritten(RequestId::kUsbOutputLevel), std::nullopt);
}

TEST_F(DeskTest, NoReplyFaultKeepsTheWriteOut) {
  desk_.Plug();
  desk_.SetFault(1, RequestId::kUsbOutputLevel, {RequestFaultKind::kNoReply, 0});
  EXPECT_EQ(desk_.Transfer(1, kWriteLevel).outcome, Outcome::kNoReply);
  EXPECT_EQ(desk_.UnitOf(1).mixer->LastWritten(RequestId::kUsbOutputLevel), std::nullopt);
}

TEST_F(DeskTest, ShortFaultCutsTheReply) {
  desk_.Plug();
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kShort, 2});
  EXPECT_EQ(desk_.Transfer(1, kReadSelectors).data.size(), 2u);
  EXPECT_EQ(desk_.Transfer(1, kWriteLevel).outcome, Outcome::kDone);
}

TEST_F(DeskTest, VanishFaultUnplugsTheUnit) {
  desk_.Plug();
  desk_.SetFault(1, RequestId::kSelectors, {RequestFaultKind::kVanish, 0});
  EXPECT_EQ(desk_.Transfer(1, kReadSelectors).outcome, Outcome::kUnplugged);
  EXPECT_FALSE(desk_.UnitOf(1).address);
  EXPECT_EQ(frontEnd_.calls.back(), "unplug 1");
  EXPECT_EQ(desk_.Log().size(), 1u);
}

TEST_F(DeskTest, FaultsOfOneUnitLeaveTheOthersAlone) {
  desk_.Plug();
  desk_.Plug();
  desk_.SetFault(1, std::nullopt, {RequestFaultKind::kStall, 0});
  EXPECT_EQ(desk_.Transfer(2, kReadSelectors).outcome, Outcome::kDone);
}

TEST_F(DeskTest, OpenFaultGoesToTheFrontEndAndStaysOverReplug) {
  desk_.Plug();
  desk_.SetFault(1, OpenFault::kRefuse);
  desk_.Unplug(1);
  desk_.Replug(1);
  desk_.ClearFaults(1);
  EXPECT_EQ(frontEnd_.calls, (std::vector<std::string>{"plug 1", "fault 1 1", "unplug 1",
                                                       "plug 1 faulty", "fault 1 0"}));
}

TEST_F(DeskTest, OpenFaultOfAnUnpluggedUnitWaitsForItsPlug) {
  desk_.Plug();
  desk_.Unplug(1);
  desk_.SetFault(1, OpenFault::kDeny);
  desk_.Replug(1);
  EXPECT_EQ(frontEnd_.calls.back(), "plug 1 faulty");
}

TEST_F(DeskTest, UnitThatDoesNotFitIsNotAdded) {
  frontEnd_.isFull = true;
  EXPECT_THROW(desk_.Plug(), DeskError);
  EXPECT_TRUE(desk_.Units().empty());
}

TEST_F(DeskTest, TheDeskRefusesWhatMakesNoSense) {
  desk_.Plug();
  desk_.Plug(UsbIds{1, 2});
  EXPECT_THROW(desk_.Unplug(7), DeskError);
  EXPECT_THROW(desk_.Replug(1), DeskError);
  EXPECT_THROW(desk_.Change(2, [](MixerState &) {}), DeskError);
  desk_.Unplug(1);
  EXPECT_THROW(desk_.Unplug(1), DeskError);
}

}  // namespace
}  // namespace trxsim
