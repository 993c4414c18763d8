// The limits for property lists that are given to the parser.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "PropertyListFile.h"
#include "PropertyListLimits.h"

namespace orv {
namespace {

std::string Nested(int levels) {
  std::string text;
  for (int i = 0; i < levels; ++i) text += "<array>";
  for (int i = 0; i < levels; ++i) text += "</array>";
  return text;
}

std::string NestedInBinary(int levels) {
  BinaryList list;
  auto object = list.AddText("innermost");
  for (int i = 0; i < levels; ++i) object = list.AddArray({object});
  return list.File(object);
}

TEST(PropertyListLimits, XmlMayBe128LevelsDeep) {
  EXPECT_TRUE(WithinLimits(Nested(100)));
  EXPECT_TRUE(WithinLimits(Nested(128)));
  EXPECT_FALSE(WithinLimits(Nested(129)));
}

TEST(PropertyListLimits, BinaryMayBe128LevelsDeep) {
  EXPECT_TRUE(WithinLimits(NestedInBinary(100)));
  EXPECT_TRUE(WithinLimits(NestedInBinary(128)));
  EXPECT_FALSE(WithinLimits(NestedInBinary(129)));
}

TEST(PropertyListLimits, TagsSideBySideAddNoDepth) {
  std::string text = "<array>";
  for (int i = 0; i < 10'000; ++i) text += "<dict></dict><true/><array/>";
  EXPECT_TRUE(WithinLimits(text + "</array>"));
}

TEST(PropertyListLimits, ATextMayHaveFourMebibytes) {
  EXPECT_TRUE(WithinLimits(std::string(std::size_t{4} << 20, ' ')));
  EXPECT_FALSE(WithinLimits(std::string((std::size_t{4} << 20) + 1, ' ')));
}

TEST(PropertyListLimits, BinaryMayUnfoldToAsManyObjectsAsFitIntoAFile) {
  const auto unfolding = [](std::size_t times) {
    BinaryList list;
    const auto leaf = list.AddText("leaf");
    const auto hundred = list.AddArray(std::vector<BinaryList::Reference>(100, leaf));
    return list.File(list.AddArray(std::vector<BinaryList::Reference>(times, hundred)));
  };
  EXPECT_TRUE(WithinLimits(unfolding(1000)));
  EXPECT_FALSE(WithinLimits(unfolding(10'000)));
}

TEST(PropertyListLimits, BinaryShorterThanItsFixedPartsIsRefused) {
  EXPECT_FALSE(WithinLimits("bplist00"));
  EXPECT_FALSE(WithinLimits("bplist00" + std::string(31, '\0')));
}

TEST(PropertyListLimits, WhatNeverEndsIsRefused) {
  EXPECT_FALSE(WithinLimits("<plist><!-- "));
  EXPECT_FALSE(WithinLimits("<plist><![CDATA[ "));
  EXPECT_FALSE(WithinLimits("<plist"));
  EXPECT_FALSE(WithinLimits("<plist version=\">"));
}

TEST(PropertyListLimits, DeclarationsAreRefused) {
  EXPECT_FALSE(WithinLimits("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist/>"));
  EXPECT_FALSE(WithinLimits("<!ENTITY a \"b\"><plist/>"));
  EXPECT_TRUE(WithinLimits("<!DOCTYPE plist SYSTEM \"PropertyList.dtd\"><plist/>"));
}

TEST(PropertyListLimits, TheUsualHeadHidesNothingOfWhatFollows) {
  const std::string head =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
      "1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";
  EXPECT_TRUE(WithinLimits(head + "<plist/>"));
  EXPECT_TRUE(WithinLimits(head + Nested(128)));
  EXPECT_FALSE(WithinLimits(head + Nested(129)));
  EXPECT_FALSE(WithinLimits(head + "<!ENTITY a \"b\"><plist/>"));
}

}  // namespace
}  // namespace orv
