// Settings files as Foundation reads and writes them, in the folder that it gives its user.
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Folders.h"
#include "HeapGrowth.h"
#include "PrivateUser.h"
#include "PropertyListFile.h"
#include "SettingsFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Lt;
using testing::Optional;
using testing::StartsWith;
using trxtest::ReadBytes;
using trxtest::WriteBytes;

class SettingsFiles : public testing::Test {
 protected:
  SettingsFiles() {
    std::filesystem::remove_all(preferences_);
    std::filesystem::create_directory(preferences_);
  }

  std::int32_t Value(const char *key, std::int32_t defaultValue) const {
    std::int32_t result = 4711;
    GetSettingValue("TRX-SELVA", key, defaultValue, &result);
    return result;
  }

  // The names of all that is in the folder of settings files, hidden files included.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(preferences_)) {
      names.push_back(entry.path().filename());
    }
    return names;
  }

  const std::string preferences_ = trxtest::LibraryFolderOfUser() + "/Preferences";
  const std::string path_ = preferences_ + "/com.orvikaudio.TRX-SELVAautosetup.plist";
};

TEST_F(SettingsFiles, SettingsFilesLieInTheLibraryFolderThatThePlatformGivesTheUser) {
  EXPECT_THAT(LibraryFolder(), Optional(trxtest::LibraryFolderOfUser()));
  EXPECT_THAT(SettingsFilePath("TRX-SELVA"), Optional(path_));
  EXPECT_THAT(SettingsFilePath("TRX-Arden"),
              Optional(preferences_ + "/com.orvikaudio.TRX-Ardenautosetup.plist"));
}

TEST_F(SettingsFiles, SettingsFilesAreMadeAsXmlByTheFirstMerge) {
  EXPECT_EQ(Value("MaxLevel", 3), 3);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_THAT(ReadBytes(path_), StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
  EXPECT_THAT(ShownEntries(path_), ElementsAre("MaxLevel: integer 1"));
  EXPECT_EQ(Value("MaxLevel", 3), 1);
}

TEST_F(SettingsFiles, SettingsFilesLeaveNothingBesideThem) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  MergeSettingValue("TRX-SELVA", "Output2", -5);
  EXPECT_THAT(Names(), ElementsAre("com.orvikaudio.TRX-SELVAautosetup.plist"));
  EXPECT_EQ(Value("Output2", 0), -5);
}

TEST_F(SettingsFiles, SettingsFilesAreReplacedInOneStepNotChanged) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  const std::string before = preferences_ + "/as it was before";
  std::filesystem::create_hard_link(path_, before);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 2);
  EXPECT_THAT(ShownEntries(before), ElementsAre("MaxLevel: integer 1"));
  EXPECT_EQ(Value("MaxLevel", 3), 2);
}

TEST_F(SettingsFiles, SettingsFilesKeepForeignEntriesOfEveryType) {
  WriteBytes(path_, XmlList("<key>MaxLevel</key><integer>2</integer>"
                            "<key>Text</key><string>Gr\u00F6\u00DFe \u4F60 &amp; so</string>"
                            "<key>Real</key><real>0.5</real><key>Flag</key><true/>"
                            "<key>Date</key><date>2024-02-29T23:59:59Z</date>"
                            "<key>Data</key><data>AAEC/+8=</data>"
                            "<key>Big</key><integer>-9223372036854775808</integer>"
                            "<key>List</key><array><integer>2</integer><array/><false/></array>"
                            "<key>Dict</key><dict><key>x</key><string/></dict>"));
  MergeSettingValue("TRX-SELVA", "Output0", 4);
  EXPECT_THAT(
      ShownEntries(path_),
      ElementsAre("Big: integer -9223372036854775808", "Data: data <000102ffef>",
                  "Date: date 2024-02-29T23:59:59", "Dict: {x: text ''}", "Flag: true",
                  "List: [integer 2, [], false]", "MaxLevel: integer 2", "Output0: integer 4",
                  "Real: real 0.5", R"(Text: text 'Gr\xf6\xdfe \u4f60 & so')"));
}

TEST_F(SettingsFiles, SettingsFilesAreReadInBinaryAndBecomeXmlInAMerge) {
  BinaryList list;
  const auto level = list.AddText("MaxLevel");
  const auto two = list.AddInteger(2);
  const auto flag = list.AddText("Flag");
  const auto yes = list.Add("\x09");
  const auto text = list.AddText("Text");
  const auto characters = list.AddText("kept");
  WriteBytes(path_, list.File(list.AddDictionary({level, two, flag, yes, text, characters})));
  EXPECT_EQ(Value("MaxLevel", 3), 2);
  EXPECT_EQ(Value("Flag", 3), 1);
  MergeSettingValue("TRX-SELVA", "Output0", 4);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("Flag: true", "MaxLevel: integer 2",
                                               "Output0: integer 4", "Text: text 'kept'"));
}

TEST_F(SettingsFiles, WithoutADictionaryAtTheRootAreReplacedByTheNewEntry) {
  BinaryList array;
  const std::string binaryArray = array.File(array.AddArray({}));
  const std::string prologue = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  for (const std::string &contents :
       {prologue + "<plist version=\"1.0\"><array><integer>2</integer></array></plist>",
        prologue + "<plist version=\"1.0\"><string>x</string></plist>", binaryArray,
        std::string("no property list"), std::string(), std::string("bplist00")}) {
    WriteBytes(path_, contents);
    EXPECT_FALSE(ReadSettingsFile("TRX-SELVA").has_value()) << contents;
    EXPECT_EQ(Value("MaxLevel", 3), 3) << contents;
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_EQ(Value("MaxLevel", 3), 1) << contents;
  }
  EXPECT_THAT(ShownEntries(path_), ElementsAre("MaxLevel: integer 1"));
}

TEST_F(SettingsFiles, SettingsFilesAreNotWrittenWithoutTheFolderThatThePlatformMakes) {
  std::filesystem::remove(preferences_);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_EQ(Value("MaxLevel", 3), 3);
  EXPECT_FALSE(std::filesystem::exists(preferences_));
}

TEST_F(SettingsFiles, SettingsFilesThatCannotBeReplacedStayAndLeaveNothingBeside) {
  std::filesystem::create_directories(path_ + "/in the way");
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_EQ(Value("MaxLevel", 3), 3);
  EXPECT_TRUE(std::filesystem::exists(path_ + "/in the way"));
  EXPECT_THAT(Names(), ElementsAre("com.orvikaudio.TRX-SELVAautosetup.plist"));
}

TEST_F(SettingsFiles, SettingsFilesLeaveNothingBehindInMemory) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_THAT(HeapGrowth(2'000, [&] { Value("MaxLevel", 3); }), Lt(kNothingPerCall / 5));
  EXPECT_THAT(HeapGrowth(500, [] { MergeSettingValue("TRX-SELVA", "MaxLevel", 2); }),
              Lt(kNothingPerCall / 20));
}

}  // namespace
}  // namespace orv
