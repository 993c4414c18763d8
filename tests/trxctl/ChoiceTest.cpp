// Which choice the user's words name, in lists that no setting of today has.
#include <gtest/gtest.h>

#include "ExitCode.h"
#include "UserInput.h"

namespace trxctl {
namespace {

const std::vector<std::string> kChannels{"CH 1", "CH 2", "CH 10", "CH 11"};

Failure FailureOf(std::string_view given, const std::vector<std::string> &choices) {
  try {
    ChoiceNamed(given, choices, "MIDI channel");
  } catch (const Failure &failure) {
    return failure;
  }
  ADD_FAILURE() << given << " was accepted";
  return {};
}

TEST(Choice, WholeTextGoesBeforeTheBeginningOfAnother) {
  EXPECT_EQ(ChoiceNamed("ch 1", kChannels, "MIDI channel"), 0u);
}

TEST(Choice, WholeTextGoesBeforeANumber) {
  EXPECT_EQ(ChoiceNamed("1", {"2", "3", "1"}, "number"), 2u);
}

TEST(Choice, NumberGoesBeforeTheBeginningOfAText) {
  EXPECT_EQ(ChoiceNamed("2", {"20 dB", "5 dB"}, "level"), 1u);
}

TEST(Choice, TextThatStandsTwiceIsItsFirst) {
  EXPECT_EQ(ChoiceNamed("rec out", {"MIC", "REC OUT", "REC OUT"}, "source"), 1u);
  EXPECT_EQ(ChoiceNamed("rec", {"MIC", "REC OUT", "REC OUT"}, "source"), 1u);
}

TEST(Choice, NumbersCountFromOne) {
  EXPECT_EQ(ChoiceNamed("1", kChannels, "MIDI channel"), 0u);
  EXPECT_EQ(ChoiceNamed("4", kChannels, "MIDI channel"), 3u);
}

TEST(Choice, WordThatOneTextHasNamesIt) {
  const std::vector<std::string> signals{"CH1 Control Tone PHONO", "CH1 Control Tone LINE"};
  EXPECT_EQ(ChoiceNamed("phono", signals, "signal"), 0u);
  EXPECT_EQ(ChoiceNamed("line tone", signals, "signal"), 1u);
  EXPECT_EQ(FailureOf("tone", signals).choices, signals);
}

TEST(Choice, BareNumberIsNoWord) {
  EXPECT_EQ(FailureOf("10", {"A 10", "B 20"}).message, "\"10\" is no MIDI channel");
}

TEST(Choice, MinusSignIsAsGoodAsADash) {
  EXPECT_EQ(ChoiceNamed("\u221210", {"-5 dB", "-10 dB"}, "level"), 1u);
}

TEST(Choice, TextThatIsMeantIsNamed) {
  const std::vector<std::string> levels{"-5 dB", "-10 dB", "-19 dB"};
  EXPECT_EQ(
      FailureOf("10", levels).hint,
      "did you mean \"-10 dB\"? Otherwise choose one of \"-5 dB\", \"-10 dB\", \"-19 dB\", or a "
      "number from 1 to 3");
}

TEST(Choice, LongTextIsShortenedWhenItIsRepeated) {
  const Failure failure = FailureOf(std::string(150, 'x'), kChannels);
  EXPECT_EQ(failure.message, '"' + std::string(100, 'x') + "...\" is no MIDI channel");
}

TEST(Choice, BeginningOfSeveralTextsNamesThem) {
  const Failure failure = FailureOf("ch 1x", {"CH 1xa", "CH 1xb", "CH 2"});
  EXPECT_EQ(failure.code, ExitCode::kRefused);
  EXPECT_EQ(failure.message, "\"ch 1x\" could be more than one MIDI channel");
  EXPECT_EQ(failure.choices, (std::vector<std::string>{"CH 1xa", "CH 1xb"}));
}

TEST(Choice, NumberBeyondTheListNamesTheRange) {
  const Failure failure = FailureOf("99999999999999999999", kChannels);
  EXPECT_EQ(failure.code, ExitCode::kRefused);
  EXPECT_EQ(failure.hint,
            "choose one of \"CH 1\", \"CH 2\", \"CH 10\", \"CH 11\", or a number from 1 to 4");
}

}  // namespace
}  // namespace trxctl
