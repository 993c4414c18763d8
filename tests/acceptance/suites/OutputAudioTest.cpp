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
    for (int i = 0; i < count; ++i) rig().PlugMixer();
  }

  static std::int32_t CurrentIndex(std::int32_t channel) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentUSBOutputAudioIndex(11, channel, &index), 100) << channel;
    return index;
  }

  // Sends a stored value of a channel again and returns the wire log.
  Lines SentAgain(std::int32_t channel, const std::string &stored) {
    PutSettings("TRX-SELVA",
                "<key>Input" + std::to_string(channel) + "</key><integer>" + stored + "</integer>");
    rig().ClearWireLog();
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, channel), 100) << channel << ' ' << stored;
    return rig().WireLog();
  }
};

TEST_F(OutputAudio, EachOfTheThreeChannelsHasThreeChoices) {
  for (const std::int32_t channel : {0, 1, 2}) {
    std::uint32_t count = 77;
    EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(11, channel, &count), 100) << channel;
    EXPECT_EQ(count, 3U) << channel;
  }
  std::uint32_t count = 77;
  EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(11, 3, &count), 102);
  EXPECT_EQ(ORV_GetNumOfOutputAudioIndex(11, 4, &count), 102);
  EXPECT_EQ(count, 77U);
}

TEST_F(OutputAudio, TextsAreTheSameOnEveryChannelAndAFourthGivesTheFirstAgain) {
  for (const std::int32_t channel : {0, 1, 2}) {
    for (const std::uint32_t reserved : {0U, 3U, 0xFFFFFFFFU}) {
      Lines texts;
      for (const std::uint32_t index : {0U, 1U, 2U, 3U}) {
        ORVStringRef text = nullptr;
        ASSERT_EQ(ORV_GetUSBOutputAudioText(11, channel, index, reserved, &text), 100);
        texts.push_back(CharactersOf(text));
      }
      EXPECT_EQ(texts, (Lines{"CH1", "CH2", "AUX", "CH1"})) << channel;
    }
  }
}

TEST_F(OutputAudio, TextsEndAtTheThirdChannelAndTheFourthIndex) {
  ORVStringRef text = TextOf("untouched");
  EXPECT_EQ(ORV_GetUSBOutputAudioText(11, 2, 4, 0, &text), 102);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(11, 3, 0, 0, &text), 102);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(11, 4, 0, 0, &text), 102);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(11, -1, 3, 0, &text), 102);
  EXPECT_EQ(ORV_GetUSBOutputAudioText(8, 0, 0, 0, &text), 102);
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
      EXPECT_EQ(ORV_SetUSBOutputAudio(11, channel, index), 100);
      expected.push_back(Assigned(1, values[channel][index]));
      expected.push_back(ReadBack(1));
    }
  }
  EXPECT_EQ(rig().WireLog(), expected);
}

TEST_F(OutputAudio, AnAssignmentIsSentStoredAnnouncedAndReadBack) {
  PlugMixers(3);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 1, 2), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, "0204"), Assigned(2, "0204"), Assigned(3, "0204"),
                                    ReadBack(1), ReadBack(2), ReadBack(3)}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(1, 2)});
}

TEST_F(OutputAudio, TheUnitIsToldBeforeTheAssignmentIsStoredAndAnnounced) {
  ExpectUnitToldFirst([] { return ORV_SetUSBOutputAudio(11, 2, 1); },
                      Assigned(1, "0301", "no reply"));
}

TEST_F(OutputAudio, TheAssignmentIsStoredBeforeItIsAnnounced) {
  ExpectStoredBeforeAnnounced([] { return ORV_SetUSBOutputAudio(11, 2, 1); }, "TRX-SELVA",
                              {{"Input2", "<integer>1</integer>"}});
}

TEST_F(OutputAudio, UnitsAreReadBackAfterStoringAndAnnouncing) {
  ExpectSelectorsAskedLast([] { return ORV_SetUSBOutputAudio(11, 0, 2); }, Assigned(1, "0104"),
                           Settings{{"Input0", "<integer>2</integer>"}}, Change(0, 2));
}

