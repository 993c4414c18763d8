// The MIDI channel family of TRX-VOLT, and the MIDI key mode family that serves nobody.
#include "../SetterOrder.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

class MidiChannel : public SetterOrder {
 protected:
  static std::string Told(int unit, const std::string &value,
                          const std::string &outcome = "0 bytes") {
    return Sent(unit, value, "8004", outcome);
  }

  static Announcement Change(std::int32_t index) {
    return {"TRX-VOLT MidiChannel Change", {{"ProductID", 1}, {"Index", index}}};
  }

  static std::int32_t CurrentIndex() {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentMidiChannelIndex(1, &index), 100);
    return index;
  }

  void Store(const std::string &index) {
    PutSettings("TRX-VOLT", "<key>MidiChannel</key><integer>" + index + "</integer>");
  }
};

TEST_F(MidiChannel, ThereAreSixteen) {
  std::uint32_t count = 77;
  EXPECT_EQ(ORV_GetNumOfMidiChannelIndex(1, &count), 100);
  EXPECT_EQ(count, 16U);
}

TEST_F(MidiChannel, TextsCountFromOneWithABlankBeforeTheNumber) {
  for (const std::uint32_t reserved : {0U, 16U, 0xFFFFFFFFU}) {
    Lines texts;
    for (std::uint32_t index = 0; index < 16; ++index) {
      ORVStringRef text = nullptr;
      ASSERT_EQ(ORV_GetMidiChannelText(1, index, reserved, &text), 100);
      texts.push_back(CharactersOf(text));
    }
    EXPECT_EQ(texts, (Lines{"CH 1", "CH 2", "CH 3", "CH 4", "CH 5", "CH 6", "CH 7", "CH 8", "CH 9",
                            "CH 10", "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"}));
  }
}

TEST_F(MidiChannel, EachIndexTravelsInTheHighByte) {
  rig().PlugMixer();
  for (std::uint32_t index = 0; index < 16; ++index) {
    EXPECT_EQ(ORV_SetMidiChannelIndex(1, index), 100);
  }
  EXPECT_EQ(rig().WireLog(),
            (Lines{Told(1, "0000"), Told(1, "0100"), Told(1, "0200"), Told(1, "0300"),
                   Told(1, "0400"), Told(1, "0500"), Told(1, "0600"), Told(1, "0700"),
                   Told(1, "0800"), Told(1, "0900"), Told(1, "0a00"), Told(1, "0b00"),
                   Told(1, "0c00"), Told(1, "0d00"), Told(1, "0e00"), Told(1, "0f00")}));
}

TEST_F(MidiChannel, AChannelIsSentToEveryUnitStoredForVoltAndAnnounced) {
  for (int i = 0; i < 3; ++i) rig().PlugMixer();
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 15), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Told(1, "0f00"), Told(2, "0f00"), Told(3, "0f00")}));
  EXPECT_EQ(SettingsOf("TRX-VOLT"), (Settings{{"MidiChannel", "<integer>15</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(15)});
  EXPECT_EQ(LibraryListing(), (Lines{"Preferences/com.orvikaudio.TRX-VOLTautosetup.plist"}));
}

TEST_F(MidiChannel, WithoutAUnitAChannelIsStoredAndAnnouncedAllTheSame) {
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 9), 100);
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-VOLT"), (Settings{{"MidiChannel", "<integer>9</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(9)});
  EXPECT_EQ(CurrentIndex(), 9);
}

TEST_F(MidiChannel, TheUnitIsToldBeforeTheChannelIsStoredAndAnnounced) {
  ExpectUnitToldFirst([] { return ORV_SetMidiChannelIndex(1, 6); }, Told(1, "0600", "no reply"));
}

TEST_F(MidiChannel, TheChannelIsStoredBeforeItIsAnnounced) {
  ExpectStoredBeforeAnnounced([] { return ORV_SetMidiChannelIndex(1, 6); }, "TRX-VOLT",
                              {{"MidiChannel", "<integer>6</integer>"}});
}

TEST_F(MidiChannel, UnitsThatStallOrDoNotOpenArePassedOver) {
  for (int i = 0; i < 3; ++i) rig().PlugMixer();
  rig().SetFault(1, UnitFault::kStalls);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 2), 100);
  EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(1), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Told(1, "0200", "stalled"), Told(3, "0200"),
                                    Told(1, "0200", "stalled"), Told(3, "0200")}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(2)});
}

