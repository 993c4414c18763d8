// The settings file of a model: its path, the merge of one value, the reading with a default.
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "ChildProcess.h"
#include "File.h"
#include "PropertyListFile.h"
#include "SettingsFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::StrEq;
using trxtest::BecomeUserWithoutAccount;
using trxtest::ExpectQuietSuccess;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

class SettingsFile : public testing::Test {
 protected:
  void SetUp() override { setenv("XDG_CONFIG_HOME", folder_.Path().c_str(), 1); }
  void TearDown() override { unsetenv("XDG_CONFIG_HOME"); }

  // Makes a settings file of the model with these bytes.
  void LeaveFile(const std::string &contents) const {
    std::filesystem::create_directories(preferences_);
    WriteBytes(path_, contents);
  }

  // A result variable with another value before the call.
  static std::int32_t Value(const char *key, std::int32_t defaultValue) {
    std::int32_t result = 4711;
    GetSettingValue("TRX-SELVA", key, defaultValue, &result);
    return result;
  }

  const TemporaryFolder folder_;
  const std::string preferences_ = folder_ / "orvikaudio/Preferences";
  const std::string path_ = preferences_ + "/com.orvikaudio.TRX-SELVAautosetup.plist";
};

TEST_F(SettingsFile, ASettingsFileHasAPathForEachModel) {
  setenv("XDG_CONFIG_HOME", "/config", 1);
  EXPECT_THAT(
      SettingsFilePath("TRX-Arden"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-Ardenautosetup.plist")));
  EXPECT_THAT(
      SettingsFilePath("TRX-VOLT"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-VOLTautosetup.plist")));
  EXPECT_THAT(
      SettingsFilePath("TRX-HALDEN"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-HALDENautosetup.plist")));
  EXPECT_THAT(
      SettingsFilePath("TRX-LUMEN"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-LUMENautosetup.plist")));
  EXPECT_THAT(
      SettingsFilePath("TRX-MORROW"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-MORROWautosetup.plist")));
  EXPECT_THAT(
      SettingsFilePath("TRX-SELVA"),
      Optional(StrEq("/config/orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist")));
}

TEST_F(SettingsFile, ASettingsFileFollowsTheLibraryFolderAtEachCall) {
  const TemporaryFolder other;
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  setenv("XDG_CONFIG_HOME", other.Path().c_str(), 1);
  EXPECT_EQ(Value("MaxLevel", 3), 3);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 2);
  EXPECT_EQ(Value("MaxLevel", 3), 2);
  setenv("XDG_CONFIG_HOME", folder_.Path().c_str(), 1);
  EXPECT_EQ(Value("MaxLevel", 3), 1);
}

TEST_F(SettingsFile, ASettingsFileIsMadeWithItsFoldersByTheFirstMerge) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("MaxLevel: integer 1"));
  EXPECT_THAT(folder_.Names(), ElementsAre("orvikaudio"));
  for (const std::string &made : {folder_ / "orvikaudio", preferences_}) {
    struct stat status = {};
    ASSERT_EQ(stat(made.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U) << made;
  }
}

// A file server's lease, which blocks the first process that opens the file elsewhere.
TEST_F(SettingsFile, ASettingsFileIsLeftAsItIsWhileSomebodyHoldsALeaseOnIt) {
  const std::string before = XmlList("<key>Foreign</key><string>kept</string>");
  LeaveFile(before);
  const File holder(open(path_.c_str(), O_RDWR | O_CLOEXEC));
  ASSERT_TRUE(holder.IsOpen());
  // The signal that asks for the lease; one without effect.
  ASSERT_EQ(fcntl(holder.Descriptor(), F_SETSIG, SIGURG), 0);
  ASSERT_EQ(fcntl(holder.Descriptor(), F_SETLEASE, F_WRLCK), 0);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  ASSERT_EQ(fcntl(holder.Descriptor(), F_SETLEASE, F_UNLCK), 0);
  EXPECT_EQ(ReadBytes(path_), before);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("Foreign: text 'kept'", "MaxLevel: integer 1"));
}

TEST_F(SettingsFile, ASettingsFileIsNotMadeByReading) {
  EXPECT_FALSE(ReadSettingsFile("TRX-SELVA").has_value());
  EXPECT_EQ(Value("MaxLevel", 3), 3);
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(SettingsFile, ASettingsFileKeepsAllOtherEntriesInAMerge) {
  LeaveFile(
      XmlList("<key>MaxLevel</key><integer>2</integer>"
              "<key>Foreign</key><array><string>kept</string><real>0.5</real></array>"));
  MergeSettingValue("TRX-SELVA", "Output0", 4);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("Foreign: [text 'kept', real 0.5]",
                                               "MaxLevel: integer 2", "Output0: integer 4"));
  MergeSettingValue("TRX-SELVA", "MaxLevel", -1);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("Foreign: [text 'kept', real 0.5]",
                                               "MaxLevel: integer -1", "Output0: integer 4"));
}

TEST_F(SettingsFile, ASettingsFileBecomesXmlInAMerge) {
  LeaveFile(BinaryListOf("\x10\x05"));
  EXPECT_EQ(Value("a", 0), 5);
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  EXPECT_THAT(ShownEntries(path_), ElementsAre("MaxLevel: integer 1", "a: integer 5"));
}

TEST_F(SettingsFile, ASettingsFileThatIsNoDictionaryIsReplacedByTheNewEntry) {
  for (const std::string contents :
       {"<plist><array><integer>2</integer></array></plist>", "<plist><string>x</string></plist>",
        "no property list", "", "bplist00"}) {
    LeaveFile(contents);
    EXPECT_FALSE(ReadSettingsFile("TRX-SELVA").has_value()) << contents;
    EXPECT_EQ(Value("MaxLevel", 3), 3) << contents;
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_THAT(ShownEntries(path_), ElementsAre("MaxLevel: integer 1")) << contents;
  }
}

// A file beyond the limits may still be a list: it is not replaced.
TEST_F(SettingsFile, ASettingsFileThatIsMoreThanCanBeReadIsLeftAsItIs) {
  std::string deep;
  for (int i = 0; i < 200; ++i) deep += "<array>";
  for (int i = 0; i < 200; ++i) deep += "</array>";
  const std::string entry = "<key>MaxLevel</key><integer>2</integer>";
  for (const std::string &contents :
       {XmlList(entry + "<key>a</key><string>" + std::string(5'000'000, 'x') + "</string>"),
        XmlList(entry + "<key>a</key>" + deep),
        "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict>" + entry + "</dict></plist>"}) {
    LeaveFile(contents);
    EXPECT_EQ(Value("MaxLevel", 3), 3);
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_EQ(ReadBytes(path_), contents);
    EXPECT_EQ(Value("MaxLevel", 3), 3);
  }
}

std::string InUtf16(const std::string &ascii, bool isBigEndian) {
  std::string bytes;
  for (const char character : ascii) {
    if (isBigEndian) bytes += '\0';
    bytes += character;
    if (!isBigEndian) bytes += '\0';
  }
  return bytes;
}

TEST_F(SettingsFile, ASettingsFileInAnotherEncodingIsReadAndKept) {
  const std::string list =
      "<plist version=\"1.0\"><dict><key>Foreign</key><string>kept</string>"
      "<key>MaxLevel</key><integer>2</integer></dict></plist>";
  const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>";
  for (const std::string &contents :
       {"\xEF\xBB\xBF" + list, "\xFE\xFF" + InUtf16(head + list, true),
        "\xFF\xFE" + InUtf16(head + list, false), InUtf16(head + list, true),
        InUtf16(head + list, false)}) {
    LeaveFile(contents);
    EXPECT_EQ(Value("MaxLevel", 3), 2);
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_THAT(ShownEntries(path_), ElementsAre("Foreign: text 'kept'", "MaxLevel: integer 1"));
  }
}

TEST_F(SettingsFile, ASettingsFileOfOneModelIsNotThatOfAnother) {
  MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
  MergeSettingValue("TRX-VOLT", "MaxLevel", 2);
  EXPECT_EQ(Value("MaxLevel", 3), 1);
  std::int32_t volt = 0;
  GetSettingValue("TRX-VOLT", "MaxLevel", 3, &volt);
  EXPECT_EQ(volt, 2);
}

TEST_F(SettingsFile, ASettingsFileGivesTheStoredValueInOrOutOfAnyRange) {
  LeaveFile(
      XmlList("<key>MaxLevel</key><integer>9</integer>"
              "<key>Output1</key><integer>-2147483648</integer>"
              "<key>Text</key><string>12</string><key>Flag</key><true/>"));
  EXPECT_EQ(Value("MaxLevel", 3), 9);
  EXPECT_EQ(Value("Output1", 0), -2147483647 - 1);
  EXPECT_EQ(Value("Text", 0), 12);
  EXPECT_EQ(Value("Flag", 0), 1);
}

TEST_F(SettingsFile, ASettingsFileGivesTheDefaultWhenTheEntryIsMissingOrNoInteger) {
  LeaveFile(
      XmlList("<key>MaxLevel</key><integer>2</integer><key>Text</key><string>x</string>"
              "<key>List</key><array/>"));
  EXPECT_EQ(Value("MidiChannel", 0), 0);
  EXPECT_EQ(Value("Output2", 5), 5);
  EXPECT_EQ(Value("Text", 3), 3);
  EXPECT_EQ(Value("List", -1), -1);
}

TEST_F(SettingsFile, ASettingsFileThatCannotBeWrittenStaysAsItWas) {
  std::filesystem::create_directories(path_);
  ExpectQuietSuccess([] {
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_EQ(Value("MaxLevel", 3), 3);
  });
  EXPECT_TRUE(std::filesystem::is_empty(path_));
}

TEST_F(SettingsFile, ASettingsFileWhoseFolderIsAFileIsNeitherReadNorWritten) {
  WriteBytes(folder_ / "orvikaudio", "a file");
  ExpectQuietSuccess([] {
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_EQ(Value("MaxLevel", 3), 3);
  });
  EXPECT_EQ(ReadBytes(folder_ / "orvikaudio"), "a file");
}

TEST_F(SettingsFile, ASettingsFileOfAUserWithoutLibraryFolderIsNeitherReadNorWritten) {
  ExpectQuietSuccess([] {
    BecomeUserWithoutAccount();
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");
    EXPECT_EQ(SettingsFilePath("TRX-SELVA"), std::nullopt);
    EXPECT_FALSE(ReadSettingsFile("TRX-SELVA").has_value());
    MergeSettingValue("TRX-SELVA", "MaxLevel", 1);
    EXPECT_EQ(Value("MaxLevel", 3), 3);
  });
}

}  // namespace
}  // namespace orv