TEST_F(OutputAudio, WithoutAUnitAnAssignmentIsStoredAndAnnouncedAllTheSame) {
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 1, 2), 100);
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(1, 2)});
}

TEST_F(OutputAudio, EveryChannelHasAKeyOfItsOwnTheFourthAndFifthIncluded) {
  PutSettings("TRX-SELVA",
              "<key>Output0</key><integer>4</integer><key>Foreign</key><true/>"
              "<key>Input2</key><integer>1</integer>");
  for (const std::int32_t channel : {0, 1, 2, 3, 4}) {
    EXPECT_EQ(ORV_SetUSBOutputAudio(11, channel, 2), 100) << channel;
  }
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>4</integer>"},
                                               {"Foreign", "<true/>"},
                                               {"Input0", "<integer>2</integer>"},
                                               {"Input1", "<integer>2</integer>"},
                                               {"Input2", "<integer>2</integer>"},
                                               {"Input3", "<integer>2</integer>"},
                                               {"Input4", "<integer>2</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(5),
            (std::vector{Change(0, 2), Change(1, 2), Change(2, 2), Change(3, 2), Change(4, 2)}));
}

TEST_F(OutputAudio, TheFourthAndFifthChannelSendZeroForEveryIndex) {
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    for (const std::uint32_t index : {0U, 1U, 2U}) {
      rig().ClearWireLog();
      EXPECT_EQ(ORV_SetUSBOutputAudio(11, channel, index), 100);
      EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, "0000"), ReadBack(1)})) << channel << index;
    }
  }
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"Input3", "<integer>2</integer>"}, {"Input4", "<integer>2</integer>"}}));
}

TEST_F(OutputAudio, AnAssignmentOutOfRangeIsRefusedAndNothingIsDone) {
  PlugMixers(1);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 3), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 4, 3), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 5, 0), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, -1, 0), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 0xFFFFFFFF), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudio(8, 0, 0), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 5), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, -1), 102);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(6, 0), 102);
  ExpectNothingHappened();
}

TEST_F(OutputAudio, AUnitThatDoesNotOpenIsNeitherSentToNorReadBack) {
  PlugMixers(3);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 2, 0), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{Assigned(1, "0300"), Assigned(3, "0300"), ReadBack(1), ReadBack(3)}));
}

TEST_F(OutputAudio, UnitsThatStallOrAnswerShortChangeNothing) {
  PlugMixers(3);
  rig().SetFault(1, UnitFault::kStalls);
  rig().SetShortReplies(2, 1);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 1), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{Assigned(1, "0101", "stalled"), Assigned(2, "0101"), Assigned(3, "0101"),
                   ReadBack(1, "stalled"), ReadBack(2, "1 byte 00"), ReadBack(3)}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input0", "<integer>1</integer>"}}));
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(0, 1)});
}

TEST_F(OutputAudio, WhatTheSelectorsSayNeverDrawsAWarning) {
  PlugMixers(1);
  for (const std::uint8_t position : Positions{0, 4, 6, 8, 255}) {
    rig().SetSelector(1, 0, position);
    EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 0), 100) << +position;
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 0), 100) << +position;
  }
}

// The units are not counted again: the read-back asks for as many as were there at the start.
TEST_F(OutputAudio, AUnitThatVanishesWhenSentToIsNotReadBack) {
  PlugMixers(2);
  rig().SetFault(2, UnitFault::kVanishes);
  EXPECT_EQ(ORV_SetUSBOutputAudio(11, 0, 0), 100);
  EXPECT_EQ(rig().WireLog(),
            (Lines{Assigned(1, "0100"), Assigned(2, "0100", "unplugged"), ReadBack(1)}));
}

// --- The default -----------------------------------------------------------------------------

TEST_F(OutputAudio, TheDefaultIsSentAnnouncedAndReadBackButMakesNoFile) {
  PlugMixers(2);
  const char *const values[3] = {"0100", "0201", "0304"};
  for (const std::int32_t channel : {0, 1, 2}) {
    rig().ClearWireLog();
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, channel), 100);
    EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, values[channel]), Assigned(2, values[channel]),
                                      ReadBack(1), ReadBack(2)}));
    EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(channel, channel)});
  }
  EXPECT_EQ(LibraryListing(), Lines());
}

