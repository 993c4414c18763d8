// The settings file: its contents, what it survives, what is read from it. Tested with the boost
// level: all settings are stored in the same way.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "../Acceptance.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

const Lines kOnlyTheSelvaFile = {"Preferences/com.orvikaudio.TRX-SELVAautosetup.plist"};

class SettingsFile : public Acceptance {
 protected:
  std::string SelvaPath() { return rig_->SettingsFile("TRX-SELVA"); }

  std::string ContentsWithoutBlanks() {
    std::ifstream file(SelvaPath(), std::ios::binary);
    std::string contents{std::istreambuf_iterator<char>(file), {}};
    std::erase_if(contents, [](char c) { return c == '\n' || c == '\t' || c == ' '; });
    return contents;
  }

  static std::int32_t CurrentLevel() {
    std::int32_t index = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &index), kSuccess);
    return index;
  }

  std::int32_t LevelReadFrom(const std::string &value) {
    PutSettings("TRX-SELVA", "<key>MaxLevel</key>" + value);
    return CurrentLevel();
  }
};

TEST_F(SettingsFile, ASettingsFileDoesNotExistUntilALevelIsSetAndThenHoldsOneEntry) {
  EXPECT_EQ(CurrentLevel(), 3);
  EXPECT_EQ(LibraryListing(), Lines());
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(LibraryListing(), kOnlyTheSelvaFile);
  EXPECT_EQ(ContentsWithoutBlanks(),
            "<?xmlversion=\"1.0\"encoding=\"UTF-8\"?>"
            "<!DOCTYPEplistPUBLIC\"-//Apple//DTDPLIST1.0//EN\""
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"
            "<plistversion=\"1.0\"><dict><key>MaxLevel</key><integer>1</integer></dict></plist>");
  EXPECT_EQ(CurrentLevel(), 1);
}

TEST_F(SettingsFile, ASettingsFileKeepsWhatOthersPutIntoIt) {
  PutSettings("TRX-SELVA",
              "<key>Foreign</key><string>left &amp; right \xC3\xBC</string>"
              "<key>MaxLevel</key><integer>2</integer>"
              "<key>Output1</key><integer>6</integer>"
              "<key>Flag</key><true/>"
              "<key>Bytes</key><data>AQID</data>"
              "<key>Negative</key><integer>-5</integer>"
              "<key>Nested</key><dict><key>List</key>"
              "<array><integer>1</integer><string>two</string></array></dict>");
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  const std::string contents = ContentsWithoutBlanks();
  for (const char *kept :
       {"<key>Foreign</key><string>left&amp;right\xC3\xBC</string>",
        "<key>Output1</key><integer>6</integer>", "<key>Flag</key><true/>",
        "<key>Bytes</key><data>AQID</data>", "<key>Negative</key><integer>-5</integer>",
        "<key>Nested</key><dict><key>List</key><array><integer>1</integer><string>two</string>"
        "</array></dict>",
        "<key>MaxLevel</key><integer>0</integer>"}) {
    EXPECT_NE(contents.find(kept), std::string::npos) << kept << " in " << contents;
  }
  EXPECT_EQ(contents.find("MaxLevel"), contents.rfind("MaxLevel"));
}

TEST_F(SettingsFile, AnArrayAtItsRootCountsAsMissingAndIsReplaced) {
  PutSettingsFile("TRX-SELVA",
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><array>"
                  "<string>MaxLevel</string><integer>1</integer></array></plist>");
  EXPECT_EQ(CurrentLevel(), 3);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>2</integer>"}}));
}

TEST_F(SettingsFile, ContentsThatCannotBeReadCountAsMissingAndAreReplaced) {
  for (const std::string contents :
       {"", "\n", "no property list",
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Max", "bplist00\x01\x02\x03",
        "<plist version=\"1.0\"><string>MaxLevel</string></plist>"}) {
    PutSettingsFile("TRX-SELVA", contents);
    EXPECT_EQ(CurrentLevel(), 3) << contents;
    ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess) << contents;
    EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>2</integer>"}}))
        << contents;
  }
}

TEST_F(SettingsFile, ASettingsFileIsReadInTheBinaryEncodingAndTurnedBackIntoXml) {
  // {"MaxLevel": 2, "A": 5}
  constexpr char kBinary[] =
      "bplist00"
      "\xD2\x01\x02\x03\x04"
      "\x58MaxLevel"
      "\x51"
      "A"
      "\x10\x02"
      "\x10\x05"
      "\x08\x0D\x16\x18\x1A"
      "\0\0\0\0\0\0\x01\x01"
      "\0\0\0\0\0\0\0\x05"
      "\0\0\0\0\0\0\0\0"
      "\0\0\0\0\0\0\0\x1C";
  PutSettingsFile("TRX-SELVA", std::string(kBinary, sizeof kBinary - 1));
  EXPECT_EQ(CurrentLevel(), 2);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"),
            (Settings{{"MaxLevel", "<integer>1</integer>"}, {"A", "<integer>5</integer>"}}));
}

