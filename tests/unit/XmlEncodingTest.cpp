// XML in UTF-16, and with byte order marks.
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "XmlEncoding.h"

namespace orv {
namespace {

using std::string_literals::operator""s;

TEST(XmlEncoding, OfOtherTextsIsLeftAsItIs) {
  for (const std::string &text :
       {""s, "<"s, "<plist/>"s, "bplist00\0\1"s, "\xEF\xBB<"s, "<\xFF\xFE"s, "\0"s}) {
    EXPECT_EQ(InUtf8(text), text);
  }
}

TEST(XmlEncoding, LosesTheMarkOfUtf8) { EXPECT_EQ(InUtf8("\xEF\xBB\xBF<a/>"), "<a/>"); }

TEST(XmlEncoding, OfUtf16BecomesUtf8) {
  EXPECT_EQ(InUtf8("\xFE\xFF\0<\0a\0/\0>"s), "<a/>");
  EXPECT_EQ(InUtf8("\xFF\xFE<\0a\0/\0>\0"s), "<a/>");
  EXPECT_EQ(InUtf8("\0<\0a\0/\0>"s), "<a/>");
  EXPECT_EQ(InUtf8("<\0a\0/\0>\0"s), "<a/>");
  EXPECT_EQ(InUtf8("\xFE\xFF"s), "");
}

TEST(XmlEncoding, KeepsCharactersOfEveryLength) {
  EXPECT_EQ(InUtf8("\xFE\xFF\0\x7F\0\x80\x07\xFF\x08\0\xD7\xFF\xE0\0\xFF\xFD"
                   "\xD8\0\xDC\0\xDB\xFF\xDF\xFF"s),
            "\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFD\U00010000\U0010FFFF");
}

TEST(XmlEncoding, ThatIsNoProperUtf16IsNone) {
  EXPECT_EQ(InUtf8("\xFE\xFF\0"s), std::nullopt);
  EXPECT_EQ(InUtf8("\xFE\xFF\xD8\0"s), std::nullopt);
  EXPECT_EQ(InUtf8("\xFE\xFF\xD8\0\0a"s), std::nullopt);
  EXPECT_EQ(InUtf8("\xFE\xFF\xD8\0\xD8\0"s), std::nullopt);
  EXPECT_EQ(InUtf8("\xFE\xFF\xDC\0\xD8\0"s), std::nullopt);
}

}  // namespace
}  // namespace orv
