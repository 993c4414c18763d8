#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Environment.h"
#include "LocalizedStrings.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

const std::string kHello = "<key>HELLO</key><string>";
const std::string kEndOfText = "</string>";

// A bundle with the languages of a test.
class LocalizedStringsTest : public testing::Test {
 protected:
  std::string Bundle() const { return folder_.Path(); }

  std::string File(const std::string &language) const {
    return folder_ / ("Resources/" + language + ".lproj/Localizable.strings");
  }

  void AddFile(const std::string &language, const std::string &contents) {
    std::filesystem::create_directories(folder_ / ("Resources/" + language + ".lproj"));
    WriteBytes(File(language), contents);
  }

  void AddEntries(const std::string &language, const std::string &entries) {
    AddFile(language, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" +
                          entries + "</dict></plist>\n");
  }

  void AddHello(const std::string &language, const std::string &text) {
    AddEntries(language, kHello + text + kEndOfText);
  }

  // The text for a user with these settings.
  ORVStringRef TextWith(const std::vector<Environment::Variable> &variables,
                        const char *key = "HELLO") {
    const Environment environment(OnlyLanguage(variables));
    return LocalizedString(Bundle(), key);
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(LocalizedStringsTest, TextsAreInTheLanguageOfTheSystem) {
  AddHello("English", "hello");
  AddHello("German", "Grüß Gott");
  AddHello("Japanese", "こんにちは");
  EXPECT_STREQ(TextWith({{"LANG", "de_DE.UTF-8"}}), "Grüß Gott");
  EXPECT_STREQ(TextWith({{"LANG", "ja_JP.UTF-8"}}), "こんにちは");
  EXPECT_STREQ(TextWith({{"LANG", "en_US.UTF-8"}}), "hello");
  EXPECT_STREQ(TextWith({}), "hello");
}

TEST_F(LocalizedStringsTest, TextsAreEnglishWhereTheBundleHasNoSuchLanguage) {
  AddHello("English", "hello");
  EXPECT_STREQ(TextWith({{"LANG", "ko_KR.UTF-8"}}), "hello");
}

TEST_F(LocalizedStringsTest, TextsAreInTheNextLanguageOfTheUserBeforeEnglish) {
  AddHello("English", "hello");
  AddHello("French", "bonjour");
  EXPECT_STREQ(TextWith({{"LANG", "ko_KR.UTF-8"}, {"LANGUAGE", "ko:fr:de"}}), "bonjour");
}

TEST_F(LocalizedStringsTest, TextsAreEnglishWhereTheLanguageLacksTheKey) {
  AddHello("English", "hello");
  AddEntries("German", "<key>OTHER</key><string>anderes</string>");
  EXPECT_STREQ(TextWith({{"LANG", "de_DE.UTF-8"}}), "hello");
  EXPECT_STREQ(TextWith({{"LANG", "de_DE.UTF-8"}}, "OTHER"), "anderes");
}

TEST_F(LocalizedStringsTest, TextsAreEnglishWhereTheFileCannotBeRead) {
  AddHello("English", "hello");
  AddFile("German", "\"HELLO\" = \"hallo");
  AddFile("French", "");
  std::filesystem::create_directories(File("Dutch"));
  EXPECT_STREQ(TextWith({{"LANG", "de_DE.UTF-8"}}), "hello");
  EXPECT_STREQ(TextWith({{"LANG", "fr_FR.UTF-8"}}), "hello");
  EXPECT_STREQ(TextWith({{"LANG", "nl_NL.UTF-8"}}), "hello");
}

TEST_F(LocalizedStringsTest, TextsAreEnglishWhereTheEntryIsNoText) {
  AddHello("English", "hello");
  AddEntries("German", "<key>HELLO</key><integer>7</integer>");
  EXPECT_STREQ(TextWith({{"LANG", "de_DE.UTF-8"}}), "hello");
}

TEST_F(LocalizedStringsTest, TextsAreNullWithoutABundle) {
  const Environment environment(OnlyLanguage({{"LANG", "de_DE.UTF-8"}}));
  EXPECT_EQ(LocalizedString(Bundle() + "/missing", "HELLO"), nullptr);
  EXPECT_EQ(StringInLanguage(Bundle() + "/missing", "English", "HELLO"), nullptr);
}

TEST_F(LocalizedStringsTest, TextsAreNullWithoutTheKeyInAnyLanguage) {
  AddHello("English", "hello");
  AddHello("German", "hallo");
  EXPECT_EQ(TextWith({{"LANG", "de_DE.UTF-8"}}, "MISSING"), nullptr);
  EXPECT_EQ(TextWith({{"LANG", "de_DE.UTF-8"}}, "hello"), nullptr);
}

TEST_F(LocalizedStringsTest, TextsOfANamedLanguageDoNotFollowTheSystem) {
  AddHello("English", "hello");
  AddHello("German", "hallo");
  const Environment environment(OnlyLanguage({{"LANG", "de_DE.UTF-8"}}));
  EXPECT_STREQ(StringInLanguage(Bundle(), "English", "HELLO"), "hello");
}

TEST_F(LocalizedStringsTest, TextsOfANamedLanguageDoNotFallBackToEnglish) {
  AddHello("English", "hello");
  AddEntries("German", "<key>OTHER</key><string>anderes</string>");
  EXPECT_EQ(StringInLanguage(Bundle(), "German", "HELLO"), nullptr);
  EXPECT_EQ(StringInLanguage(Bundle(), "Korean", "HELLO"), nullptr);
}

TEST_F(LocalizedStringsTest, TextsStayAsTheyAreWhenTheBundleChangesOrGoes) {
  AddHello("German", "hallo");
  ORVStringRef before = StringInLanguage(Bundle(), "German", "HELLO");
  AddHello("German", "servus");
  EXPECT_STREQ(StringInLanguage(Bundle(), "German", "HELLO"), "servus");
  std::filesystem::remove_all(Bundle() + "/Resources");
  EXPECT_EQ(StringInLanguage(Bundle(), "German", "HELLO"), nullptr);
  EXPECT_STREQ(before, "hallo");
}

}  // namespace
}  // namespace orv
