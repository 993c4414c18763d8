// USB input audio: texts, what is sent, stored and announced, and when a choice that was sent gives
// a warning.
#include <limits>

#include "../SetterOrder.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;
using Positions = std::vector<std::uint8_t>;
using Rows = std::vector<Lines>;

class InputAudio : public SetterOrder {
 protected:
  static std::string Routed(int unit, const std::string &value,
                            const std::string &outcome = "0 bytes") {
    return Sent(unit, value, "8002", outcome);
  }

  // The read after a choice; the read after a raw value asks for 5 bytes, or 3 for TRX-VOLT.
  static std::string Selectors(int unit, const std::string &outcome, int length = 4) {
    return Asked(unit, "8002", length, outcome);
  }

  static Announcement Change(std::int32_t channel, std::int32_t index) {
    return SelvaChange("InputAudio", channel, index);
  }

  // Plugs in mixers whose selector of channel 0 is in these positions.
  void PlugMixersAt(const std::vector<std::uint8_t> &positions) {
    for (const std::uint8_t position : positions) rig_->SetSelector(rig_->PlugMixer(), 0, position);
  }

  void SetAllSelectors(int unit, std::uint8_t position) {
    for (const unsigned channel : {0U, 1U, 2U, 3U}) rig_->SetSelector(unit, channel, position);
  }

  // The texts of a model, one row for each channel, up to the first index and channel refused.
  static Rows TextsOf(ProductId product) {
    Rows rows;
    ORVStringRef text = nullptr;
    for (std::int32_t channel = 0;
         ORV_GetUSBInputAudioText(product, channel, 0, 0, &text) == kSuccess; ++channel) {
      Lines &row = rows.emplace_back();
      for (std::uint32_t index = 0;
           ORV_GetUSBInputAudioText(product, channel, index, 0, &text) == kSuccess; ++index) {
        row.push_back(CharactersOf(text));
      }
    }
    return rows;
  }

  static std::int32_t CurrentIndex(ProductId product, std::int32_t channel) {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentUSBInputAudioIndex(product, channel, &index), kSuccess)
        << product << ' ' << channel;
    return index;
  }

  // Sends a stored value of channel `channel` again and returns the wire log.
  Lines SentAgain(std::int32_t channel, const std::string &stored, StatusCode expected) {
    PutSettings("TRX-SELVA", "<key>Output" + std::to_string(channel) + "</key><integer>" + stored +
                                 "</integer>");
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, channel), expected) << channel << ' ' << stored;
    return rig_->WireLog();
  }
};

// --- Counts and texts ------------------------------------------------------------------------

TEST_F(InputAudio, CountsAreEightEightSevenAndOne) {
  std::vector<std::int32_t> counts;
  for (const std::int32_t channel : {0, 1, 2, 3}) {
    std::int32_t count = -77;
    EXPECT_EQ(ORV_GetNumOfInputAudioIndex(kSelva, channel, &count), kSuccess);
    counts.push_back(count);
  }
  EXPECT_EQ(counts, (std::vector<std::int32_t>{8, 8, 7, 1}));
}

TEST_F(InputAudio, TextsOfArdenListTimecodesInAnotherOrderOnTheMiddleChannels) {
  EXPECT_EQ(TextsOf(0),
            (Rows{{"CH1 Timecode PHONO", "CH1 Timecode CD/LINE", "CH1 Timecode DIGITAL",
                   "Post CH1 Fader", "Cross Fader A", "Cross Fader B", "MIC", "REC OUT"},
                  {"CH2 Timecode CD/LINE", "CH2 Timecode LINE", "CH2 Timecode DIGITAL",
                   "Post CH2 Fader", "Cross Fader A", "Cross Fader B", "MIC", "REC OUT"},
                  {"CH3 Timecode CD/LINE", "CH3 Timecode LINE", "CH3 Timecode DIGITAL",
                   "Post CH3 Fader", "Cross Fader A", "Cross Fader B", "MIC", "REC OUT"},
                  {"CH4 Timecode PHONO", "CH4 Timecode CD/LINE", "CH4 Timecode DIGITAL",
                   "Post CH4 Fader", "Cross Fader A", "Cross Fader B", "MIC", "REC OUT"}}));
}

