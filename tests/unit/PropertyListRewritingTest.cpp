// Lists that are read and written again, where the two forms are not equivalent.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

void AppendNumber(std::string &bytes, std::uint64_t number, unsigned size) {
  for (unsigned i = size; i > 0; --i) bytes += static_cast<char>(number >> (i - 1) * 8 & 0xFF);
}

// A binary list of these objects, the first of which is the root; references have one byte.
std::string ListOf(const std::vector<std::string> &objects) {
  std::string bytes = "bplist00";
  std::vector<std::uint64_t> offsets;
  for (const std::string &object : objects) {
    offsets.push_back(bytes.size());
    bytes += object;
  }
  const std::uint64_t table = bytes.size();
  for (const std::uint64_t offset : offsets) AppendNumber(bytes, offset, 8);
  bytes += std::string(6, '\0') + '\x08' + '\x01';
  AppendNumber(bytes, objects.size(), 8);
  AppendNumber(bytes, 0, 8);
  AppendNumber(bytes, table, 8);
  return bytes;
}

// Data of this many bytes.
std::string Data(std::uint32_t size, char filling) {
  std::string object = "\x4F\x12";
  AppendNumber(object, size, 4);
  return object + std::string(size, filling);
}

class PropertyListRewriting : public testing::Test {
 protected:
  void Write(const std::string &bytes) const { WriteBytes(path_, bytes); }

  std::optional<PropertyList> Read() const { return PropertyList::ReadFile(path_); }

  TemporaryFolder folder_;
  const std::string path_ = folder_ / "list.plist";
};

TEST_F(PropertyListRewriting, ALeafSharedByManyReferencesCountsOnceForEach) {
  // {"a": [blob, blob, blob, blob, blob]} with one blob of a million bytes.
  const std::string root = "\xD1\x01\x02";
  const std::string key =
      "\x51"
      "a";
  const std::string fourTimes = "\xA4\x03\x03\x03\x03";
  const std::string fiveTimes = "\xA5\x03\x03\x03\x03\x03";
  Write(ListOf({root, key, fourTimes, Data(1'000'000, 'x')}));
  EXPECT_TRUE(Read().has_value());
  Write(ListOf({root, key, fiveTimes, Data(1'000'000, 'x')}));
  EXPECT_FALSE(Read().has_value());
}

TEST_F(PropertyListRewriting, WhatWouldBeTooLargeToReadAgainDoesNotReplaceWhatCanBeRead) {
  const std::string before = ListOf({"\xD1\x01\x02",
                                     "\x51"
                                     "a",
                                     Data(3'500'000, 'x')});
  Write(before);
  ASSERT_TRUE(Read().has_value());
  EXPECT_FALSE(SetMaxLevel(path_, 1));
  EXPECT_EQ(ReadBytes(path_), before);
  EXPECT_EQ(folder_.Names(), std::vector<std::string>{"list.plist"});
}

TEST_F(PropertyListRewriting, WhatWouldBeTooDeepToReadAgainDoesNotReplaceWhatCanBeRead) {
  // {"a": [[[...]]]}, which needs two levels less in the binary form than in XML.
  std::vector<std::string> objects = {"\xD1\x01\x02",
                                      "\x51"
                                      "a"};
  constexpr int kArrays = 126;
  for (int i = 0; i < kArrays; ++i) {
    objects.push_back('\xA1' + std::string(1, static_cast<char>(objects.size() + 1)));
  }
  objects.emplace_back("\x51x");
  const std::string before = ListOf(objects);
  Write(before);
  ASSERT_TRUE(Read().has_value());
  EXPECT_FALSE(SetMaxLevel(path_, 1));
  EXPECT_EQ(ReadBytes(path_), before);
}

TEST_F(PropertyListRewriting, ACharacterThatXmlCannotHoldIsReplaced) {
  Write(ListOf({"\xD1\x01\x02",
                "\x51"
                "a",
                "\x54x\x01\ty"}));
  ASSERT_TRUE(SetMaxLevel(path_, 1));
  EXPECT_NE(ReadBytes(path_).find("<string>x\uFFFD\ty</string>"), std::string::npos);
}

// Other XML readers would turn a plain one into a line feed.
TEST_F(PropertyListRewriting, ACarriageReturnIsWrittenAsWhatReadersOfXmlTakeItFor) {
  for (const std::string before :
       {"<string>one\rtwo\r\nthree</string>", "<string>one&#13;two&#13;\nthree</string>",
        "<string>one&#xD;two&#xd;\nthree</string>"}) {
    Write(XmlList("<key>a\rb</key>" + before));
    ASSERT_TRUE(SetMaxLevel(path_, 1));
    EXPECT_NE(ReadBytes(path_).find("<string>one&#13;two&#13;\nthree</string>"), std::string::npos);
    EXPECT_NE(ReadBytes(path_).find("<key>a&#13;b</key>"), std::string::npos);
    ASSERT_TRUE(SetMaxLevel(path_, 2));
    EXPECT_NE(ReadBytes(path_).find("<string>one&#13;two&#13;\nthree</string>"), std::string::npos);
    EXPECT_EQ(Read()->TextForKey("a\rb"), "one\rtwo\r\nthree");
  }
}

TEST_F(PropertyListRewriting, ALinkInTheFilesPlaceStaysAndItsFileIsReplaced) {
  const std::string file = folder_ / "elsewhere.plist";
  WriteBytes(file, "not a list");
  ASSERT_EQ(symlink("elsewhere.plist", path_.c_str()), 0);
  ASSERT_TRUE(SetMaxLevel(path_, 2));
  struct stat status = {};
  ASSERT_EQ(lstat(path_.c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  const auto written = PropertyList::ReadFile(file);
  ASSERT_TRUE(written.has_value());
  EXPECT_EQ(written->IntegerForKey("MaxLevel"), 2);
}

}  // namespace
}  // namespace orv
