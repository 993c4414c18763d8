// The MIDI key mode, which no model has.
#include "../Deliveries.h"

namespace trxtest {
namespace {

class MidiKeyMode : public Deliveries {};

TEST_F(MidiKeyMode, TheMidiKeyModeIsRefusedToEveryModelEvenWithAUnitAndAStoredValue) {
  rig_->PlugMixer();
  PutSettings("TRX-VOLT", "<key>MidiKeyMode</key><integer>1</integer>");
  for (const ProductId product : kAllProducts) {
    std::uint32_t count = 77;
    std::int32_t index = -77;
    ORVStringRef text = TextOf("untouched");
    EXPECT_EQ(ORV_GetNumOfMidiKeyModeIndex(product, &count), kBadArgument) << product;
    EXPECT_EQ(ORV_GetNumOfMidiKeyModeIndex(product, nullptr), kBadArgument) << product;
    EXPECT_EQ(ORV_GetCurrentMidiKeyModeIndex(product, &index), kBadArgument) << product;
    EXPECT_EQ(ORV_GetCurrentMidiKeyModeIndex(product, nullptr), kBadArgument) << product;
    EXPECT_EQ(ORV_SetCurrentMidiKeyModeIndex(product), kBadArgument) << product;
    for (const std::uint32_t mode : {0U, 1U, 2U, 0xFFFFFFFFU}) {
      EXPECT_EQ(ORV_GetMidiKeyModeText(product, mode, 0, &text), kBadArgument) << product;
      EXPECT_EQ(ORV_GetMidiKeyModeText(product, mode, 0, nullptr), kBadArgument) << product;
      EXPECT_EQ(ORV_SetMidiKeyModeIndex(product, mode), kBadArgument) << product;
    }
    EXPECT_EQ(count, 77U);
    EXPECT_EQ(index, -77);
    EXPECT_EQ(CharactersOf(text), "untouched");
  }
  EXPECT_EQ(rig_->WireLog(), std::vector<std::string>());
  EXPECT_EQ(SettingsOf("TRX-VOLT"), (Settings{{"MidiKeyMode", "<integer>1</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(MidiKeyMode, CallbacksAreRefusedToEveryModelAndNothingIsDelivered) {
  std::string context = "context";
  for (const ProductId product : kAllProducts) {
    EXPECT_EQ(ORV_RegisterMidiKeyModeChangedCallback(product, IndexA, &context), kBadArgument)
        << product;
    EXPECT_EQ(ORV_UnregisterMidiKeyModeChangedCallback(product, IndexA), kBadArgument) << product;
  }
  for (const char *name : {"TRX-VOLT MidiKeyMode Change", "TRX-SELVA MidiKeyMode Change"}) {
    rig_->Announce({name, {{"ProductID", kVolt}, {"Index", 1}}});
  }
  EXPECT_TRUE(Delivered({}));
}

}  // namespace
}  // namespace trxtest