TEST_F(InputAudio, TextsOfVoltAreTwoTwoAndSix) {
  EXPECT_EQ(TextsOf(1), (Rows{{"CH1 Timecode PHONO", "CH1 Timecode CD"},
                              {"CH2 Timecode PHONO", "CH2 Timecode CD"},
                              {"Post CH1 Fader", "Post CH2 Fader", "Cross Fader A", "Cross Fader B",
                               "MIC / AUX Post EQ", "REC OUT"}}));
}

TEST_F(InputAudio, TextsOfHaldenRepeatTheFirstAtTheEndOfARow) {
  EXPECT_EQ(TextsOf(5), (Rows{{"CH1 Control Tone PHONO", "CH1 Control Tone LINE",
                               "CH1 Control Tone DIGITAL", "Post CH1 Fader", "Cross Fader A",
                               "Cross Fader B", "MIC", "REC OUT", "CH1 Control Tone PHONO"},
                              {"CH2 Control Tone PHONO", "CH2 Control Tone LINE",
                               "CH2 Control Tone DIGITAL", "Post CH2 Fader", "Cross Fader A",
                               "Cross Fader B", "MIC", "REC OUT", "CH2 Control Tone PHONO"},
                              {"CH3 Control Tone PHONO", "CH3 Control Tone LINE",
                               "CH3 Control Tone DIGITAL", "Post CH3 Fader", "Cross Fader A",
                               "Cross Fader B", "MIC", "REC OUT", "CH3 Control Tone PHONO"},
                              {"CH4 Control Tone PHONO", "CH4 Control Tone LINE",
                               "CH4 Control Tone DIGITAL", "Post CH4 Fader", "Cross Fader A",
                               "Cross Fader B", "MIC", "REC OUT", "CH4 Control Tone PHONO"},
                              {"REC OUT", "Post AUX Fader", "Post CH1 Fader", "Post CH2 Fader",
                               "Post CH3 Fader", "Post CH4 Fader", "Cross Fader A", "Cross Fader B",
                               "MIC", "CH1 Timecode PHONO"}}));
}

TEST_F(InputAudio, TextsOfLumenMorrowAndSelvaReadOnPastTheEndOfTheirRowsAndTable) {
  const Rows expected = {
      {"CH1 Control Tone PHONO", "CH1 Control Tone LINE", "Post CH1 Fader", "Cross Fader A",
       "Cross Fader B", "MIC", "AUX", "REC OUT", "CH2 Control Tone PHONO"},
      {"CH2 Control Tone PHONO", "CH2 Control Tone LINE", "Post CH2 Fader", "Cross Fader A",
       "Cross Fader B", "MIC", "AUX", "REC OUT", "REC OUT"},
      {"REC OUT", "Post CH1 Fader", "Post CH2 Fader", "Cross Fader A", "Cross Fader B", "MIC",
       "AUX", "CH1 Timecode PHONO", "CH1 Timecode PHONO"},
      {"CH1 Timecode PHONO", "CH1 Timecode CD", "CH1 Timecode PHONO", "CH1 Timecode PHONO",
       "CH1 Timecode PHONO", "CH1 Timecode PHONO", "CH2 Timecode PHONO", "CH2 Timecode CD",
       "CH1 Timecode PHONO"},
      {"CH1 Timecode PHONO", "CH1 Timecode PHONO", "CH1 Timecode PHONO", "CH1 Timecode PHONO",
       "Post CH1 Fader", "Post CH2 Fader", "Cross Fader A", "Cross Fader B", "MIC / AUX Post EQ",
       "REC OUT"}};
  EXPECT_EQ(TextsOf(6), expected);
  EXPECT_EQ(TextsOf(8), expected);
  EXPECT_EQ(TextsOf(11), expected);
}

TEST_F(InputAudio, TheReservedArgumentNeverChangesTheTextAndATextStaysTheSame) {
  ORVStringRef first = nullptr;
  ASSERT_EQ(ORV_GetUSBInputAudioText(kSelva, 1, 6, 0, &first), kSuccess);
  for (const std::uint32_t reserved : {1U, 7U, 0x80000000U, 0xFFFFFFFFU}) {
    ORVStringRef again = nullptr;
    EXPECT_EQ(ORV_GetUSBInputAudioText(kSelva, 1, 6, reserved, &again), kSuccess);
    EXPECT_EQ(first, again);
  }
  EXPECT_EQ(CharactersOf(first), "AUX");
}

// --- Choosing --------------------------------------------------------------------------------