TEST_F(MidiChannel, OtherEntriesOfTheFileStay) {
  PutSettings("TRX-VOLT",
              "<key>MaxLevel</key><integer>1</integer>"
              "<key>MidiChannel</key><string>3</string>");
  EXPECT_EQ(CurrentIndex(), 3);
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 4), 100);
  EXPECT_EQ(SettingsOf("TRX-VOLT"), (Settings{{"MaxLevel", "<integer>1</integer>"},
                                              {"MidiChannel", "<integer>4</integer>"}}));
}

TEST_F(MidiChannel, ASeventeenthChannelAndOtherModelsAreRefusedAndNothingIsDone) {
  rig().PlugMixer();
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 16), 102);
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 0xFFFFFFFF), 102);
  for (const ProductId product : {0U, 2U, 5U, 6U, 8U, 11U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(ORV_SetMidiChannelIndex(product, 0), 102) << product;
    EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(product), 102) << product;
  }
  ExpectNothingHappened();
}

TEST_F(MidiChannel, WithNothingStoredTheFirstIsCurrentAndSentAgain) {
  rig().PlugMixer();
  EXPECT_EQ(CurrentIndex(), 0);
  EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(1), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Told(1, "0000")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(MidiChannel, TheEntryOfAnotherModelDoesNotAnswer) {
  PutSettings("TRX-SELVA", "<key>MidiChannel</key><integer>7</integer>");
  PutSettings("TRX-VOLT", "<key>MaxLevel</key><integer>7</integer>");
  EXPECT_EQ(CurrentIndex(), 0);
}

TEST_F(MidiChannel, OnlyTheFirstFourAreSentAgain) {
  for (int i = 0; i < 2; ++i) rig().PlugMixer();
  for (const char *index : {"0", "1", "2", "3"}) {
    Store(index);
    EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(1), 100) << index;
  }
  for (const char *index : {"4", "5", "15", "16", "-1", "2147483647", "-2147483648"}) {
    Store(index);
    EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(1), 102) << index;
  }
  EXPECT_EQ(rig().WireLog(),
            (Lines{Told(1, "0000"), Told(2, "0000"), Told(1, "0100"), Told(2, "0100"),
                   Told(1, "0200"), Told(2, "0200"), Told(1, "0300"), Told(2, "0300")}));
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(MidiChannel, AChannelThatWasSetAndSentCannotAlwaysBeSentAgain) {
  rig().PlugMixer();
  EXPECT_EQ(ORV_SetMidiChannelIndex(1, 4), 100);
  EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(1), 102);
  EXPECT_EQ(rig().WireLog(), (Lines{Told(1, "0400")}));
}

TEST_F(MidiChannel, AStoredNumberThatIsNoChannelIsHandedOutUnchanged) {
  const std::vector<std::pair<std::string, std::int32_t>> cases = {
      {"16", 16}, {"-1", -1}, {"2147483647", 2147483647}, {"-2147483648", -2147483647 - 1}};
  for (const auto &[stored, index] : cases) {
    Store(stored);
    EXPECT_EQ(CurrentIndex(), index);
  }
}

class MidiKeyMode : public Acceptance {};

TEST_F(MidiKeyMode, IsRefusedToEveryModelEvenWithAUnitAndAStoredValue) {
  rig().PlugMixer();
  PutSettings("TRX-VOLT", "<key>MidiKeyMode</key><integer>1</integer>");
  for (const ProductId product : kAllProducts) {
    std::uint32_t count = 77;
    std::int32_t index = -77;
    ORVStringRef text = TextOf("untouched");
    EXPECT_EQ(ORV_GetNumOfMidiKeyModeIndex(product, &count), 102) << product;
    EXPECT_EQ(ORV_GetNumOfMidiKeyModeIndex(product, nullptr), 102) << product;
    EXPECT_EQ(ORV_GetCurrentMidiKeyModeIndex(product, &index), 102) << product;
    EXPECT_EQ(ORV_GetCurrentMidiKeyModeIndex(product, nullptr), 102) << product;
    EXPECT_EQ(ORV_SetCurrentMidiKeyModeIndex(product), 102) << product;
    for (const std::uint32_t mode : {0U, 1U, 2U, 0xFFFFFFFFU}) {
      EXPECT_EQ(ORV_GetMidiKeyModeText(product, mode, 0, &text), 102) << product;
      EXPECT_EQ(ORV_GetMidiKeyModeText(product, mode, 0, nullptr), 102) << product;
      EXPECT_EQ(ORV_SetMidiKeyModeIndex(product, mode), 102) << product;
    }
    EXPECT_EQ(count, 77U);
    EXPECT_EQ(index, -77);
    EXPECT_EQ(CharactersOf(text), "untouched");
  }
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-VOLT"), (Settings{{"MidiKeyMode", "<integer>1</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

}  // namespace
}  // namespace trxtest