TEST_F(OutputAudio, TheDefaultOfTheFourthAndFifthChannelSendsZeroAndAnnouncesIndexZero) {
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    rig().ClearWireLog();
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, channel), 100);
    EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, "0000"), ReadBack(1)}));
    EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(channel, 0)});
  }
  EXPECT_EQ(LibraryListing(), Lines());
}

TEST_F(OutputAudio, TheDefaultWithoutAUnitIsAnnounced) {
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 2), 100);
  EXPECT_EQ(rig().WireLog(), Lines());
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(2, 2)});
}

TEST_F(OutputAudio, UnitsThatDoNotOpenStallOrAnswerShortDoNotHoldUpTheDefault) {
  PlugMixers(3);
  rig().SetFault(1, UnitFault::kRefusesToOpen);
  rig().SetFault(2, UnitFault::kStalls);
  rig().SetShortReplies(3, 1);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 1), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Assigned(2, "0201", "stalled"), Assigned(3, "0201"),
                                    ReadBack(2, "stalled"), ReadBack(3, "1 byte 00")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(1), std::vector{Change(1, 1)});
}

TEST_F(OutputAudio, TheUnitIsToldBeforeTheDefaultIsAnnounced) {
  ExpectUnitToldFirst([] { return ORV_SetUSBOutputAudioDefault(11, 1); },
                      Assigned(1, "0201", "no reply"));
}

TEST_F(OutputAudio, UnitsAreReadBackAfterTheDefaultIsAnnounced) {
  ExpectSelectorsAskedLast([] { return ORV_SetUSBOutputAudioDefault(11, 2); }, Assigned(1, "0304"),
                           std::nullopt, Change(2, 2));
}

TEST_F(OutputAudio, TheDefaultLeavesTheUsersChoiceStoredAndToBeSentAgain) {
  ASSERT_EQ(ORV_SetUSBOutputAudio(11, 1, 2), 100);
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 1), 100);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Input1", "<integer>2</integer>"}}));
  EXPECT_EQ(CurrentIndex(1), 2);
  PlugMixers(1);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, 1), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, "0204")}));
  EXPECT_EQ(rig().TakeAnnouncements(2), (std::vector{Change(1, 2), Change(1, 1)}));
}

TEST_F(OutputAudio, TheDefaultLeavesAFileThatCannotBeReadAsItWas) {
  PutSettings("TRX-SELVA", "<key>Input0</key><integer>9</integer><key>Foreign</key><true/>");
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 0), 100);
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"Input0", "<integer>9</integer>"}, {"Foreign", "<true/>"}}));
  PutSettingsFile("TRX-SELVA", "no property list");
  EXPECT_EQ(ORV_SetUSBOutputAudioDefault(11, 0), 100);
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
  ASSERT_EQ(ORV_SetUSBOutputAudio(11, 3, 1), 100);
  ASSERT_EQ(ORV_SetUSBOutputAudio(11, 4, 2), 100);
  PlugMixers(1);
  for (const std::int32_t channel : {3, 4}) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentUSBOutputAudioIndex(11, channel, &index), 102);
    EXPECT_EQ(index, -77);
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, channel), 102);
  }
  EXPECT_EQ(rig().WireLog(), Lines());
}

TEST_F(OutputAudio, SendingAgainNeitherReadsBackNorStoresNorAnnounces) {
  PlugMixers(3);
  rig().SetFault(1, UnitFault::kStalls);
  rig().SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, 0), 100);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, 1), 100);
  EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, 2), 100);
  EXPECT_EQ(rig().WireLog(), (Lines{Assigned(1, "0100", "stalled"), Assigned(3, "0100"),
                                    Assigned(1, "0201", "stalled"), Assigned(3, "0201"),
                                    Assigned(1, "0304", "stalled"), Assigned(3, "0304")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(OutputAudio, SendingAgainWithoutAUnitSucceeds) {
  for (const std::int32_t channel : {0, 1, 2}) {
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(11, channel), 100);
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