TEST_F(InputAudio, EachChoiceSendsItsRoutingValueAndThenAsksForFourBytes) {
  SetAllSelectors(rig_->PlugMixer(), 6);
  const std::vector<std::vector<std::string>> values = {
      {"0103", "0100", "0106", "0107", "0108", "0109", "010d", "010a"},
      {"0203", "0200", "0206", "0207", "0208", "0209", "020d", "020a"},
      {"030a", "0311", "0312", "0307", "0308", "0309", "030d"}};
  Lines expected;
  for (std::size_t channel = 0; channel < values.size(); ++channel) {
    for (std::size_t index = 0; index < values[channel].size(); ++index) {
      EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, static_cast<std::int32_t>(channel),
                                     static_cast<std::uint32_t>(index)),
                kSuccess);
      expected.push_back(Routed(1, values[channel][index]));
      expected.push_back(Selectors(1, "4 bytes 00 06 06 06"));
    }
  }
  EXPECT_EQ(rig_->WireLog(), expected);
}

TEST_F(InputAudio, AChoiceIsSentStoredUnderItsChannelAndAnnounced) {
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 7), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "020a"), Selectors(1, "4 bytes 00 00 00 00")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output1", "<integer>7</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(1, 7)});
}

TEST_F(InputAudio, EveryChannelHasAKeyOfItsOwnAndOtherEntriesStay) {
  PutSettings("TRX-SELVA",
              "<key>MaxLevel</key><integer>2</integer><key>Foreign</key><string>stays</string>"
              "<key>Output0</key><integer>7</integer>");
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 4), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 5), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 2, 6), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>2</integer>"},
                                               {"Foreign", "<string>stays</string>"},
                                               {"Output0", "<integer>4</integer>"},
                                               {"Output1", "<integer>5</integer>"},
                                               {"Output2", "<integer>6</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(3), (std::vector{Change(0, 4), Change(1, 5), Change(2, 6)}));
}

TEST_F(InputAudio, TheSameChoiceTwiceIsSentStoredAndAnnouncedTwice) {
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 4), kSuccess);
  PutSettings("TRX-SELVA", "<key>Output0</key><integer>1</integer><key>Mark</key><true/>");
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 4), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0108"), Selectors(1, "4 bytes 00 00 00 00"),
                                    Routed(1, "0108"), Selectors(1, "4 bytes 00 00 00 00")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"Output0", "<integer>4</integer>"}, {"Mark", "<true/>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(2), (std::vector{Change(0, 4), Change(0, 4)}));
}

TEST_F(InputAudio, AChoiceBehindTheLastIsRefusedAndNothingIsDone) {
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 8), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 8), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 2, 7), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 3, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, -1, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kLumen, 0, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0xFFFFFFFF), kBadArgument);
  ExpectNothingHappened();
}

TEST_F(InputAudio, WithoutAUnitAChoiceIsStoredAndAnnouncedAndTheFirstThreeDrawTheWarning) {
  for (const std::int32_t channel : {0, 1, 2}) {
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 0), kSuccessWithWarning);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 1), kSuccessWithWarning);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 2), kSuccessWithWarning);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 3), kSuccess);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 6), kSuccess);
    EXPECT_EQ(rig_->TakeAnnouncements(5),
              (std::vector{Change(channel, 0), Change(channel, 1), Change(channel, 2),
                           Change(channel, 3), Change(channel, 6)}));
  }
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>6</integer>"},
                                               {"Output1", "<integer>6</integer>"},
                                               {"Output2", "<integer>6</integer>"}}));
}

TEST_F(InputAudio, WithAUnitAControlToneDrawsTheWarningUnlessTheSelectorStandsAtSixOrSeven) {
  rig_->PlugMixer();
  for (const std::int32_t channel : {0, 1, 2}) {
    for (const std::uint8_t position : Positions{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 255}) {
      SetAllSelectors(1, 6);
      rig_->SetSelector(1, static_cast<unsigned>(channel), position);
      const StatusCode tone = position == 6 || position == 7 ? kSuccess : kSuccessWithWarning;
      EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 0), tone) << channel << ' ' << +position;
      EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 1), tone) << channel << ' ' << +position;
      EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 2), kSuccess) << channel << ' ' << +position;
      EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, channel, 3), kSuccess) << channel << ' ' << +position;
    }
  }
}

