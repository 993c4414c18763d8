// USB output audio: texts, what is sent and read back, what is stored and announced, and the
// default that is not stored.
#include "../SetterOrder.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;
using Positions = std::vector<std::uint8_t>;

class OutputAudio : public SetterOrder {
 protected:
  static std::string Assigned(int unit, const std::string &value,
                              const std::string &outcome = "0 bytes") {
    return Sent(unit, value, "8016", outcome);
  }

  static std::string ReadBack(int unit, const std::string &outcome = "4 bytes 00 00 00 00") {
    return Asked(unit, "8002", 4, outcome);
  }

  static Announcement Change(std::int32_t channel, std::int32_t index) {
    return SelvaChange("OutputAudio", channel, index);
  }

  void PlugMixers(int count) {
    for (int i = 0; i < count; ++i) rig_->PlugMixer();
  }

  static std::int32_t CurrentIndex(std::int32_t channel) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentUSBOutputAudioIndex(kSelva, channel, &index), kSuccess) << channel;
    return index;
  }

  // Sends a stored value of a channel again and returns the wire log.
  Lines SentAgain(std::int32_t channel, const std::string &stored) {
    PutSettings("TRX-SELVA",
                "<key>Input" + std::to_string(channel) + "</key><integer>" + stored + "</integer>");
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, channel), kSuccess) << channel << ' ' << stored;
    return rig_->WireLog();
  }
};

TEST_F(OutputAudio, EachOfTheThreeChannelsHasThreeChoices) {
  for (const std::int32_t channel : {0, 1, 2}) {
    std::uint32_t count = 77;
    EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(kSelva, channel, &count), kSuccess) << channel;
    EXPECT_EQ(count, 3U) << channel;
  }
  std::uint32_t count = 77;
  EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(kSelva, 3, &count), kBadArgument);
  EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(kSelva, 4, &count), kBadArgument);
  EXPECT_EQ(count, 77U);
}

TEST_F(OutputAudio, TextsAreTheSameOnEveryChannelAndAFourthGivesTheFirstAgain) {
  for (const std::int32_t channel : {0, 1, 2}) {
    for (const std::uint32_t reserved : {0U, 3U, 0xFFFFFFFFU}) {
      Lines texts;
      for (const std::uint32_t index : {0U, 1U, 2U, 3U}) {
        ORVStringRef text = nullptr;
        ASSERT_EQ(ORV_GetUSBOutputAudioText(kSelva, channel, index, reserved, &text), kSuccess);
        texts.push_back(CharactersOf(text));
      }
      EXPECT_EQ(texts, (Lines{"CH1", "CH2", "AUX", "CH1"})) << channel;
    }
  }
}

TEST_F(OutputAudio, TextsEndAtTheThirdChannelAndTheFourthIndex) {
  ORVStringRef text = TextOf("untouched");
  EXPECT_EQ(ORV_GetUSBOutputAudioText(kSelva, 2, 4, 0, &text), kBadArgument);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(kSelva, 3, 0, 0, &text), kBadArgument);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(kSelva, 4, 0, 0, &text), kBadArgument);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(kSelva, -1, 3, 0, &text), kBadArgument);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(kMorrow, 0, 0, 0, &text), kBadArgument);
  EXPECT_EQ(CharactersOf(text), "untouched");
}

// --- Assigning -------------------------------------------------------------------------------

TEST_F(OutputAudio, EachAssignmentSendsItsValueAndThenReadsFourBytesBack) {
  PlugMixers(1);
  const char *const values[3][3] = {
      {"0100", "0101", "0104"}, {"0200", "0201", "0204"}, {"0300", "0301", "0304"}};
  Lines expected;
  for (const std::int32_t channel : {0, 1, 2}) {
    for (const std::uint32_t index : {0U, 1U, 2U}) {
      EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, channel, index), kSuccess);
      expected.push_back(Assigned(1, values[channel][index]));
      expected.push_back(ReadBack(1));
    }
  }
  EXPECT_EQ(rig_->WireLog(), expected);
}

TEST_F(OutputAudio, AnAssignmentIsSentStoredAnnouncedAndReadBack) {
  PlugMixers(3);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, "0204"), Assigned(2, "0204"), Assigned(3, "0204"),
                                    ReadBack(1), ReadBack(2), ReadBack(3)}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(1, 2)});
}

TEST_F(OutputAudio, AnAssignmentIsSentThenStoredThenAnnounced) {
  ExpectSentStoredAnnounced([] { return ORV_SetUSBOutputAudio(kSelva, 2, 1); },
                            Assigned(1, "0301"));
}

TEST_F(OutputAudio, UnitsAreReadBackAfterStoringAndAnnouncing) {
  ExpectSelectorsAskedLast([] { return ORV_SetUSBOutputAudio(kSelva, 0, 2); }, Assigned(1, "0104"),
                           Settings{{"Input0", "<integer>2</integer>"}}, Change(0, 2));
}

