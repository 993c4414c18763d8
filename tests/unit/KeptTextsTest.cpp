// The set of kept texts, with a platform that sometimes has no text.
#include <string_view>

#include <gtest/gtest.h>

#include "KeptTexts.h"

namespace orv {
namespace {

bool hasMemory = true;

class TextWithMemory {
 public:
  explicit TextWithMemory(std::string_view characters)
      : reference_(hasMemory ? reinterpret_cast<ORVStringRef>(characters.data()) : nullptr) {}
  ORVStringRef Reference() const { return reference_; }

 private:
  ORVStringRef reference_;
};

TEST(KeptTexts, NoTextIsKeptThatThePlatformCouldNotMake) {
  // Lives as long as the process, because all texts are kept.
  static KeptTexts<TextWithMemory> texts;
  hasMemory = false;
  EXPECT_EQ(texts.Keep("a text"), nullptr);
  hasMemory = true;
  const ORVStringRef text = texts.Keep("a text");
  EXPECT_NE(text, nullptr);
  hasMemory = false;
  EXPECT_EQ(texts.Keep("a text"), text);
  EXPECT_EQ(texts.Keep("another"), nullptr);
  hasMemory = true;
}

}  // namespace
}  // namespace orv