TEST_F(SettingsFile, AnotherKeyOrAnotherModelsFileDoesNotAnswer) {
  PutSettings("TRX-SELVA",
              "<key>Maxlevel</key><integer>0</integer>"
              "<key>MaxLevel2</key><integer>1</integer>");
  PutSettings("TRX-VOLT", "<key>MaxLevel</key><integer>1</integer>");
  EXPECT_EQ(CurrentLevel(), 3);
}

TEST_F(SettingsFile, NumbersOfOtherKindsAndTextsThatSpellOneAreRead) {
  EXPECT_EQ(LevelReadFrom("<integer>0</integer>"), 0);
  EXPECT_EQ(LevelReadFrom("<integer>-2</integer>"), -2);
  EXPECT_EQ(LevelReadFrom("<integer>4294967297</integer>"), 1);
  EXPECT_EQ(LevelReadFrom("<true/>"), 1);
  EXPECT_EQ(LevelReadFrom("<false/>"), 0);
  EXPECT_EQ(LevelReadFrom("<real>2.9</real>"), 2);
  EXPECT_EQ(LevelReadFrom("<real>-1.9</real>"), -1);
  EXPECT_EQ(LevelReadFrom("<string>2</string>"), 2);
  EXPECT_EQ(LevelReadFrom("<string>-7</string>"), -7);
}

TEST_F(SettingsFile, AnythingElseCountsAsAMissingEntry) {
  for (const char *value :
       {"<string></string>", "<string>two</string>", "<string>2 </string>", "<string>2.0</string>",
        "<data>Ag==</data>", "<date>2001-01-01T00:00:02Z</date>",
        "<array><integer>2</integer></array>",
        "<dict><key>MaxLevel</key><integer>2</integer></dict>"}) {
    EXPECT_EQ(LevelReadFrom(value), 3) << value;
  }
}

TEST_F(SettingsFile, AChangeByAnotherProcessIsSeenByTheVeryNextCall) {
  const auto host = rig_->StartHost();
  for (const std::string index : {"0", "2", "1"}) {
    ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 " + index), "100");
    EXPECT_EQ(std::to_string(CurrentLevel()), index);
  }
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_EQ(host->Ask("call ORV_GetCurrentBoostLevelIndex 11"), "100 3");
  fs::remove(SelvaPath());
  PutSettings("TRX-SELVA", "<key>MaxLevel</key><integer>9</integer>");
  EXPECT_EQ(host->Ask("call ORV_GetCurrentBoostLevelIndex 11"), "100 9");
}

TEST_F(SettingsFile, ASettingsFileIsReplacedAsAWholeAndNothingIsLeftBesideIt) {
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  std::ifstream old(SelvaPath(), std::ios::binary);
  ASSERT_TRUE(old);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  const std::string contents{std::istreambuf_iterator<char>(old), {}};
  EXPECT_NE(contents.find("<integer>0</integer>"), std::string::npos)
      << "who had the old file open no longer reads the old file";
  EXPECT_EQ(LibraryListing(), kOnlyTheSelvaFile);
}

TEST_F(SettingsFile, AFolderInItsPlaceIsLeftAndTheSetterSucceeds) {
  rig_->PlugMixer();
  fs::create_directories(SelvaPath() + "/inside");
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(CurrentLevel(), 3);
  EXPECT_EQ(rig_->WireLog().size(), 1U);
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
  EXPECT_EQ(LibraryListing(), Lines{kOnlyTheSelvaFile.back() + "/inside/"});
}

TEST_F(SettingsFile, AFileInTheFoldersPlaceIsLeftAndTheSetterSucceeds) {
  fs::remove(rig_->LibraryFolder() + "/Preferences");
  fs::create_directories(rig_->LibraryFolder());
  std::ofstream(rig_->LibraryFolder() + "/Preferences") << "in the way";
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(CurrentLevel(), 3);
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
  EXPECT_EQ(LibraryListing(), Lines{"Preferences"});
}

TEST_F(SettingsFile, WithoutSpaceTheOldOneStaysAndNothingIsLeftBesideIt) {
  rig_->PlugMixer();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  rig_->ClearWireLog();
  ASSERT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("give-up space"), "done");
  EXPECT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 0"), "100");
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>2</integer>"}}));
  EXPECT_EQ(LibraryListing(), kOnlyTheSelvaFile);
  EXPECT_EQ(host->Ask("call ORV_GetCurrentBoostLevelIndex 11"), "100 2");
  EXPECT_EQ(rig_->WireLog(), Lines{Sent(1, "0300", "8003")});
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 0)});
}

}  // namespace
}  // namespace trxtest
