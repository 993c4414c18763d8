// Anything may be at the file's path: it is read or counts as missing, the host continues, and
// nothing is written to its standard error.
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::Optional;
using trxtest::BecomeOrdinaryUser;
using trxtest::ExpectQuietSuccess;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

std::string ValidXml() {
  return XmlList(
      "<key>MaxLevel</key><integer>2</integer><key>text</key><string>Gr\u00FC\u00DFe</string>"
      "<key>list</key><array><real>2.5</real><true/></array>"
      "<key>when</key><date>2024-02-29T12:00:00Z</date><key>data</key><data>AAEC</data>");
}

std::string ValidBinary() {
  BinaryList list;
  const auto level = list.AddText("MaxLevel");
  const auto two = list.AddInteger(2);
  const auto text = list.AddText("text");
  const auto unicode = list.Add("\x62" + std::string("\x00\xDF\x4F\x60", 4));
  const auto members = list.AddText("list");
  const auto real = list.Add("\x23" + BigEndianReal(2.5));
  const auto array = list.AddArray({real, two, unicode});
  const auto inner = list.AddText("inner");
  const auto dictionary = list.AddDictionary({text, real, level, array});
  const auto when = list.AddText("when");
  const auto date = list.Add("\x33" + BigEndianReal(730900000));
  const auto data = list.AddText("data");
  const auto bytes = list.Add(std::string("\x43\0\1\2", 4));
  const auto reference = list.AddText("reference");
  const auto uid = list.Add("\x80\x07");
  return list.File(list.AddDictionary({level, two, text, unicode, members, array, inner, dictionary,
                                       when, date, data, bytes, reference, uid}));
}

class PropertyListReading : public testing::Test {
 protected:
  // A file with these bytes counts as missing, and the process continues silently.
  void ExpectMissing(const std::string &contents) {
    WriteBytes(path_, contents);
    ExpectMissing();
  }

  void ExpectMissing() {
    ExpectQuietSuccess([this] { EXPECT_FALSE(PropertyList::ReadFile(path_).has_value()); });
  }

  void ExpectMaxLevel(std::int32_t value, const std::string &contents) {
    WriteBytes(path_, contents);
    ExpectQuietSuccess([&] {
      const auto list = PropertyList::ReadFile(path_);
      ASSERT_TRUE(list);
      EXPECT_THAT(list->IntegerForKey("MaxLevel"), Optional(value));
    });
  }