TEST_F(InputAudio, OnlyTheSelectorOfTheChannelItselfCounts) {
  rig_->PlugMixer();
  rig_->SetLeadingByte(1, 6);
  for (const unsigned channel : {0U, 1U, 2U}) {
    SetAllSelectors(1, 7);
    rig_->SetSelector(1, channel, 5);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, static_cast<std::int32_t>(channel), 0),
              kSuccessWithWarning)
        << channel;
    SetAllSelectors(1, 5);
    rig_->SetSelector(1, channel, 7);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, static_cast<std::int32_t>(channel), 0), kSuccess)
        << channel;
  }
}

TEST_F(InputAudio, AWarningIsCarriedOutStoredAndAnnouncedAllTheSame) {
  PlugMixersAt({5});
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0103"), Selectors(1, "4 bytes 00 05 00 00")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>0</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(0, 0)});
}

TEST_F(InputAudio, AllUnitsAreSentToBeforeAnyIsAsked) {
  PlugMixersAt({6, 7, 6});
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0100"), Routed(2, "0100"), Routed(3, "0100"),
                   Selectors(1, "4 bytes 00 06 00 00"), Selectors(2, "4 bytes 00 07 00 00"),
                   Selectors(3, "4 bytes 00 06 00 00")}));
}

TEST_F(InputAudio, WhenTheSecondUnitWarnsTheThirdIsNotAsked) {
  PlugMixersAt({6, 5, 6});
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0103"), Routed(2, "0103"), Routed(3, "0103"),
                   Selectors(1, "4 bytes 00 06 00 00"), Selectors(2, "4 bytes 00 05 00 00")}));
}

TEST_F(InputAudio, AWarningOfTheThirdUnitAloneIsEnough) {
  PlugMixersAt({6, 7, 8});
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0103"), Routed(2, "0103"), Routed(3, "0103"),
                   Selectors(1, "4 bytes 00 06 00 00"), Selectors(2, "4 bytes 00 07 00 00"),
                   Selectors(3, "4 bytes 00 08 00 00")}));
}

TEST_F(InputAudio, AChoiceThatCannotWarnStillAsksEveryUnit) {
  PlugMixersAt({0, 1, 2});
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0106"), Routed(2, "0106"), Routed(3, "0106"),
                   Selectors(1, "4 bytes 00 00 00 00"), Selectors(2, "4 bytes 00 01 00 00"),
                   Selectors(3, "4 bytes 00 02 00 00")}));
}

TEST_F(InputAudio, AUnitThatDoesNotOpenIsNeitherSentToNorAsked) {
  PlugMixersAt({5, 6, 6});
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(2, "0103"), Routed(3, "0103"), Selectors(2, "4 bytes 00 06 00 00"),
                   Selectors(3, "4 bytes 00 06 00 00")}));
}

TEST_F(InputAudio, UnitsOfWhichNoneOpensDrawNoWarningThoughTheyCannotBeAsked) {
  PlugMixersAt({5, 5});
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(), Lines());
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>0</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{Change(0, 0)});
}

TEST_F(InputAudio, AUnitThatStallsIsPassedOverWhenSentToAndWarnsWhenAsked) {
  PlugMixersAt({6, 6});
  rig_->SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0103", "stalled"), Routed(2, "0103"), Selectors(1, "stalled")}));
  rig_->ClearWireLog();
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0106", "stalled"), Routed(2, "0106"),
                                    Selectors(1, "stalled"), Selectors(2, "4 bytes 00 06 00 00")}));
}

TEST_F(InputAudio, BytesMissingInAShortReplyCountAsZero) {
  SetAllSelectors(rig_->PlugMixer(), 6);
  rig_->SetShortReplies(1, 2);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 0), kSuccessWithWarning);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 2, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0103"), Selectors(1, "2 bytes 00 06"),
                                    Routed(1, "0203"), Selectors(1, "2 bytes 00 06"),
                                    Routed(1, "030a"), Selectors(1, "2 bytes 00 06")}));
}

// A byte from one unit must not be used for a missing byte of the next.
TEST_F(InputAudio, AShortReplyIsNotFilledUpWithTheReplyOfTheUnitBefore) {
  PlugMixersAt({6, 6});
  rig_->SetShortReplies(2, 1);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0103"), Routed(2, "0103"), Selectors(1, "4 bytes 00 06 00 00"),
                   Selectors(2, "1 byte 00")}));
}

TEST_F(InputAudio, AUnitThatVanishesWhenSentToCannotWarn) {
  PlugMixersAt({5});
  rig_->SetFault(1, UnitFault::kVanishes);
  EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 0), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0103", "unplugged")}));
}

