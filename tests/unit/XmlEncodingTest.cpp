// XML in UTF-16, and with byte order marks.
#include <cstddef>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "XmlEncoding.h"

namespace orv {
namespace {

// With its zero bytes.
template <std::size_t size>
std::string Bytes(const char (&literal)[size]) {
  return std::string(literal, size - 1);
}

TEST(XmlEncoding, OtherTextsAreLeftAsTheyAre) {
  for (const std::string &text : {Bytes(""), Bytes("<"), Bytes("<plist/>"), Bytes("bplist00\0\1"),
                                  Bytes("\xEF\xBB<"), Bytes("<\xFF\xFE"), Bytes("\0")}) {
    EXPECT_EQ(InUtf8(text), text);
  }
}

TEST(XmlEncoding, TheMarkOfUtf8IsDropped) { EXPECT_EQ(InUtf8("\xEF\xBB\xBF<a/>"), "<a/>"); }

TEST(XmlEncoding, Utf16BecomesUtf8) {
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\0<\0a\0/\0>")), "<a/>");
  EXPECT_EQ(InUtf8(Bytes("\xFF\xFE<\0a\0/\0>\0")), "<a/>");
  EXPECT_EQ(InUtf8(Bytes("\0<\0a\0/\0>")), "<a/>");
  EXPECT_EQ(InUtf8(Bytes("<\0a\0/\0>\0")), "<a/>");
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF")), "");
}

TEST(XmlEncoding, CharactersOfEveryLengthAreKept) {
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\0\x7F\0\x80\x07\xFF\x08\0\xD7\xFF\xE0\0\xFF\xFD"
                         "\xD8\0\xDC\0\xDB\xFF\xDF\xFF")),
            "\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFD\U00010000\U0010FFFF");
}

TEST(XmlEncoding, BrokenUtf16HasNoUtf8) {
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\0")), std::nullopt);
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\xD8\0")), std::nullopt);
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\xD8\0\0a")), std::nullopt);
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\xD8\0\xD8\0")), std::nullopt);
  EXPECT_EQ(InUtf8(Bytes("\xFE\xFF\xDC\0\xD8\0")), std::nullopt);
}

}  // namespace
}  // namespace orv
