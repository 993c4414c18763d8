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

TEST(Choice, WholeTextGoesBeforeAnIndex) {
  EXPECT_EQ(ChoiceNamed("1", {"2", "3", "1"}, "number"), 2u);
}

TEST(Choice, IndexGoesBeforeTheBeginningOfAText) {
  EXPECT_EQ(ChoiceNamed("1", {"10 dB", "5 dB"}, "level"), 1u);
}

TEST(Choice, TextThatStandsTwiceIsItsFirst) {
  EXPECT_EQ(ChoiceNamed("rec out", {"MIC", "REC OUT", "REC OUT"}, "source"), 1u);
  EXPECT_EQ(ChoiceNamed("rec", {"MIC", "REC OUT", "REC OUT"}, "source"), 1u);
}

TEST(Choice, NumbersCountFromTheFirst) {
  EXPECT_EQ(ChoiceNamed("1", kChannels, "MIDI channel", 1), 0u);
  EXPECT_EQ(ChoiceNamed("4", kChannels, "MIDI channel", 1), 3u);
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
            "choose one of \"CH 1\", \"CH 2\", \"CH 10\", \"CH 11\", or a number from 0 to 3");
}

}  // namespace
}  // namespace trxctl
