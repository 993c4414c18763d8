// Callbacks: which are called, with which values, how often, and what is ignored.
#include <climits>
#include <thread>

#include "../Deliveries.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;

std::string first = "first";
std::string second = "second";
std::string arden = "arden";
std::string volt = "volt";
std::string halden = "halden";
std::string lumen = "lumen";
std::string selva = "selva";

class Callbacks : public Deliveries {};

Announcement ChannelChange(const std::string &name, std::int32_t product, std::int32_t channel,
                           std::int32_t index) {
  return {name, {{"ProductID", product}, {"Channel", channel}, {"Index", index}}};
}

Announcement IndexChange(const std::string &name, std::int32_t product, std::int32_t index) {
  return {name, {{"ProductID", product}, {"Index", index}}};
}

TEST_F(Callbacks, OnesOwnChangeComesBackWithTheContext) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 2}}));
}

TEST_F(Callbacks, CallbacksNeverRunInsideTheCallThatMadeTheChange) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  for (std::uint32_t i = 0; i < 50; ++i) {
    ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, i % 4), kSuccess);
    ASSERT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
    ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexA, &lumen), kSuccess);
    ASSERT_EQ(Calls(), CallList());
  }
  EXPECT_EQ(DeliverAll(50).size(), 50U);
}

TEST_F(Callbacks, CallbacksRunOnTheThreadOfTheEventLoop) {
  static std::thread::id ranOn;
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(
                kSelva, [](std::int32_t, void *) { ranOn = std::this_thread::get_id(); }, nullptr),
            kSuccess);
  std::thread([] { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess); }).join();
  EXPECT_TRUE(RunEventLoopUntil([] { return ranOn != std::thread::id(); }));
  EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST_F(Callbacks, ANullContextIsHandedBackToo) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, nullptr), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_TRUE(Delivered({{"A (null)", -1, 0}}));
}

TEST_F(Callbacks, OnlyTheModelThatChangedIsCalled) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, IndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kVolt, IndexA, &volt), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kHalden, IndexA, &halden), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexA, &lumen), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexB, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"B selva", -1, 1}}));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kArden, 2), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 3), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kHalden, 0), kSuccess);
  EXPECT_TRUE(Delivered({{"A arden", -1, 2}, {"A lumen", -1, 3}, {"A halden", -1, 0}}));
}

TEST_F(Callbacks, OnlyTheKindThatChangedIsCalledAndRoutingBringsItsChannel) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kVolt, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(kVolt, ChannelIndexB, &second), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kVolt, IndexA, &volt), kSuccess);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(kVolt, IndexB, &volt), kSuccess);
  rig_->Announce(ChannelChange("TRX-VOLT InputAudio Change", 1, 2, 7));
  EXPECT_TRUE(Delivered({{"A first", 2, 7}}));
  rig_->Announce(ChannelChange("TRX-VOLT OutputAudio Change", 1, 0, 5));
  EXPECT_TRUE(Delivered({{"B second", 0, 5}}));
  rig_->Announce(IndexChange("TRX-VOLT BoostLevel Change", 1, 3));
  EXPECT_TRUE(Delivered({{"A volt", -1, 3}}));
  rig_->Announce(IndexChange("TRX-VOLT MidiChannel Change", 1, 15));
  EXPECT_TRUE(Delivered({{"B volt", -1, 15}}));
}

TEST_F(Callbacks, EveryModelHasItsOwnNameForEveryKind) {
  const std::vector<std::pair<ProductId, std::string>> models = {{kArden, "TRX-Arden"},
                                                                 {kVolt, "TRX-VOLT"},
                                                                 {kHalden, "TRX-HALDEN"},
                                                                 {kLumen, "TRX-LUMEN"},
                                                                 {kSelva, "TRX-SELVA"}};
  for (const auto &[product, name] : models) {
    const auto number = static_cast<std::int32_t>(product);
    ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(product, ChannelIndexA, &first), kSuccess);
    ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(product, ChannelIndexB, &first), kSuccess);
    ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(product, IndexA, &first), kSuccess);
    rig_->Announce(ChannelChange(name + " InputAudio Change", number, 1, 2));
    rig_->Announce(ChannelChange(name + " OutputAudio Change", number, 3, 4));
    rig_->Announce(IndexChange(name + " BoostLevel Change", number, 1));
    EXPECT_TRUE(Delivered({{"A first", 1, 2}, {"B first", 3, 4}, {"A first", -1, 1}})) << name;
  }
}

// The boost level of TRX-MORROW marks here that everything has arrived.
TEST_F(Callbacks, MorrowHasItsOwnNameForTheRoutingKinds) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kMorrow, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(kMorrow, ChannelIndexB, &first), kSuccess);
  rig_->Announce(ChannelChange("TRX-MORROW InputAudio Change", 8, 1, 2));
  rig_->Announce(ChannelChange("TRX-MORROW OutputAudio Change", 8, 3, 4));
  EXPECT_TRUE(Delivered({{"A first", 1, 2}, {"B first", 3, 4}}));
}