TEST_F(InputAudio, AChoiceIsSentThenStoredThenAnnounced) {
  ExpectSentStoredAnnounced([] { return ORV_SetUSBInputAudio(kSelva, 1, 4); }, Routed(1, "0208"));
}

TEST_F(InputAudio, TheSelectorsAreAskedForAfterStoringAndAnnouncing) {
  ExpectSelectorsAskedLast([] { return ORV_SetUSBInputAudio(kSelva, 2, 3); }, Routed(1, "0307"),
                           Settings{{"Output2", "<integer>3</integer>"}}, Change(2, 3));
}

// --- Raw values ------------------------------------------------------------------------------

struct RawCase {
  ProductId product;
  std::int32_t channel;
  std::int32_t group;
  std::uint32_t source;
  const char *value;
};

TEST_F(InputAudio, ARawValueIsMadeOfGroupChannelAndSource) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const std::vector<RawCase> cases = {
      {kArden, 1, 0, 5, "1205"},         {kVolt, 2, 7, 15, "830f"},
      {kSelva, 0, -1, 3, "0103"},        {kSelva, 4, -1, 0, "0500"},
      {kHalden, 4, 14, 15, "f50f"},      {kLumen, 3, 15, 1, "0401"},
      {kMorrow, 2, 16, 2, "1302"},       {kArden, 3, -2, 4, "f404"},
      {kVolt, 0, 3, 3, "4103"},          {kVolt, 1, 8, 0, "9200"},
      {kSelva, 1, kMost, 9, "0209"},     {kSelva, 1, kLeast, 9, "1209"},
      {kSelva, 0, kMost - 1, 0, "f100"}, {kArden, 0, 0, 15, "110f"}};
  rig_->PlugMixer();
  for (const RawCase &raw : cases) {
    rig_->ClearWireLog();
    const StatusCode status =
        ORV_SetUSBInputAudioDirect(raw.product, raw.channel, raw.group, raw.source);
    EXPECT_TRUE(status == kSuccess || status == kSuccessWithWarning) << raw.value << ' ' << status;
    const Lines log = rig_->WireLog();
    ASSERT_EQ(log.size(), 2U) << raw.value;
    EXPECT_EQ(log[0], Routed(1, raw.value));
  }
}

TEST_F(InputAudio, ARawValueIsNeitherStoredNorAnnounced) {
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 0, 0, 3), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 0, 0, 2), kSuccessWithWarning);
  ExpectNothingHappened();
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 2, 0, 9), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "1309"), Selectors(1, "5 bytes 00 00 00 00 00", 5)}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(InputAudio, ARawValueLeavesTheStoredChoiceAsItWas) {
  PutSettings("TRX-SELVA", "<key>Output0</key><integer>5</integer>");
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 0, -1, 3), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output0", "<integer>5</integer>"}}));
  EXPECT_EQ(CurrentIndex(kSelva, 0), 5);
}

TEST_F(InputAudio, ASourceBehindTheLastIsRefusedAndNothingIsDone) {
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 0, 0, 4), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 1, 0, 4), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 2, 0, 16), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 3, 0, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kArden, 0, 0, 16), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kArden, 4, 0, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 4, 0, 16), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 5, 0, 0), kBadArgument);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kBrisk, 0, 0, 0), kBadArgument);
  ExpectNothingHappened();
}

TEST_F(InputAudio, WithoutAUnitARawSourceBelowThreeDrawsTheWarning) {
  for (const ProductId product : {kArden, kHalden, kLumen, kMorrow, kSelva}) {
    for (const std::int32_t channel : {0, 1, 2, 3}) {
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 0), kSuccessWithWarning) << product;
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 1), kSuccessWithWarning) << product;
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 2), kSuccessWithWarning) << product;
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 3), kSuccess) << product;
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 4), kSuccess) << product;
      EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 15), kSuccess) << product;
    }
  }
}

TEST_F(InputAudio, WithoutAUnitEveryRawValueOfVoltDrawsTheWarning) {
  for (const std::uint32_t source : {0U, 2U, 3U}) {
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 0, 0, source), kSuccessWithWarning) << source;
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 1, 0, source), kSuccessWithWarning) << source;
  }
  for (const std::uint32_t source : {0U, 3U, 4U, 15U}) {
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 2, 0, source), kSuccessWithWarning) << source;
  }
}

