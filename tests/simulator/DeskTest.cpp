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
  RecordingFrontEnd frontEnd;
  Desk desk{frontEnd};
};

TEST_F(DeskTest, NumbersUnitsFromOneStrangersIncluded) {
  EXPECT_EQ(desk.plugMixer(), 1);
  EXPECT_EQ(desk.plugStranger(0x1234, 0x5678), 2);
  EXPECT_EQ(desk.plugMixer(), 3);
}

TEST_F(DeskTest, MixerShowsTheMakersIds) {
  desk.plugMixer();
  ASSERT_EQ(frontEnd.identities.size(), 1u);
  EXPECT_EQ(frontEnd.identities[0].vendor, MAKER_USB_VENDOR_ID);
  EXPECT_EQ(frontEnd.identities[0].product, 0x001F);
  EXPECT_TRUE(frontEnd.identities[0].isMixer);
}

TEST_F(DeskTest, StrangerShowsTheIdsGivenAndStalls) {
  desk.plugStranger(0x1234, 0x5678);
  EXPECT_EQ(frontEnd.identities[0].vendor, 0x1234);
  EXPECT_EQ(frontEnd.identities[0].product, 0x5678);
  EXPECT_EQ(desk.transfer(1, kReadSelectors).outcome, Outcome::Stalled);
}

TEST_F(DeskTest, ReplugKeepsTheNumberAndTheSettingsButNotTheAddress) {
  desk.plugMixer();
  desk.transfer(1, kWriteLevel);
  desk.unplug(1);
  EXPECT_FALSE(desk.unit(1).address);
  desk.replug(1);
  EXPECT_EQ(frontEnd.calls, (std::vector<std::string>{"plug 1", "unplug 1", "plug 1"}));
  ASSERT_TRUE(desk.unit(1).address);
  EXPECT_EQ(desk.unit(1).address->device, 3);
  EXPECT_EQ(desk.unit(1).mixer->lastWritten(RequestId::UsbOutputLevel), 0x0300);
}

TEST_F(DeskTest, UnitThatWentAwayByItselfIsUnplugged) {
  desk.plugMixer();
  desk.lost(1, *desk.unit(1).address);
  EXPECT_FALSE(desk.unit(1).address);
  EXPECT_EQ(frontEnd.calls, (std::vector<std::string>{"plug 1", "unplug 1"}));
}

TEST_F(DeskTest, LossOfAUnitThatWasPluggedInAgainIsOldNews) {
  desk.plugMixer();
  const BusAddress first = *desk.unit(1).address;
  desk.unplug(1);
  desk.lost(1, first);
  desk.replug(1);
  desk.lost(1, first);
  EXPECT_TRUE(desk.unit(1).address);
  EXPECT_EQ(frontEnd.calls, (std::vector<std::string>{"plug 1", "unplug 1", "plug 1"}));
}

TEST_F(DeskTest, RequestToAUnitThatWasNeverPluggedInLeavesNoTrace) {
  EXPECT_EQ(desk.transfer(1, kReadSelectors).outcome, Outcome::Gone);
  EXPECT_TRUE(desk.log().empty());
}

TEST_F(DeskTest, RequestToAnUnpluggedUnitLeavesNoTrace) {
  desk.plugMixer();
  desk.unplug(1);
  EXPECT_EQ(desk.transfer(1, kReadSelectors).outcome, Outcome::Gone);
  EXPECT_TRUE(desk.log().empty());
}

TEST_F(DeskTest, StallFaultKeepsTheWriteOut) {
  desk.plugMixer();
  desk.setFault(1, std::nullopt, {RequestFaultKind::Stall, 0});
  EXPECT_EQ(desk.transfer(1, kWriteLevel).outcome, Outcome::Stalled);
  EXPECT_EQ(desk.unit(1).mixer->lastWritten(RequestId::UsbOutputLevel), std::nullopt);
}

TEST_F(DeskTest, NoReplyFaultKeepsTheWriteOut) {
  desk.plugMixer();
  desk.setFault(1, RequestId::UsbOutputLevel, {RequestFaultKind::NoReply, 0});
  EXPECT_EQ(desk.transfer(1, kWriteLevel).outcome, Outcome::NoReply);
  EXPECT_EQ(desk.unit(1).mixer->lastWritten(RequestId::UsbOutputLevel), std::nullopt);
}

TEST_F(DeskTest, ShortFaultCutsTheReply) {
  desk.plugMixer();
  desk.setFault(1, std::nullopt, {RequestFaultKind::Short, 2});
  EXPECT_EQ(desk.transfer(1, kReadSelectors).data.size(), 2u);
  EXPECT_EQ(desk.transfer(1, kWriteLevel).outcome, Outcome::Done);
}

TEST_F(DeskTest, VanishFaultUnplugsTheUnit) {
  desk.plugMixer();
  desk.setFault(1, RequestId::Selectors, {RequestFaultKind::Vanish, 0});
  EXPECT_EQ(desk.transfer(1, kReadSelectors).outcome, Outcome::Unplugged);
  EXPECT_FALSE(desk.unit(1).address);
  EXPECT_EQ(frontEnd.calls.back(), "unplug 1");
  EXPECT_EQ(desk.log().size(), 1u);
}

TEST_F(DeskTest, FaultsOfOneUnitLeaveTheOthersAlone) {
  desk.plugMixer();
  desk.plugMixer();
  desk.setFault(1, std::nullopt, {RequestFaultKind::Stall, 0});
  EXPECT_EQ(desk.transfer(2, kReadSelectors).outcome, Outcome::Done);
}

TEST_F(DeskTest, OpenFaultGoesToTheFrontEndAndStaysOverReplug) {
  desk.plugMixer();
  desk.setFault(1, OpenFault::Refuse);
  desk.unplug(1);
  desk.replug(1);
  desk.clearFaults(1);
  EXPECT_EQ(frontEnd.calls, (std::vector<std::string>{"plug 1", "fault 1 1", "unplug 1",
                                                      "plug 1 faulty", "fault 1 0"}));
}

TEST_F(DeskTest, OpenFaultOfAnUnpluggedUnitWaitsForItsPlug) {
  desk.plugMixer();
  desk.unplug(1);
  desk.setFault(1, OpenFault::Deny);
  desk.replug(1);
  EXPECT_EQ(frontEnd.calls.back(), "plug 1 faulty");
}

TEST_F(DeskTest, UnitThatDoesNotFitIsNotAdded) {
  frontEnd.isFull = true;
  EXPECT_THROW(desk.plugMixer(), DeskError);
  EXPECT_TRUE(desk.units().empty());
}

TEST_F(DeskTest, RefusesWhatMakesNoSense) {
  desk.plugMixer();
  desk.plugStranger(1, 2);
  EXPECT_THROW(desk.unplug(7), DeskError);
  EXPECT_THROW(desk.replug(1), DeskError);
  EXPECT_THROW(desk.change(2, [](MixerState &) {}), DeskError);
  desk.unplug(1);
  EXPECT_THROW(desk.unplug(1), DeskError);
}

}  // namespace
}  // namespace trxsim