TEST_F(Callbacks, EachSetterReachesTheCallbackOfItsKindWithWhatWasSet) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(kSelva, ChannelIndexB, &second), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(kVolt, IndexB, &volt), kSuccess);
  ASSERT_EQ(ORV_SetUSBInputAudio(kSelva, 2, 5), kSuccess);
  EXPECT_TRUE(Delivered({{"A first", 2, 5}}));
  ASSERT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"B second", 1, 2}}));
  ASSERT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"B second", 2, 2}}));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 3}}));
  ASSERT_EQ(ORV_SetMidiChannelIndex(kVolt, 15), kSuccess);
  EXPECT_TRUE(Delivered({{"B volt", -1, 15}}));
}

TEST_F(Callbacks, NamesInOtherSpellingsAreNotHeard) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, IndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  for (const char *name : {"TRX-ARDEN BoostLevel Change", "TRX-SELVA BoostLevel",
                           "BoostLevel Change", "TRX-SELVA BoostLevel Change ",
                           "TRX-SELVA  BoostLevel Change", "trx-selva boostlevel change", ""}) {
    rig_->Announce(IndexChange(name, 11, 1));
  }
  EXPECT_TRUE(Delivered({}));
}

TEST_F(Callbacks, RegisteringNTimesDeliversNTimesToTheLastCallback) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  EXPECT_TRUE(Delivered({{"A first", -1, 0}}));
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexB, &second), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({{"B second", -1, 1}, {"B second", -1, 1}, {"B second", -1, 1}}));
}

TEST_F(Callbacks, RegisteringTwiceDeliversARoutingChangeTwice) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &first), kSuccess);
  rig_->Announce(ChannelChange("TRX-SELVA InputAudio Change", 11, 1, 7));
  EXPECT_TRUE(Delivered({{"A first", 1, 7}, {"A first", 1, 7}}));
}

TEST_F(Callbacks, RegisteringTwiceDeliversOneSetOfARoutingTwice) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &first), kSuccess);
  ASSERT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 7), kSuccess);
  EXPECT_TRUE(Delivered({{"A first", 1, 7}, {"A first", 1, 7}}));
}

TEST_F(Callbacks, ARefusedRegistrationDeliversNothingMore) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(kSelva, IndexB, &second), kBadArgument);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(0xFFFFFFFF, IndexB, &second), kBadArgument);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kBrisk, IndexB, &second), kBadArgument);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  rig_->Announce(IndexChange("TRX-SELVA MidiChannel Change", 11, 1));
  EXPECT_TRUE(Delivered({{"A first", -1, 1}}));
}

TEST_F(Callbacks, ANullCallbackIsAcceptedAndCallsNothing) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, nullptr, &second), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({}));
}

TEST_F(Callbacks, AfterUnregisteringChangesAreAnnouncedButNothingIsCalled) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, IndexA), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
  EXPECT_TRUE(Delivered({}));
}

TEST_F(Callbacks, UnregisteringEmptiesThePlaceWhateverCallbackItNames) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, IndexB), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_TRUE(Delivered({}));
}

TEST_F(Callbacks, UnregisteringOneModelAndKindLeavesTheOthers) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, IndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, IndexA), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kArden, 2), kSuccess);
  EXPECT_TRUE(Delivered({{"A arden", -1, 2}}));
  rig_->Announce(ChannelChange("TRX-SELVA InputAudio Change", 11, 0, 1));
  EXPECT_TRUE(Delivered({{"A selva", 0, 1}}));
}

TEST_F(Callbacks, RegisteringAgainAfterUnregisteringDeliversForBothRegistrations) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &first), kSuccess);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(kSelva, IndexA), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexB, &second), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_TRUE(Delivered({{"B second", -1, 3}, {"B second", -1, 3}}));
}

TEST_F(Callbacks, TheProductIdInsideDecidesAndNotTheName) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kHalden, IndexA, &halden), kSuccess);
  rig_->Announce(IndexChange("TRX-SELVA BoostLevel Change", 5, 2));
  EXPECT_TRUE(Delivered({{"A halden", -1, 2}}));
}

TEST_F(Callbacks, ANameThatNobodyRegisteredForIsNotHeardEvenWithAProductIdThatHasACallback) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->Announce(IndexChange("TRX-LUMEN BoostLevel Change", 11, 2));
  EXPECT_TRUE(Delivered({}));
}

// The context of the first model lies behind the callback of the last.
TEST_F(Callbacks, AProductIdOutsideTheTablesOrWithoutACallbackIsIgnored) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, IndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kArden, ChannelIndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  for (const std::int32_t product : {-1, 12, 13, 7, 1, 256 + 11, 0x10000 + 11, INT_MAX, INT_MIN}) {
    rig_->Announce(IndexChange("TRX-SELVA BoostLevel Change", product, 1));
    rig_->Announce(ChannelChange("TRX-SELVA InputAudio Change", product, 1, 1));
  }
  EXPECT_TRUE(Delivered({}));
}

