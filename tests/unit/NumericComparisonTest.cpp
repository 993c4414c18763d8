#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "Text.h"

namespace orv {
namespace {

struct Pair {
  const char *name;
  const char *text;
  const char *than;
  bool isGreater;
};

void PrintTo(const Pair &pair, std::ostream *stream) {
  *stream << '"' << pair.text << "\" > \"" << pair.than << '"';
}

class NumericComparisonTest : public testing::TestWithParam<Pair> {};

TEST_P(NumericComparisonTest, EachRunOfDigitsCountsAsOneNumber) {
  EXPECT_EQ(IsNumericallyGreater(GetParam().text, GetParam().than), GetParam().isGreater);
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, NumericComparisonTest,
    testing::Values(
        Pair{"Greater", "11", "10", true}, Pair{"Equal", "10", "10", false},
        Pair{"FewerDigits", "9", "10", false}, Pair{"MoreDigits", "100", "99", true},
        Pair{"OneAndTwoDigits", "2", "10", false}, Pair{"Zero", "0", "10", false},
        Pair{"LeadingZerosOfALesserNumber", "0009", "10", false},
        Pair{"LeadingZerosOfAGreaterNumber", "0011", "10", true},
        Pair{"LeadingZerosLeft", "010", "10", false}, Pair{"LeadingZerosRight", "10", "010", false},
        Pair{"ZerosOnly", "000", "0", false},
        Pair{"BeyondSixtyFourBits", "18446744073709551617", "18446744073709551616", true},
        Pair{"BeyondSixtyFourBitsEqual", "99999999999999999999999", "99999999999999999999999",
             false},
        Pair{"BeyondSixtyFourBitsLess", "2", "18446744073709551617", false},
        Pair{"LaterRunOfDigits", "10.11.6", "10.9.5", true},
        Pair{"LaterRunOfDigitsLess", "10.9.5", "10.11.6", false},
        Pair{"MoreBehindTheSameNumber", "10a", "10", true},
        Pair{"LessBehindTheSameNumber", "10", "10a", false}, Pair{"BothEmpty", "", "", false},
        Pair{"EmptyLeft", "", "10", false}, Pair{"EmptyRight", "10", "", true},
        Pair{"Letters", "b", "a", true}, Pair{"LettersEqual", "a", "a", false},
        Pair{"LetterAfterDigit", "a", "10", true}, Pair{"DigitBeforeLetter", "10", "a", false},
        Pair{"BlankBeforeDigit", " 11", "10", false}),
    [](const auto &row) { return std::string(row.param.name); });

}  // namespace
}  // namespace orv