TEST_F(InputAudio, WithAUnitARawSourceBelowFourDrawsTheWarningUnlessTheSelectorStandsAtFour) {
  rig_->PlugMixer();
  for (const std::int32_t channel : {0, 1, 2, 3}) {
    for (const std::uint8_t position : Positions{0, 3, 4, 5, 6, 7}) {
      SetAllSelectors(1, 4);
      rig_->SetSelector(1, static_cast<unsigned>(channel), position);
      for (const ProductId product : {kArden, kHalden, kLumen, kMorrow, kSelva}) {
        const StatusCode low = position == 4 ? kSuccess : kSuccessWithWarning;
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 0), low) << product;
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 2), low) << product;
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 3), low) << product;
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 4), kSuccess) << product;
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, channel, 0, 5), kSuccess) << product;
      }
    }
  }
}

TEST_F(InputAudio, WithAUnitARawValueOfVoltDrawsTheWarningUnlessTheSelectorStandsAtTwo) {
  rig_->PlugMixer();
  for (const std::int32_t channel : {0, 1}) {
    for (const std::uint8_t position : Positions{0, 1, 2, 3, 4, 6}) {
      SetAllSelectors(1, 2);
      rig_->SetSelector(1, static_cast<unsigned>(channel), position);
      for (const std::uint32_t source : {0U, 2U, 3U}) {
        EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, channel, 0, source),
                  position == 2 ? kSuccess : kSuccessWithWarning)
            << channel << ' ' << +position << ' ' << source;
      }
    }
  }
}

TEST_F(InputAudio, TheThirdChannelOfVoltIsAskedForButNeverWarns) {
  SetAllSelectors(rig_->PlugMixer(), 0);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 2, -1, 0), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 2, -1, 15), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0300"), Selectors(1, "3 bytes 00 00 00", 3),
                                    Routed(1, "030f"), Selectors(1, "3 bytes 00 00 00", 3)}));
}

TEST_F(InputAudio, TheFifthChannelLiesBehindTheReplyAndCountsAsZero) {
  rig_->PlugMixer();
  rig_->SetChannels(1, 5);
  SetAllSelectors(1, 4);
  rig_->SetSelector(1, 4, 4);
  for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, 4, -1, 3), kSuccessWithWarning);
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(product, 4, -1, 4), kSuccess);
    EXPECT_EQ(rig_->WireLog(),
              (Lines{Routed(1, "0503"), Selectors(1, "5 bytes 00 04 04 04 04", 5),
                     Routed(1, "0504"), Selectors(1, "5 bytes 00 04 04 04 04", 5)}));
  }
}

TEST_F(InputAudio, RawValuesGoToAllUnitsAndTheFirstThatWarnsIsTheLastAsked) {
  PlugMixersAt({4, 3, 4});
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 0, 0, 3), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "1103"), Routed(2, "1103"), Routed(3, "1103"),
                                    Selectors(1, "5 bytes 00 04 00 00 00", 5),
                                    Selectors(2, "5 bytes 00 03 00 00 00", 5)}));
  rig_->SetSelector(2, 0, 4);
  rig_->SetSelector(3, 0, 5);
  rig_->ClearWireLog();
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kArden, 0, 0, 0), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "1100"), Routed(2, "1100"), Routed(3, "1100"),
                                    Selectors(1, "5 bytes 00 04 00 00 00", 5),
                                    Selectors(2, "5 bytes 00 04 00 00 00", 5),
                                    Selectors(3, "5 bytes 00 05 00 00 00", 5)}));
}

TEST_F(InputAudio, RawValuesOfVoltGoToAllUnitsAndTheFirstThatWarnsIsTheLastAsked) {
  PlugMixersAt({2, 1, 2});
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 0, -1, 3), kSuccessWithWarning);
  EXPECT_EQ(rig_->WireLog(),
            (Lines{Routed(1, "0103"), Routed(2, "0103"), Routed(3, "0103"),
                   Selectors(1, "3 bytes 00 02 00", 3), Selectors(2, "3 bytes 00 01 00", 3)}));
}