TEST_F(OutputAudio, WithoutAUnitAnAssignmentIsStoredAndAnnouncedAllTheSame) {
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(1, 2)});
}

TEST_F(OutputAudio, EveryChannelHasAKeyOfItsOwnTheFourthAndFifthIncluded) {
  PutSettings("TRX-SELVA",
              "<key>Output0</key><integer>4</integer><key>Foreign</key><true/>"
              "<key>Input2</key><integer>1</integer>");
  for (const std::int32_t channel : {0, 1, 2, 3, 4}) {
    EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, channel, 2), kSuccess) << channel;
  }
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>4</integer>"},
                                               {"Foreign", "<true/>"},
                                               {"Input0", "<integer>2</integer>"},
                                               {"Input1", "<integer>2</integer>"},
                                               {"Input2", "<integer>2</integer>"},
                                               {"Input3", "<integer>2</integer>"},
                                               {"Input4", "<integer>2</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(5),
            (std::vector{Change(0, 2), Change(1, 2), Change(2, 2), Change(3, 2), Change(4, 2)}));
}

TEST_F(OutputAudio, TheFourthAndFifthChannelSendZeroForEveryIndex) {
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    for (const std::uint32_t index : {0U, 1U, 2U}) {
      rig_->ClearWireLog();
      EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, channel, index), kSuccess);
      EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, "0000"), ReadBack(1)})) << channel << index;
    }
  }
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"Input3", "<integer>2</integer>"}, {"Input4", "<integer>2</integer>"}}));
}

TEST_F(OutputAudio, AnAssignmentOutOfRangeIsRefusedAndNothingIsDone) {
  PlugMixers(1);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 3), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 4, 3), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 5, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, -1, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 0xFFFFFFFF), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kMorrow, 0, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 5), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, -1), kBadArgument);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kLumen, 0), kBadArgument);
  ExpectNothingHappened();
}

TEST_F(OutputAudio, AUnitThatDoesNotOpenIsNeitherSentToNorReadBack) {
  PlugMixers(3);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 2, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Assigned(1, "0300"), Assigned(3, "0300"), ReadBack(1), ReadBack(3)}));
}

TEST_F(OutputAudio, UnitsThatStallOrAnswerShortChangeNothing) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kStalls);
  rig_->SetShortReplies(2, 1);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Assigned(1, "0101", "stalled"), Assigned(2, "0101"), Assigned(3, "0101"),
                   ReadBack(1, "stalled"), ReadBack(2, "1 byte 00"), ReadBack(3)}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input0", "<integer>1</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(0, 1)});
}

TEST_F(OutputAudio, WhatTheSelectorsSayNeverDrawsAWarning) {
  PlugMixers(1);
  for (const std::uint8_t position : Positions{0, 4, 6, 8, 255}) {
    rig_->SetSelector(1, 0, position);
    EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 0), kSuccess) << +position;
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 0), kSuccess) << +position;
  }
}

// The units are not counted again: the read-back asks for as many as were there at the start.
TEST_F(OutputAudio, AUnitThatVanishesWhenSentToIsNotReadBack) {
  PlugMixers(2);
  rig_->SetFault(2, UnitFault::kVanishes);
  EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 0, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Assigned(1, "0100"), Assigned(2, "0100", "unplugged"), ReadBack(1)}));
}

// --- The default -----------------------------------------------------------------------------

TEST_F(OutputAudio, TheDefaultIsSentAnnouncedAndReadBackButMakesNoFile) {
  PlugMixers(2);
  const char *const values[3] = {"0100", "0201", "0304"};
  for (const std::int32_t channel : {0, 1, 2}) {
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, channel), kSuccess);
    EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, values[channel]), Assigned(2, values[channel]),
                                      ReadBack(1), ReadBack(2)}));
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(channel, channel)});
  }
  EXPECT_EQ(LibraryListing(), Lines());
}

TEST_F(OutputAudio, TheDefaultOfTheFourthAndFifthChannelSendsZeroAndAnnouncesIndexZero) {
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, channel), kSuccess);
    EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, "0000"), ReadBack(1)}));
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(channel, 0)});
  }
  EXPECT_EQ(LibraryListing(), Lines());
}

TEST_F(OutputAudio, TheDefaultWithoutAUnitIsAnnounced) {
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(2, 2)});
}

TEST_F(OutputAudio, UnitsThatDoNotOpenStallOrAnswerShortDoNotHoldUpTheDefault) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  rig_->SetFault(2, UnitFault::kStalls);
  rig_->SetShortReplies(3, 1);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(2, "0201", "stalled"), Assigned(3, "0201"),
                                    ReadBack(2, "stalled"), ReadBack(3, "1 byte 00")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(1, 1)});
}

TEST_F(OutputAudio, TheDefaultIsSentBeforeItIsAnnounced) {
  ExpectSentBeforeAnnounced([] { return ORV_SetUSBOutputAudioDefault(kSelva, 1); },
                            Assigned(1, "0201", "no reply"));
}

