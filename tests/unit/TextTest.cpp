// The search in the upper-case form of a text.
#include <gtest/gtest.h>

#include "Text.h"

namespace orv {
namespace {

TEST(UpperCaseContains, TheSearchFindsATextAnywhere) {
  EXPECT_TRUE(UpperCaseContains("SELVA", "SELVA"));
  EXPECT_TRUE(UpperCaseContains("xSELVA", "SELVA"));
  EXPECT_TRUE(UpperCaseContains("SELVAx", "SELVA"));
  EXPECT_TRUE(UpperCaseContains("SELSELVA", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("SELV", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("ELVA", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("SEL VA", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("", "SELVA"));
}

TEST(UpperCaseContains, TheSearchRaisesAsciiLettersAndNothingElseOfAscii) {
  EXPECT_TRUE(UpperCaseContains("abcxyz", "ABCXYZ"));
  EXPECT_TRUE(UpperCaseContains("trx-selva", "TRX-SELVA"));
  EXPECT_FALSE(UpperCaseContains("`{", "@["));
  EXPECT_FALSE(UpperCaseContains("trx\rselva", "TRX-SELVA"));
}

TEST(UpperCaseContains, TheSearchRaisesCharactersWhoseUpperCaseIsAscii) {
  EXPECT_TRUE(UpperCaseContains("trx-\u017Felva", "TRX-SELVA"));  // long s
  EXPECT_TRUE(UpperCaseContains("c\u0131rrus", "CIRRUS"));        // dotless i
  EXPECT_TRUE(UpperCaseContains("stra\u00DFe", "STRASSE"));       // sharp s
  EXPECT_TRUE(UpperCaseContains("\uFB00", "FF"));
  EXPECT_TRUE(UpperCaseContains("\uFB01", "FI"));
  EXPECT_TRUE(UpperCaseContains("\uFB02", "FL"));
  EXPECT_TRUE(UpperCaseContains("\uFB03", "FFI"));
  EXPECT_TRUE(UpperCaseContains("\uFB04", "FFL"));
  EXPECT_TRUE(UpperCaseContains("\uFB05", "ST"));
  EXPECT_TRUE(UpperCaseContains("\uFB06", "ST"));
}

TEST(UpperCaseContains, TheSearchFindsATextThatBeginsOrEndsInsideSuchACharacter) {
  EXPECT_TRUE(UpperCaseContains("\u00DFelva", "SELVA"));
  EXPECT_TRUE(UpperCaseContains("bri\u00DF", "BRIS"));
  EXPECT_TRUE(UpperCaseContains("\uFB03nn", "INN"));
}

TEST(UpperCaseContains, TheSearchLeavesOtherCharactersThatResembleAsciiAlone) {
  EXPECT_FALSE(UpperCaseContains("\u0130", "I"));                         // capital i with a dot
  EXPECT_FALSE(UpperCaseContains("\uFF54\uFF52\uFF58", "TRX"));           // full width
  EXPECT_FALSE(UpperCaseContains("\u0455\u0435\u04CFv\u0430", "SELVA"));  // Cyrillic
  EXPECT_FALSE(UpperCaseContains("\u00E4", "A"));
}

TEST(UpperCaseContains, TheSearchBearsBrokenUtf8) {
  EXPECT_TRUE(UpperCaseContains("\xC5\xFFselva\xEF\xAC", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("sel\xC5", "SELVA"));
  EXPECT_FALSE(UpperCaseContains("sel\xC3", "SELS"));
  EXPECT_FALSE(UpperCaseContains("\xEF\xAC", "FF"));
}

}  // namespace
}  // namespace orv