TEST_F(Callbacks, AMissingKeyReadsZero) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kArden, IndexA, &arden), kSuccess);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  rig_->Announce({"TRX-SELVA BoostLevel Change", {{"ProductID", kSelva}}});
  rig_->Announce({"TRX-SELVA BoostLevel Change", {{"Index", 2}}});
  rig_->Announce({"TRX-SELVA BoostLevel Change", {}});
  rig_->Announce({"TRX-SELVA InputAudio Change", {{"ProductID", kSelva}, {"Index", 4}}});
  rig_->Announce({"TRX-SELVA InputAudio Change", {{"ProductID", kSelva}, {"Channel", 2}}});
  EXPECT_TRUE(Delivered({{"A selva", -1, 0},
                         {"A arden", -1, 2},
                         {"A arden", -1, 0},
                         {"A selva", 0, 4},
                         {"A selva", 2, 0}}));
}

TEST_F(Callbacks, OtherKeysAndAnotherOrderOfTheKeysDoNotMatter) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  rig_->Announce({"TRX-SELVA BoostLevel Change",
                  {{"Index", 3}, {"index", 1}, {"Channel", 5}, {"", 9}, {"ProductID", kSelva}}});
  EXPECT_TRUE(Delivered({{"A selva", -1, 3}}));
}

TEST_F(Callbacks, NumbersAreHandedOnAsTheyAre) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  rig_->Announce(ChannelChange("TRX-SELVA InputAudio Change", 11, INT_MIN, INT_MAX));
  rig_->Announce(ChannelChange("TRX-SELVA InputAudio Change", 11, 9, -2));
  EXPECT_TRUE(Delivered({{"A selva", INT_MIN, INT_MAX}, {"A selva", 9, -2}}));
}

TEST_F(Callbacks, WhatIsNotShapedLikeAnAnnouncementIsIgnored) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(kSelva, ChannelIndexA, &selva), kSuccess);
  EXPECT_GT(rig_->AnnounceMisshapen(IndexChange("TRX-SELVA BoostLevel Change", 11, 1)), 0);
  EXPECT_GT(rig_->AnnounceMisshapen(ChannelChange("TRX-SELVA InputAudio Change", 11, 1, 1)), 0);
  EXPECT_TRUE(Delivered({}));
}

// --- Between processes -----------------------------------------------------------------------

using Lines = std::vector<std::string>;

TEST_F(Callbacks, AChangeInAnotherProcessArrivesInBothDirections) {
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("register BoostLevel 11 host"), "100");
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
  EXPECT_EQ(host->TakeCalls(1), (Lines{"host 2"}));
  EXPECT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
  EXPECT_TRUE(Delivered({{"A selva", -1, 2}}));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(host->TakeCalls(1), (Lines{"host 1"}));
  EXPECT_TRUE(Delivered({{"A selva", -1, 1}}));
}

// All announcements have one name, because macOS promises no order between two. The product inside
// selects the callback, so the one for product 5 shows that those for product 11 have been
// delivered.
TEST_F(Callbacks, EachProcessHasRegistrationsOfItsOwn) {
  const std::string name = "TRX-SELVA BoostLevel Change";
  const auto one = rig_->StartHost();
  const auto other = rig_->StartHost();
  ASSERT_EQ(one->Ask("register BoostLevel 11 one"), "100");
  ASSERT_EQ(one->Ask("register BoostLevel 11 one"), "100");
  ASSERT_EQ(other->Ask("register BoostLevel 11 other"), "100");
  ASSERT_EQ(one->Ask("register BoostLevel 5 end"), "100");
  ASSERT_EQ(other->Ask("register BoostLevel 5 end"), "100");
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_EQ(one->TakeCalls(2), (Lines{"one 2", "one 2"}));
  EXPECT_EQ(other->TakeCalls(1), (Lines{"other 2"}));
  ASSERT_EQ(one->Ask("unregister BoostLevel 11"), "100");
  rig_->Announce(IndexChange(name, 11, 3));
  rig_->Announce(IndexChange(name, 5, 1));
  EXPECT_EQ(one->TakeCalls(2), (Lines{"end 1", "end 1"}));
  EXPECT_EQ(other->TakeCalls(2), (Lines{"other 3", "end 1"}));
}

TEST_F(Callbacks, EachPosterKeepsItsOrderBesideAnother) {
  constexpr int kCount = 300;
  const auto receiver = rig_->StartHost();
  const auto one = rig_->StartHost();
  const auto other = rig_->StartHost();
  ASSERT_EQ(receiver->Ask("register BoostLevel 11 one"), "100");
  ASSERT_EQ(receiver->Ask("register BoostLevel 6 other"), "100");
  one->Begin("levels 11 " + std::to_string(kCount));
  other->Begin("levels 6 " + std::to_string(kCount));
  std::map<std::string, Lines> byPoster;
  for (const std::string &line : receiver->TakeCalls(2 * kCount)) {
    byPoster[line.substr(0, line.find(' '))].push_back(line.substr(line.find(' ') + 1));
  }
  Lines expected;
  for (int i = 0; i < kCount; ++i) expected.push_back(std::to_string(i % 4));
  EXPECT_EQ(byPoster["one"], expected);
  EXPECT_EQ(byPoster["other"], expected);
  EXPECT_EQ(one->Answer(), "100");
  EXPECT_EQ(other->Answer(), "100");
}

}  // namespace
}  // namespace trxtest