TEST_F(OutputAudio, UnitsAreReadBackAfterTheDefaultIsAnnounced) {
  ExpectSelectorsAskedLast([] { return ORV_SetUSBOutputAudioDefault(kSelva, 2); },
                           Assigned(1, "0304"), std::nullopt, Change(2, 2));
}

TEST_F(OutputAudio, TheDefaultLeavesTheUsersChoiceStoredAndToBeSentAgain) {
  ASSERT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(CurrentIndex(1), 2);
  PlugMixers(1);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, "0204")}));
  EXPECT_EQ(rig_->TakeAnnouncements(2), (std::vector{Change(1, 2), Change(1, 1)}));
}

TEST_F(OutputAudio, TheDefaultLeavesAFileThatCannotBeReadAsItWas) {
  PutSettings("TRX-SELVA", "<key>Input0</key><integer>9</integer><key>Foreign</key><true/>");
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 0), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"Input0", "<integer>9</integer>"}, {"Foreign", "<true/>"}}));
  PutSettingsFile("TRX-SELVA", "no property list");
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 0), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), std::nullopt);
}

// --- The current assignment ------------------------------------------------------------------

TEST_F(OutputAudio, WithNothingStoredTheCurrentIndexIsTheChannelItself) {
  EXPECT_EQ(CurrentIndex(0), 0);
  EXPECT_EQ(CurrentIndex(1), 1);
  EXPECT_EQ(CurrentIndex(2), 2);
  ExpectNothingHappened();
  PutSettings("TRX-SELVA", "<key>Output1</key><integer>5</integer>");
  EXPECT_EQ(CurrentIndex(1), 1);
}

TEST_F(OutputAudio, EachChannelReadsItsOwnEntryWhateverNumberItHolds) {
  PutSettings("TRX-SELVA",
              "<key>Input0</key><integer>2</integer>"
              "<key>Input1</key><integer>-3</integer>"
              "<key>Input2</key><integer>40</integer>");
  EXPECT_EQ(CurrentIndex(0), 2);
  EXPECT_EQ(CurrentIndex(1), -3);
  EXPECT_EQ(CurrentIndex(2), 40);
}

TEST_F(OutputAudio, TheFourthAndFifthChannelCanBeStoredButNotReadOrSentAgain) {
  ASSERT_EQ(ORV_SetUSBOutputAudio(kSelva, 3, 1), kSuccess);
  ASSERT_EQ(ORV_SetUSBOutputAudio(kSelva, 4, 2), kSuccess);
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentUSBOutputAudioIndex(kSelva, channel, &index), kBadArgument);
    EXPECT_EQ(index, -77);
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, channel), kBadArgument);
  }
  EXPECT_EQ(rig_->WireLog(), Lines());
}

TEST_F(OutputAudio, SendingAgainNeitherReadsBackNorStoresNorAnnounces) {
  PlugMixers(3);
  rig_->SetFault(1, UnitFault::kStalls);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, 0), kSuccess);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, 1), kSuccess);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Assigned(1, "0100", "stalled"), Assigned(3, "0100"),
                                    Assigned(1, "0201", "stalled"), Assigned(3, "0201"),
                                    Assigned(1, "0304", "stalled"), Assigned(3, "0304")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(OutputAudio, SendingAgainWithoutAUnitSucceeds) {
  for (const std::int32_t channel : {0, 1, 2}) {
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, channel), kSuccess);
  }
  ExpectNothingHappened();
}

TEST_F(OutputAudio, AStoredNumberThatLeadsToAnotherChannelsValueSendsThatValue) {
  PlugMixers(1);
  EXPECT_EQ(SentAgain(0, "3"), (Lines{Assigned(1, "0200")}));
  EXPECT_EQ(SentAgain(0, "8"), (Lines{Assigned(1, "0304")}));
  EXPECT_EQ(SentAgain(1, "5"), (Lines{Assigned(1, "0304")}));
  EXPECT_EQ(SentAgain(1, "-1"), (Lines{Assigned(1, "0104")}));
  EXPECT_EQ(SentAgain(1, "-3"), (Lines{Assigned(1, "0100")}));
  EXPECT_EQ(SentAgain(2, "-6"), (Lines{Assigned(1, "0100")}));
}

TEST_F(OutputAudio, AStoredNumberThatLeadsPastTheTableSendsNothingAndSucceeds) {
  PlugMixers(1);
  const std::vector<std::pair<std::int32_t, std::string>> cases = {
      {0, "9"},          {0, "-1"},          {1, "6"},           {1, "-4"},
      {2, "3"},          {2, "-7"},          {0, "2147483647"},  {1, "2147483647"},
      {2, "2147483647"}, {0, "-2147483648"}, {2, "-2147483648"}, {1, "-2147483648"}};
  for (const auto &[channel, stored] : cases) EXPECT_EQ(SentAgain(channel, stored), Lines());
}

}  // namespace
}  // namespace trxtest
