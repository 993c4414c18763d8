// The integer reading of an entry, for every type that another program may have written.
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::Optional;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

std::optional<PropertyList> ListIn(const std::string &contents) {
  const TemporaryFolder folder;
  WriteBytes(folder / "list.plist", contents);
  return PropertyList::ReadFile(folder / "list.plist");
}

// The reading of the entry "a" in a file with these bytes.
std::optional<std::int32_t> ReadingIn(const std::string &contents) {
  const auto list = ListIn(contents);
  EXPECT_TRUE(list);
  return list ? list->IntegerForKey("a") : std::nullopt;
}

std::optional<std::int32_t> ReadingOf(const std::string &xmlValue) {
  return ReadingIn(XmlList("<key>a</key>" + xmlValue));
}

std::optional<std::int32_t> ReadingOfText(const std::string &text) {
  return ReadingOf("<string>" + text + "</string>");
}

TEST(PropertyListInteger, TheIntegerOfAnIntegerIsItsLow32Bits) {
  EXPECT_THAT(ReadingOf("<integer>7</integer>"), Optional(7));
  EXPECT_THAT(ReadingOf("<integer>0</integer>"), Optional(0));
  EXPECT_THAT(ReadingOf("<integer>-1</integer>"), Optional(-1));
  EXPECT_THAT(ReadingOf("<integer>2147483647</integer>"), Optional(kHighest));
  EXPECT_THAT(ReadingOf("<integer>2147483648</integer>"), Optional(kLowest));
  EXPECT_THAT(ReadingOf("<integer>-2147483648</integer>"), Optional(kLowest));
  EXPECT_THAT(ReadingOf("<integer>-2147483649</integer>"), Optional(kHighest));
  EXPECT_THAT(ReadingOf("<integer>4294967296</integer>"), Optional(0));
  EXPECT_THAT(ReadingOf("<integer>4294967301</integer>"), Optional(5));
  EXPECT_THAT(ReadingOf("<integer>-9223372036854775808</integer>"), Optional(0));
}

TEST(PropertyListInteger, TheIntegerOfAnUnsignedIntegerBeyondTheSignedRangeIsItsLow32Bits) {
  EXPECT_THAT(ReadingOf("<integer>9223372036854775809</integer>"), Optional(1));
  EXPECT_THAT(ReadingOf("<integer>18446744073709551614</integer>"), Optional(-2));
  EXPECT_THAT(ReadingOf("<integer>18446744073709551615</integer>"), Optional(-1));
}

TEST(PropertyListInteger, TheIntegerOfABinaryIntegerIsItsLow32BitsInEverySizeUpTo8Bytes) {
  EXPECT_THAT(ReadingIn(BinaryListOf("\x10\xFF")), Optional(255));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x11\xFF\xFE")), Optional(65534));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x12\xFF\xFF\xFF\xFE")), Optional(-2));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x13" + BigEndian(0xFFFFFFFFFFFFFFF9, 8))), Optional(-7));
}

TEST(PropertyListInteger, TheIntegerOfABinaryIntegerOf16BytesIsItsLow32Bits) {
  EXPECT_THAT(ReadingIn(BinaryListOf("\x14" + BigEndian(0x8000000000000009, 16))), Optional(9));
}

TEST(PropertyListInteger, TheIntegerOfABooleanIs0Or1) {
  EXPECT_THAT(ReadingOf("<true/>"), Optional(1));
  EXPECT_THAT(ReadingOf("<false/>"), Optional(0));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x09")), Optional(1));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x08")), Optional(0));
}

TEST(PropertyListInteger, TheIntegerOfARealIsCutNotRounded) {
  EXPECT_THAT(ReadingOf("<real>2.9</real>"), Optional(2));
  EXPECT_THAT(ReadingOf("<real>-2.9</real>"), Optional(-2));
  EXPECT_THAT(ReadingOf("<real>0.5</real>"), Optional(0));
  EXPECT_THAT(ReadingOf("<real>-0.5</real>"), Optional(0));
  EXPECT_THAT(ReadingOf("<real>3e2</real>"), Optional(300));
  EXPECT_THAT(ReadingOf("<real>2147483647.9</real>"), Optional(kHighest));
  EXPECT_THAT(ReadingOf("<real>-2147483648.9</real>"), Optional(kLowest));
  EXPECT_THAT(ReadingIn(BinaryListOf(std::string("\x22\x40\x20\0\0", 5))), Optional(2));
}