TEST_F(InputAudio, RawValuesPassOverUnitsThatDoNotOpenAndWarnForThoseThatStallOrAnswerShort) {
  PlugMixersAt({3, 4, 4});
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kMorrow, 0, -1, 3), kSuccess);
  rig_->SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kMorrow, 0, -1, 3), kSuccessWithWarning);
  rig_->ClearFaults(2);
  rig_->SetShortReplies(3, 1);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kMorrow, 0, -1, 3), kSuccessWithWarning);
  EXPECT_EQ(
      rig_->WireLog(),
      (Lines{Routed(2, "0103"), Routed(3, "0103"), Selectors(2, "5 bytes 00 04 00 00 00", 5),
             Selectors(3, "5 bytes 00 04 00 00 00", 5), Routed(2, "0103", "stalled"),
             Routed(3, "0103"), Selectors(2, "stalled", 5), Routed(2, "0103"), Routed(3, "0103"),
             Selectors(2, "5 bytes 00 04 00 00 00", 5), Selectors(3, "1 byte 00", 5)}));
}

TEST_F(InputAudio, RawValuesDrawNoWarningWhenUnitsAreThereButNoneOpens) {
  PlugMixersAt({3});
  rig_->SetFault(1, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 0, 0, 0), kSuccess);
  EXPECT_EQ(ORV_SetUSBInputAudioDirect(kVolt, 0, 0, 0), kSuccess);
  ExpectNothingHappened();
}

// --- The current choice ----------------------------------------------------------------------

TEST_F(InputAudio, WithNothingStoredEachModelHasItsDefaults) {
  for (const std::int32_t channel : {0, 1, 2, 3}) EXPECT_EQ(CurrentIndex(kArden, channel), 3);
  EXPECT_EQ(CurrentIndex(kVolt, 0), 1);
  EXPECT_EQ(CurrentIndex(kVolt, 1), 1);
  EXPECT_EQ(CurrentIndex(kVolt, 2), 5);
  for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
    for (const std::int32_t channel : {0, 1, 2, 3, 4, 5})
      EXPECT_EQ(CurrentIndex(product, channel), 0);
  }
  ExpectNothingHappened();
}

TEST_F(InputAudio, AFileWithoutTheKeyLeavesTheDefaults) {
  for (const char *model : {"TRX-Arden", "TRX-VOLT", "TRX-SELVA"}) {
    PutSettings(model, "<key>MaxLevel</key><integer>1</integer>");
  }
  EXPECT_EQ(CurrentIndex(kArden, 3), 3);
  EXPECT_EQ(CurrentIndex(kVolt, 1), 1);
  EXPECT_EQ(CurrentIndex(kVolt, 2), 5);
  EXPECT_EQ(CurrentIndex(kSelva, 4), 0);
}

TEST_F(InputAudio, EachModelAndChannelReadsItsOwnEntry) {
  const std::vector<std::pair<std::string, int>> models = {{"TRX-Arden", 10},  {"TRX-VOLT", 20},
                                                           {"TRX-HALDEN", 30}, {"TRX-LUMEN", 40},
                                                           {"TRX-MORROW", 50}, {"TRX-SELVA", 60}};
  for (const auto &[model, base] : models) {
    std::string entries;
    for (int channel = 0; channel < 6; ++channel) {
      entries += "<key>Output" + std::to_string(channel) + "</key><integer>" +
                 std::to_string(base + channel) + "</integer>";
    }
    PutSettings(model, entries);
  }
  const std::vector<std::pair<ProductId, std::vector<std::int32_t>>> expected = {
      {0, {10, 11, 12, 13}},        {1, {20, 21, 22}},
      {5, {30, 31, 32, 33, 34, 0}}, {6, {40, 41, 42, 43, 44, 0}},
      {8, {50, 51, 52, 53, 54, 0}}, {11, {60, 61, 62, 63, 64, 0}}};
  for (const auto &[product, indexes] : expected) {
    for (std::size_t channel = 0; channel < indexes.size(); ++channel) {
      EXPECT_EQ(CurrentIndex(product, static_cast<std::int32_t>(channel)), indexes[channel])
          << product << ' ' << channel;
    }
  }
}

TEST_F(InputAudio, AStoredNumberThatIsNoChoiceIsHandedOutUnchanged) {
  PutSettings("TRX-SELVA",
              "<key>Output0</key><integer>99</integer><key>Output1</key><integer>-4</integer>"
              "<key>Output2</key><string>2147483647</string>"
              "<key>Output3</key><integer>-2147483648</integer><key>Output4</key><array/>");
  EXPECT_EQ(CurrentIndex(kSelva, 0), 99);
  EXPECT_EQ(CurrentIndex(kSelva, 1), -4);
  EXPECT_EQ(CurrentIndex(kSelva, 2), 2147483647);
  EXPECT_EQ(CurrentIndex(kSelva, 3), -2147483647 - 1);
  EXPECT_EQ(CurrentIndex(kSelva, 4), 0);
}

