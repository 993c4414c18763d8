// How each kind of change is announced, and which dictionary it holds on to.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ChangeKinds.h"
#include "PrivateSessionBus.h"

namespace orv {
namespace {

using trxtest::PrivateSessionBus;

TEST(ChangeKinds, ARoutingChangeIsDeliveredImmediatelyAndAnyOtherPlainly) {
  EXPECT_EQ(kInputAudioChange.delivery, Delivery::kImmediately);
  EXPECT_EQ(kOutputAudioChange.delivery, Delivery::kImmediately);
  EXPECT_EQ(kBoostLevelChange.delivery, Delivery::kPlain);
  EXPECT_EQ(kMidiChannelChange.delivery, Delivery::kPlain);
}

TEST(ChangeKinds, EachHasItsOwnWordsBehindTheNameOfTheModel) {
  EXPECT_STREQ(kInputAudioChange.nameEnding, " InputAudio Change");
  EXPECT_STREQ(kOutputAudioChange.nameEnding, " OutputAudio Change");
  EXPECT_STREQ(kBoostLevelChange.nameEnding, " BoostLevel Change");
  EXPECT_STREQ(kMidiChannelChange.nameEnding, " MidiChannel Change");
}

// The models that a kind accepts, of all that a ProductId can name and some that lie behind.
template <typename Callback>
std::vector<ProductId> ModelsOf(const ChangeKind<Callback> &kind) {
  std::vector<ProductId> models;
  for (const ProductId product : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 12U, 13U, 32U,
                                  33U, 0x80000000U, 0xFFFFFFFFU}) {
    if (kind.models.Contains(product)) models.push_back(product);
  }
  return models;
}

TEST(ChangeKinds, SixModelsAreAcceptedForRoutingAndBoostOneForTheMidiChannelNoneForTheKeyMode) {
  const std::vector<ProductId> served = {0, 1, 5, 6, 8, 11};
  EXPECT_EQ(ModelsOf(kInputAudioChange), served);
  EXPECT_EQ(ModelsOf(kOutputAudioChange), served);
  EXPECT_EQ(ModelsOf(kBoostLevelChange), served);
  EXPECT_EQ(ModelsOf(kMidiChannelChange), std::vector<ProductId>{1});
  EXPECT_EQ(ModelsOf(kMidiKeyModeChange), std::vector<ProductId>());
}

// A slot is looked into from outside: a dictionary of the test's own lies in each, and is released
// when the slot takes another in its place, but not when the slot is emptied.
class LastPosted : public testing::Test {
 protected:
  using Slots = std::vector<std::string>;

  LastPosted() {
    for (const auto &[name, slot] : slots_) {
      const auto dictionary = std::make_shared<const UserInfo>();
      slot->Keep(dictionary);
      watches_.emplace_back(dictionary);
    }
  }

  // The slots whose dictionary is released.
  Slots Released() const {
    Slots released;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      if (watches_[i].expired()) released.emplace_back(slots_[i].name);
    }
    return released;
  }

  // The slots that hold nothing any more: what lay in them is not released by a successor.
  Slots Emptied() const {
    Slots emptied;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      slots_[i].slot->Keep(std::make_shared<const UserInfo>());
      if (!watches_[i].expired()) emptied.emplace_back(slots_[i].name);
    }
    return emptied;
  }

 private:
  struct NamedSlot {
    const char *name;
    UserInfoSlot *slot;
  };

  const PrivateSessionBus bus_;
  const std::vector<NamedSlot> slots_ = {{"input", &kInputAudioChange.lastPosted},
                                         {"output", &kOutputAudioChange.lastPosted},
                                         {"boost", &kBoostLevelChange.lastPosted},
                                         {"MIDI channel", &kMidiChannelChange.lastPosted},
                                         {"MIDI key mode", &kMidiKeyModeChange.lastPosted}};
  std::vector<std::weak_ptr<const UserInfo>> watches_;
};

TEST_F(LastPosted, AnAnnouncementTakesThePlaceInTheSlotOfItsOwnKind) {
  EXPECT_EQ(Released(), Slots());
  Announce(kBoostLevelChange, 11, 2);
  EXPECT_EQ(Released(), (Slots{"boost"}));
  Announce(kInputAudioChange, 11, 1, 7);
  EXPECT_EQ(Released(), (Slots{"input", "boost"}));
  Announce(kMidiChannelChange, 1, 15);
  EXPECT_EQ(Released(), (Slots{"input", "boost", "MIDI channel"}));
  Announce(kOutputAudioChange, 11, 0, 2);
  EXPECT_EQ(Released(), (Slots{"input", "output", "boost", "MIDI channel"}));
}

TEST_F(LastPosted, RegisteringForTheInputEmptiesItsSlotOnly) {
  ASSERT_EQ(ORV_RegisterInputAudioChangedCallback(11, nullptr, nullptr), 100);
  EXPECT_EQ(Released(), Slots());
  EXPECT_EQ(Emptied(), (Slots{"input"}));
}

TEST_F(LastPosted, RegisteringForTheOutputEmptiesItsSlotOnly) {
  ASSERT_EQ(ORV_RegisterOutputAudioChangedCallback(11, nullptr, nullptr), 100);
  EXPECT_EQ(Released(), Slots());
  EXPECT_EQ(Emptied(), (Slots{"output"}));
}

TEST_F(LastPosted, RegisteringForTheBoostLevelEmptiesItsSlotOnly) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(11, nullptr, nullptr), 100);
  EXPECT_EQ(Released(), Slots());
  EXPECT_EQ(Emptied(), (Slots{"boost"}));
}

TEST_F(LastPosted, RegisteringForTheMidiChannelEmptiesItsSlotOnly) {
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(1, nullptr, nullptr), 100);
  EXPECT_EQ(Released(), Slots());
  EXPECT_EQ(Emptied(), (Slots{"MIDI channel"}));
}

TEST_F(LastPosted, ARefusedRegistrationAndUnregisteringEmptyNoSlot) {
  ASSERT_EQ(ORV_RegisterMidiKeyModeChangedCallback(1, nullptr, nullptr), 102);
  ASSERT_EQ(ORV_RegisterMidiChannelChangedCallback(11, nullptr, nullptr), 102);
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(2, nullptr, nullptr), 102);
  ASSERT_EQ(ORV_UnregisterInputAudioChangedCallback(11, nullptr), 100);
  ASSERT_EQ(ORV_UnregisterOutputAudioChangedCallback(11, nullptr), 100);
  ASSERT_EQ(ORV_UnregisterBoostLevelChangedCallback(11, nullptr), 100);
  ASSERT_EQ(ORV_UnregisterMidiChannelChangedCallback(1, nullptr), 100);
  EXPECT_EQ(Released(), Slots());
  EXPECT_EQ(Emptied(), Slots());
}

}  // namespace
}  // namespace orv