TEST(PropertyListInteger, TheIntegerOfARealOutOfRangeIsMissing) {
  for (const char *real :
       {"2147483648", "-2147483649", "1e10", "1e308", "-1e308", "+infinity", "-infinity", "nan"}) {
    EXPECT_EQ(ReadingOf("<real>" + std::string(real) + "</real>"), std::nullopt) << real;
  }
}

TEST(PropertyListInteger, TheIntegerOfATextThatSpellsAnIntegerIsThatInteger) {
  EXPECT_THAT(ReadingOfText("5"), Optional(5));
  EXPECT_THAT(ReadingOfText("+5"), Optional(5));
  EXPECT_THAT(ReadingOfText("-7"), Optional(-7));
  EXPECT_THAT(ReadingOfText("007"), Optional(7));
  EXPECT_THAT(ReadingOfText("0"), Optional(0));
  EXPECT_THAT(ReadingOfText("2147483647"), Optional(kHighest));
  EXPECT_THAT(ReadingOfText("-2147483648"), Optional(kLowest));
  EXPECT_THAT(ReadingIn(BinaryListOf("\x52-7")), Optional(-7));
}

TEST(PropertyListInteger, TheIntegerOfATextThatHoldsAnythingElseIsMissing) {
  for (const char *text :
       {"",    " ",    " 5",  "5 ", "\n5", "5\n",  "+",  "-",   "+-5",   "-+5",   "--5",
        "++5", "0x10", "5.0", "5.", "1e3", "five", "5a", "5 6", "1,000", "\u0665"}) {
    EXPECT_EQ(ReadingOfText(text), std::nullopt) << '"' << text << '"';
  }
}

TEST(PropertyListInteger, TheIntegerOfAnyOtherTypeIsMissing) {
  for (const char *value :
       {"<date>2024-02-29T12:00:00Z</date>", "<data>AAEC</data>", "<data/>", "<array/>", "<dict/>",
        "<array><integer>5</integer></array>", "<dict><key>a</key><integer>5</integer></dict>"}) {
    EXPECT_EQ(ReadingOf(value), std::nullopt) << value;
  }
  EXPECT_EQ(ReadingIn(BinaryListOf("\x80\x07")), std::nullopt);
}

TEST(PropertyListInteger, TheIntegerOfAKeyThatIsNotThereIsMissing) {
  const auto list = ListIn(XmlList("<key>b</key><integer>5</integer>"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->IntegerForKey("a"), std::nullopt);
  EXPECT_EQ(list->IntegerForKey("B"), std::nullopt);
  EXPECT_EQ(list->IntegerForKey(""), std::nullopt);
  EXPECT_EQ(PropertyList().IntegerForKey("a"), std::nullopt);
}

TEST(PropertyListInteger, SetIsReadBackAndWrittenAsASignedInteger) {
  const TemporaryFolder folder;
  ASSERT_TRUE(PropertyList::ChangeFile(folder / "list.plist", [](PropertyList &list) {
    list.SetInteger("a", kLowest);
    list.SetInteger("b", -1);
    list.SetInteger("c", 0);
    list.SetInteger("d", kHighest);
    EXPECT_THAT(list.IntegerForKey("a"), Optional(kLowest));
    EXPECT_THAT(list.IntegerForKey("b"), Optional(-1));
    EXPECT_THAT(list.IntegerForKey("c"), Optional(0));
    EXPECT_THAT(list.IntegerForKey("d"), Optional(kHighest));
  }));
  EXPECT_THAT(ShownEntries(folder / "list.plist"),
              ElementsAre("a: integer -2147483648", "b: integer -1", "c: integer 0",
                          "d: integer 2147483647"));
}

TEST(PropertyListInteger, SetAgainTakesThePlaceOfTheOldValue) {
  PropertyList list;
  list.SetInteger("a", 1);
  list.SetInteger("a", 2);
  EXPECT_THAT(list.IntegerForKey("a"), Optional(2));
}

}  // namespace
}  // namespace orv