// --- Sending again ---------------------------------------------------------------------------

TEST_F(InputAudio, WithNothingStoredSendingAgainSendsTheFirstChoice) {
  rig_->PlugMixer();
  EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 0), kSuccess);
  EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 1), kSuccess);
  EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 2), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "0103"), Routed(1, "0203"), Routed(1, "030a")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(InputAudio, SendingAgainSendsTheStoredChoiceToAllUnitsAndAsksAndAnnouncesNothing) {
  ASSERT_EQ(ORV_SetUSBInputAudio(kSelva, 1, 6), kSuccess);
  ASSERT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetFault(2, UnitFault::kStalls);
  EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 1), kSuccess);
  rig_->ClearFaults(2);
  rig_->SetFault(2, UnitFault::kRefusesToOpen);
  EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 1), kSuccess);
  EXPECT_EQ(rig_->WireLog(), (Lines{Routed(1, "020d"), Routed(2, "020d", "stalled"),
                                    Routed(3, "020d"), Routed(1, "020d"), Routed(3, "020d")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output1", "<integer>6</integer>"}}));
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(InputAudio, SendingAgainWithoutAUnitSucceeds) {
  for (const std::int32_t channel : {0, 1, 2}) {
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, channel), kSuccess);
  }
  ExpectNothingHappened();
}

TEST_F(InputAudio, SendingAgainNeverWarns) {
  PlugMixersAt({5});
  EXPECT_EQ(SentAgain(0, "0", kSuccess), (Lines{Routed(1, "0103")}));
}

TEST_F(InputAudio, OtherModelsAreNotSentAgainThoughTheirChoiceIsKnown) {
  rig_->PlugMixer();
  for (const char *model : {"TRX-Arden", "TRX-VOLT", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW"}) {
    PutSettings(model, "<key>Output0</key><integer>1</integer>");
  }
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow}) {
    EXPECT_EQ(CurrentIndex(product, 0), 1);
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(product, 0), kBadArgument) << product;
  }
  EXPECT_EQ(rig_->WireLog(), Lines());
}

TEST_F(InputAudio, OtherModelsAreNotSentAgainWithNothingStoredEither) {
  rig_->PlugMixer();
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow}) {
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(product, 0), kBadArgument) << product;
  }
  ExpectNothingHappened();
}

TEST_F(InputAudio, AStoredNumberThatLeadsToAnotherChannelsEntrySendsThatEntry) {
  rig_->PlugMixer();
  EXPECT_EQ(SentAgain(0, "8", kSuccess), (Lines{Routed(1, "0203")}));
  EXPECT_EQ(SentAgain(0, "22", kSuccess), (Lines{Routed(1, "030d")}));
  EXPECT_EQ(SentAgain(1, "14", kSuccess), (Lines{Routed(1, "030d")}));
  EXPECT_EQ(SentAgain(1, "-1", kSuccess), (Lines{Routed(1, "010a")}));
  EXPECT_EQ(SentAgain(1, "-8", kSuccess), (Lines{Routed(1, "0103")}));
  EXPECT_EQ(SentAgain(2, "-16", kSuccess), (Lines{Routed(1, "0103")}));
  EXPECT_EQ(SentAgain(3, "-2", kSuccess), (Lines{Routed(1, "030d")}));
}

TEST_F(InputAudio, AStoredNumberThatLeadsPastTheTableIsRefusedAndNothingIsSent) {
  rig_->PlugMixer();
  const std::vector<std::pair<std::int32_t, std::string>> cases = {
      {0, "23"},         {0, "-1"},          {1, "15"},          {1, "-9"},
      {2, "7"},          {2, "-17"},         {3, "-1"},          {0, "2147483647"},
      {2, "2147483647"}, {0, "-2147483648"}, {2, "-2147483648"}, {4, "0"}};
  for (const auto &[channel, stored] : cases)
    EXPECT_EQ(SentAgain(channel, stored, kBadArgument), Lines());
}

TEST_F(InputAudio, ChannelsBehindTheTableAreNotSentAgain) {
  rig_->PlugMixer();
  for (const std::int32_t channel : {3, 4, 5, 6, -1}) {
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, channel), kBadArgument) << channel;
  }
  ExpectNothingHappened();
}

}  // namespace
}  // namespace trxtest