  // Reads the file, changes it and writes it again, as the library does with any file it can read.
  void ReadAndMerge() const {
    const auto list = PropertyList::ReadFile(path_);
    if (!list) return;
    list->IntegerForKey("MaxLevel");
    SetMaxLevel(path_, 1);
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_ / "settings.plist";
};

TEST_F(PropertyListReading, AMissingFileIsMissing) { ExpectMissing(); }

TEST_F(PropertyListReading, AFileInAMissingFolderIsMissing) {
  ExpectQuietSuccess([this] {
    EXPECT_FALSE(PropertyList::ReadFile(folder_ / "nowhere/settings.plist").has_value());
  });
}

TEST_F(PropertyListReading, AFolderInThePlaceIsMissing) {
  ASSERT_EQ(mkdir(path_.c_str(), 0700), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, ASocketInThePlaceIsMissing) {
  ASSERT_EQ(mknod(path_.c_str(), S_IFSOCK | 0600, 0), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, ANamedPipeInThePlaceIsMissingAndDoesNotBlock) {
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, ADeviceInThePlaceIsMissing) {
  ASSERT_EQ(symlink("/dev/zero", path_.c_str()), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, ALinkToAPropertyListIsRead) {
  WriteBytes(folder_ / "elsewhere.plist", ValidXml());
  ASSERT_EQ(symlink("elsewhere.plist", path_.c_str()), 0);
  const auto list = PropertyList::ReadFile(path_);
  ASSERT_TRUE(list);
  EXPECT_THAT(list->IntegerForKey("MaxLevel"), Optional(2));
}

TEST_F(PropertyListReading, ALinkInARingIsMissing) {
  ASSERT_EQ(symlink("settings.plist", path_.c_str()), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, AFileThatMayNotBeReadIsMissing) {
  WriteBytes(path_, ValidXml());
  ASSERT_EQ(chmod(path_.c_str(), 0), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    EXPECT_FALSE(PropertyList::ReadFile(path_).has_value());
  });
}

TEST_F(PropertyListReading, AnEmptyFileIsMissing) { ExpectMissing(""); }

TEST_F(PropertyListReading, BytesThatAreNoPropertyListAreMissing) {
  ExpectMissing("MaxLevel = 2\n");
  ExpectMissing(std::string(4096, '\0'));
  ExpectMissing("{ MaxLevel = 2; }");
  ExpectMissing("{\"MaxLevel\": 2}");
  ExpectMissing("\xFF\xFE<\0p\0l\0i\0s\0t\0>\0");
}

TEST_F(PropertyListReading, ARootThatIsNoDictionaryIsMissing) {
  const auto document = [](const std::string &root) { return "<plist>" + root + "</plist>"; };
  ExpectMissing(document("<array><integer>2</integer></array>"));
  ExpectMissing(document("<string>MaxLevel</string>"));
  ExpectMissing(document("<integer>2</integer>"));
  ExpectMissing(document("<true/>"));
  ExpectMissing("<plist/>");
  ExpectMissing("<plist></plist>");

  BinaryList list;
  const auto text = list.AddText("MaxLevel");
  const auto array = list.AddArray({text});
  ExpectMissing(list.File(array));
  ExpectMissing(list.File(text));
}

TEST_F(PropertyListReading, ADictionaryWithoutEntriesIsRead) {
  for (const std::string contents : {"<plist><dict/></plist>", "<plist><dict></dict></plist>"}) {
    WriteBytes(path_, contents);
    EXPECT_TRUE(PropertyList::ReadFile(path_).has_value()) << contents;
  }
}

TEST_F(PropertyListReading, XmlCutAtAnyByteIsMissingAsLongAsAnEntryIsCut) {
  const std::string whole = ValidXml();
  const std::size_t complete = whole.find("</dict>\n</plist>") + std::string("</dict>").size();
  ExpectQuietSuccess([&] {
    for (std::size_t size = 0; size < whole.size(); ++size) {
      WriteBytes(path_, whole.substr(0, size));
      const auto list = PropertyList::ReadFile(path_);
      if (size < complete) {
        EXPECT_FALSE(list.has_value()) << size;
      } else if (list) {
        EXPECT_THAT(list->IntegerForKey("MaxLevel"), Optional(2)) << size;
      }
    }
  });
}

TEST_F(PropertyListReading, BinaryCutAtAnyByteIsMissing) {
  const std::string whole = ValidBinary();
  ExpectQuietSuccess([&] {
    for (std::size_t size = 0; size < whole.size(); ++size) {
      WriteBytes(path_, whole.substr(0, size));
      EXPECT_FALSE(PropertyList::ReadFile(path_).has_value()) << size;
    }
  });
}

TEST_F(PropertyListReading, TheWholeFilesThatAreCutAboveAreRead) {
  ExpectMaxLevel(2, ValidXml());
  ExpectMaxLevel(2, ValidBinary());
}

TEST_F(PropertyListReading, XmlNestedTooDeepIsMissing) {
  for (const int levels : {1'000'000, 250'000}) {
    std::string open;
    for (int i = 0; i < levels; ++i) open += "<array>";
    ExpectMissing("<plist>" + open);
    ExpectMissing("<plist><dict><key>MaxLevel</key><integer>2</integer><key>a</key>" + open);
  }
}

TEST_F(PropertyListReading, ClosedXmlNestedTooDeepIsMissing) {
  constexpr int kLevels = 150'000;
  std::string open;
  std::string close;
  for (int i = 0; i < kLevels; ++i) open += "<array>";
  for (int i = 0; i < kLevels; ++i) close += "</array>";
  ExpectMissing(XmlList("<key>a</key>" + open + close));
}

// Tags that only seem to close something must not allow deeper nesting.
TEST_F(PropertyListReading, NestingCannotBeHiddenBehindTagsThatAreNone) {
  constexpr int kLevels = 100'000;
  std::string open;
  std::string close;
  std::string fake;
  for (int i = 0; i < kLevels; ++i) open += "<array>";
  for (int i = 0; i < kLevels; ++i) close += "</array>";
  for (int i = 0; i < kLevels; ++i) fake += "</a>";
  const std::string deep = "<dict><key>a</key>" + open + close + "</dict></plist>";
  const std::vector<std::pair<const char *, std::string>> disguises = {
      {"before the root", fake + "<plist>" + deep},
      {"in an instruction", "<?x > " + fake + "?><plist>" + deep},
      {"in quotes in an instruction", "<?x \"?>" + fake + "\"?><plist>" + deep},
      {"in a comment", "<!-- " + fake + "--><plist>" + deep},
      {"in a comment that seems to end at once", "<!-->" + fake + "--><plist>" + deep},
      {"in a comment that seems to end soon", "<!--->" + fake + "--><plist>" + deep},
      {"in character data", "<![CDATA[" + fake + "]]><plist>" + deep},
      {"in a document type", "<!DOCTYPE plist \"" + fake + "\"><plist>" + deep},
      {"in a document type, single quotes", "<!DOCTYPE plist '>" + fake + "'><plist>" + deep},
      {"in an attribute", "<plist x=\">" + fake + "\">" + deep},
      {"in an attribute, single quotes", "<plist x='>" + fake + "'>" + deep},
      {"in a text", "<plist><string>" + fake + "</string>" + deep},
      {"in an instruction in a text",
       "<plist><dict><key>b</key><string><?x > " + fake + "?></string></dict>" + deep},
  };
  for (const auto &[place, contents] : disguises) {
    SCOPED_TRACE(place);
    ExpectMissing(contents);
  }
}

TEST_F(PropertyListReading, BinaryNestedTooDeepIsMissing) {
  for (const int levels : {1'000'000, 200'000}) {
    BinaryList list;
    auto value = list.AddInteger(5);
    for (int level = 0; level < levels; ++level) value = list.Add("\xA1" + BigEndian(value, 4));
    const auto key = list.AddText("a");
    ExpectMissing(list.File(list.AddDictionary({key, value})));
  }
}

TEST_F(PropertyListReading, SharedReferencesThatUnfoldWithoutBoundAreMissing) {
  BinaryList list;
  auto value = list.AddText("again and again");
  for (int level = 0; level < 60; ++level) value = list.AddArray({value, value});
  const auto key = list.AddText("a");
  ExpectMissing(list.File(list.AddDictionary({key, value})));

  BinaryList wide;
  auto few = wide.AddText("again and again");
  for (int level = 0; level < 6; ++level) {
    few = wide.AddArray(std::vector<BinaryList::Reference>(100, few));
  }
  const auto name = wide.AddText("a");
  ExpectMissing(wide.File(wide.AddDictionary({name, few})));
}

// The size of a count is itself a field that can be wrong.
TEST_F(PropertyListReading, UnfoldingCannotBeHiddenBehindCountsOfOddSize) {
  for (const char size : {'\x10', '\x13', '\x14', '\x15', '\x1F', '\x23'}) {
    SCOPED_TRACE(static_cast<int>(size));
    BinaryList list;
    auto value = list.AddText("again and again");
    for (int level = 0; level < 60; ++level) {
      const std::string reference = BigEndian(value, 4);
      const unsigned width = size == '\x10' ? 1 : size == '\x13' ? 8 : 16;
      value = list.Add(std::string("\xAF") + size + BigEndian(2, width) + reference + reference);
    }
    const auto key = list.AddText("a");
    ExpectMissing(list.File(list.AddDictionary({key, value})));
  }
}

TEST_F(PropertyListReading, AnObjectThatHoldsItselfIsMissing) {
  BinaryList array;
  const auto key = array.AddText("a");
  const auto self = array.AddArray({array.Next()});
  ExpectMissing(array.File(array.AddDictionary({key, self})));

  BinaryList dictionary;
  const auto name = dictionary.AddText("a");
  ExpectMissing(dictionary.File(dictionary.AddDictionary({name, dictionary.Next()})));

  BinaryList pair;
  const auto first = pair.AddArray({1});
  const auto second = pair.AddArray({first});
  ASSERT_EQ(second, 1U);
  const auto label = pair.AddText("a");
  ExpectMissing(pair.File(pair.AddDictionary({label, second})));
}

TEST_F(PropertyListReading, BinaryWithReferencesOutOfBoundsIsMissing) {
  BinaryList list;
  const auto key = list.AddText("a");
  ExpectMissing(list.File(list.AddDictionary({key, 77})));
  ExpectMissing(list.File(0x7FFFFFFF));
}

TEST_F(PropertyListReading, ABinaryKeyThatIsNoTextIsMissing) {
  BinaryList list;
  const auto number = list.AddInteger(5);
  ExpectMissing(list.File(list.AddDictionary({number, number})));
}

TEST_F(PropertyListReading, AFileOfMoreThanFourMebibytesIsMissing) {
  std::string large = ValidXml();
  large.resize((std::size_t{4} << 20) + 1, '\n');
  ExpectMissing(large);
  large.resize(std::size_t{4} << 20);
  ExpectMaxLevel(2, large);
}

TEST_F(PropertyListReading, AHugeFileWithHolesIsMissing) {
  WriteBytes(path_, ValidXml());
  ASSERT_EQ(truncate(path_.c_str(), off_t{1} << 40), 0);
  ExpectMissing();
}

TEST_F(PropertyListReading, EntitiesThatGrowWithoutBoundAreMissing) {
  std::string declarations = "<!ENTITY e0 \"again\">";
  for (int i = 1; i < 60; ++i) {
    const std::string before = "&e" + std::to_string(i - 1) + ";";
    declarations += "<!ENTITY e" + std::to_string(i) + " \"" + before + before + "\">";
  }
  ExpectMissing("<!DOCTYPE plist [" + declarations +
                "]><plist><dict><key>a</key><string>&e59;</string></dict></plist>");
}

TEST_F(PropertyListReading, ADocumentTypeWithDeclarationsOfItsOwnIsMissing) {
  ExpectMissing(
      "<!DOCTYPE plist [<!ENTITY secret SYSTEM \"/etc/passwd\">]>"
      "<plist><dict><key>a</key><string>&secret;</string></dict></plist>");
  ExpectMissing(
      "<!DOCTYPE plist []><plist><dict><key>MaxLevel</key><integer>2</integer></dict></plist>");
}

TEST_F(PropertyListReading, AnEntityThatIsNotDeclaredIsMissing) {
  ExpectMissing(XmlList("<key>a</key><string>&nothing;</string>"));
  ExpectMissing(XmlList("<key>a</key><string>&;</string>"));
}

TEST_F(PropertyListReading, TagsInCommentsAreNone) {
  std::string tags;
  for (int i = 0; i < 1000; ++i) tags += "<array><dict \">";
  ExpectMaxLevel(2, "<!-- " + tags + " --><plist><!-- " + tags + " --><dict><key>MaxLevel</key>" +
                        "<!-- <key>MaxLevel</key><integer>9</integer> " + tags +
                        " --><integer>2</integer></dict></plist><!-- " + tags + " -->");
}

TEST_F(PropertyListReading, TagsInCharacterDataAreNone) {
  std::string tags;
  for (int i = 0; i < 1000; ++i) tags += "<array></dict>\"";
  ExpectMaxLevel(2, XmlList("<key>a</key><string><![CDATA[" + tags +
                            "<key>MaxLevel</key><integer>9</integer>]]></string>"
                            "<key>MaxLevel</key><integer>2</integer>"));
}

TEST_F(PropertyListReading, XmlWithoutPrologueIsRead) {
  ExpectMaxLevel(2, "<plist><dict><key>MaxLevel</key><integer>2</integer></dict></plist>");
}

TEST_F(PropertyListReading, RandomBytesBehindTheBinaryHeaderNeverHarm) {
  ExpectQuietSuccess([this] {
    std::mt19937 random(20);
    for (int i = 0; i < 1000; ++i) {
      std::string bytes = "bplist00";
      const std::size_t size = random() % 300;
      while (bytes.size() < size) bytes += static_cast<char>(random() & 0xFF);
      WriteBytes(path_, bytes);
      ReadAndMerge();
    }
  });
}

TEST_F(PropertyListReading, ABinaryListWithFlippedBytesNeverHarms) {
  ExpectQuietSuccess([this] {
    const std::string valid = ValidBinary();
    std::mt19937 random(21);
    for (int i = 0; i < 4000; ++i) {
      std::string bytes = valid;
      for (unsigned flips = 1 + random() % 4; flips > 0; --flips) {
        bytes[8 + random() % (bytes.size() - 8)] = static_cast<char>(random() & 0xFF);
      }
      WriteBytes(path_, bytes);
      ReadAndMerge();
    }
  });
}

TEST_F(PropertyListReading, EveryBitOfABinaryTrailerMayBeWrong) {
  ExpectQuietSuccess([this] {
    const std::string valid = ValidBinary();
    for (std::size_t bit = 0; bit < 32 * 8; ++bit) {
      std::string bytes = valid;
      char &byte = bytes[bytes.size() - 32 + bit / 8];
      byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << bit % 8));
      WriteBytes(path_, bytes);
      ReadAndMerge();
    }
  });
}

TEST_F(PropertyListReading, AnXmlListWithFlippedBytesNeverHarms) {
  ExpectQuietSuccess([this] {
    const std::string valid = ValidXml();
    const std::string marks = "<>/\"'!?-[]& \n\t";
    std::mt19937 random(22);
    for (int i = 0; i < 3000; ++i) {
      std::string bytes = valid;
      for (unsigned flips = 1 + random() % 4; flips > 0; --flips) {
        char &byte = bytes[random() % bytes.size()];
        byte =
            random() % 2 == 0 ? marks[random() % marks.size()] : static_cast<char>(random() & 0xFF);
      }
      WriteBytes(path_, bytes);
      ReadAndMerge();
    }
  });
}

}  // namespace
}  // namespace orv
