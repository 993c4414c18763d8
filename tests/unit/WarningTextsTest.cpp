// The rules for every translation of the warnings.
#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <glib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Environment.h"
#include "LocalizedStrings.h"
#include "PropertyList.h"
#include "StringsFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;

using Scripts = std::set<GUnicodeScript>;

// The words of the glossary, in a form that is part of all forms in the texts.
struct Language {
  const char *folder;
  const char *locale;
  const char *inputSelector;
  const char *mixer;
  const char *channel;
  const char *port;
  const char *second;
  const char *error;  // the word that no text uses
  Scripts scripts;
};

const Scripts kLatin = {G_UNICODE_SCRIPT_LATIN};
const Scripts kHan = {G_UNICODE_SCRIPT_HAN};

// English comes first; all others are translations of it.
const Language kLanguages[] = {
    {"English", "en_US.UTF-8", "input selector", "mixer", "channel", "USB port", "second", "error",
     kLatin},
    {"Japanese",
     "ja_JP.UTF-8",
     "インプットセレクター",
     "ミキサー",
     "チャンネル",
     "USBポート",
     "2番目",
     "エラー",
     {G_UNICODE_SCRIPT_HIRAGANA, G_UNICODE_SCRIPT_KATAKANA, G_UNICODE_SCRIPT_HAN}},
    {"French", "fr_FR.UTF-8", "sélecteur d’entrée", "table de mixage", "canal", "port USB",
     "deuxième", "erreur", kLatin},
    {"German", "de_DE.UTF-8", "Eingangswahlschalter", "Mischpult", "Kanal", "USB-Anschluss",
     "zweiten", "ehler", kLatin},
    {"Italian", "it_IT.UTF-8", "selettore d’ingresso", "mixer", "canale", "porta USB", "seconda",
     "errore", kLatin},
    {"Dutch", "nl_NL.UTF-8", "ingangskeuzeschakelaar", "mengpaneel", "kanaal", "USB-poort",
     "tweede", "fout", kLatin},
    {"Spanish", "es_ES.UTF-8", "selector de entrada", "mezclador", "canal", "puerto USB", "segundo",
     "error", kLatin},
    {"ru",
     "ru_RU.UTF-8",
     "селектор входа",
     "икшер",
     "канал",
     "USB-порт",
     "втор",
     "шибк",
     {G_UNICODE_SCRIPT_CYRILLIC}},
    {"pt", "pt_BR.UTF-8", "seletor de entrada", "mixer", "canal", "porta USB", "segunda", "erro",
     kLatin},
    {"zh_CN", "zh_CN.UTF-8", "输入选择开关", "混音台", "通道", "USB 端口", "第二个", "错误", kHan},
    {"zh_TW", "zh_TW.UTF-8", "輸入選擇開關", "混音器", "聲道", "USB 連接埠", "第二個", "錯誤",
     kHan},
    {"ko",
     "ko_KR.UTF-8",
     "입력 셀렉터",
     "믹서",
     "채널",
     "USB 포트",
     "두 번째",
     "오류",
     {G_UNICODE_SCRIPT_HANGUL}},
};

constexpr std::array<const char *, 4> kKeys = {"WARNING", "WARNING1", "WARNING2", "WARNING3"};
constexpr std::size_t kSecondPort = 3;  // the warning that speaks of the second port

std::string PathOf(const std::string &folder) {
  return RESOURCES_FOLDER "/" + folder + ".lproj/Localizable.strings";
}

std::vector<std::string> TextsOf(const std::string &folder) {
  std::vector<std::string> texts;
  for (const StringsEntry &entry : ReadStringsFile(PathOf(folder))) texts.push_back(entry.text);
  return texts;
}

std::vector<gunichar> CharactersOf(const std::string &text) {
  glong count = 0;
  const std::unique_ptr<gunichar, decltype(&g_free)> characters(
      g_utf8_to_ucs4_fast(text.c_str(), -1, &count), g_free);
  return std::vector<gunichar>(characters.get(), characters.get() + count);
}

class WarningTextsTest : public testing::TestWithParam<Language> {
 protected:
  const std::string folder_ = GetParam().folder;
  const std::vector<std::string> texts_ = TextsOf(folder_);
};

INSTANTIATE_TEST_SUITE_P(Languages, WarningTextsTest, testing::ValuesIn(kLanguages),
                         [](const auto &row) { return std::string(row.param.folder); });

// --- The files ---

TEST(WarningTextsFilesTest, WarningTextsAreThereForExactlyTheTwelveLanguages) {
  std::set<std::string> folders;
  for (const auto &entry : std::filesystem::directory_iterator(RESOURCES_FOLDER)) {
    if (entry.path().extension() == ".lproj") folders.insert(entry.path().stem());
  }
  EXPECT_THAT(folders, ElementsAre("Dutch", "English", "French", "German", "Italian", "Japanese",
                                   "Spanish", "ko", "pt", "ru", "zh_CN", "zh_TW"));
}

TEST(WarningTextsFilesTest, WarningTextsHaveNoTextTwice) {
  std::map<std::string, std::string> owners;
  for (const Language &language : kLanguages) {
    for (const std::string &text : TextsOf(language.folder)) {
      const auto [owner, isNew] = owners.emplace(text, language.folder);
      EXPECT_TRUE(isNew) << language.folder << " and " << owner->second << ": " << text;
    }
  }
  EXPECT_EQ(owners.size(), 48U);
}

TEST_P(WarningTextsTest, WarningTextsAreExactlyTheFourInOrder) {
  std::vector<std::string> keys;
  for (const StringsEntry &entry : ReadStringsFile(PathOf(folder_))) keys.push_back(entry.key);
  EXPECT_THAT(keys, ElementsAre("WARNING", "WARNING1", "WARNING2", "WARNING3"));
}

TEST_P(WarningTextsTest, WarningTextsTellTheTranslatorTheSituationInTheSameWords) {
  const auto entries = ReadStringsFile(PathOf(folder_));
  const auto english = ReadStringsFile(PathOf("English"));
  ASSERT_EQ(entries.size(), english.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    EXPECT_THAT(entries[i].comment, Not(testing::IsEmpty()));
    EXPECT_EQ(entries[i].comment, english[i].comment);
  }
}

TEST_P(WarningTextsTest, WarningTextsAreLaidOutAsPropertyListsAre) {
  std::string expected =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
      "<plist version=\"1.0\">\n"
      "<dict>\n";
  for (const StringsEntry &entry : ReadStringsFile(PathOf(folder_))) {
    expected += "\t<!-- " + entry.comment + " -->\n\t<key>" + entry.key + "</key>\n\t<string>" +
                entry.text + "</string>\n";
  }
  EXPECT_EQ(ReadBytes(PathOf(folder_)), expected + "</dict>\n</plist>\n");
}

TEST_P(WarningTextsTest, WarningTextsReachTheLibraryAsTheyStandInTheFile) {
  const auto list = PropertyList::ReadFile(PathOf(folder_));
  ASSERT_TRUE(list.has_value());
  ASSERT_EQ(texts_.size(), kKeys.size());
  for (std::size_t i = 0; i < kKeys.size(); ++i) EXPECT_EQ(list->TextForKey(kKeys[i]), texts_[i]);
}

TEST_P(WarningTextsTest, WarningTextsAreFoundByFolderAndBySystemLanguage) {
  const TemporaryFolder bundle;
  std::filesystem::create_directory_symlink(RESOURCES_FOLDER, bundle / "Resources");
  const Environment environment(OnlyLanguage({{"LANG", GetParam().locale}}));
  ASSERT_EQ(texts_.size(), kKeys.size());
  for (std::size_t i = 0; i < kKeys.size(); ++i) {
    EXPECT_STREQ(StringInLanguage(bundle.Path(), folder_.c_str(), kKeys[i]), texts_[i].c_str());
    EXPECT_STREQ(LocalizedString(bundle.Path(), kKeys[i]), texts_[i].c_str());
  }
}

// --- The characters ---

TEST_P(WarningTextsTest, WarningTextsAreInNormalFormC) {
  for (const std::string &text : texts_) {
    const std::unique_ptr<gchar, decltype(&g_free)> normal(
        g_utf8_normalize(text.c_str(), -1, G_NORMALIZE_NFC), g_free);
    EXPECT_STREQ(normal.get(), text.c_str());
  }
}

TEST_P(WarningTextsTest, WarningTextsHoldNoPlaceholderNoMarkupAndNoLineBreak) {
  for (const std::string &text : texts_) {
    EXPECT_EQ(text.find_first_of("%{}@<>&\\\n\r\t"), std::string::npos) << text;
  }
}

TEST_P(WarningTextsTest, WarningTextsHoldNeitherTypewriterQuotesNorExclamationMarks) {
  for (const std::string &text : texts_) {
    EXPECT_EQ(text.find_first_of("'\"`!"), std::string::npos) << text;
    EXPECT_THAT(text, Not(HasSubstr("\uFF01"))) << "a wide exclamation mark";
  }
}

TEST_P(WarningTextsTest, WarningTextsHaveNoBlankTooMany) {
  for (const std::string &text : texts_) {
    EXPECT_FALSE(text.starts_with(' ') || text.ends_with(' ')) << text;
    EXPECT_THAT(text, Not(HasSubstr("  ")));
    for (const gunichar character : CharactersOf(text)) {
      EXPECT_TRUE(character == ' ' || !g_unichar_isspace(character)) << text;
    }
  }
}

TEST_P(WarningTextsTest, WarningTextsFitADialogue) {
  for (const std::string &text : texts_) {
    EXPECT_GE(text.size(), 80U) << text;
    EXPECT_LT(text.size(), 400U) << text;
  }
}

TEST_P(WarningTextsTest, WarningTextsAreWrittenInTheScriptsOfTheLanguageExceptUsb) {
  const Scripts &scripts = GetParam().scripts;
  for (std::string text : texts_) {
    for (std::size_t usb = text.find("USB"); usb != std::string::npos; usb = text.find("USB")) {
      text.replace(usb, 3, " ");
    }
    Scripts found;
    for (const gunichar character : CharactersOf(text)) {
      // The Japanese long-vowel mark and similar characters belong to no particular script.
      const GUnicodeScript script = g_unichar_get_script(character);
      if (g_unichar_isalpha(character) && script != G_UNICODE_SCRIPT_COMMON) found.insert(script);
    }
    EXPECT_EQ(found, scripts) << text;
  }
}

void ExpectOfEachText(const char *folder, const char *oneOf, const char *noneOf) {
  const auto wanted = CharactersOf(oneOf);
  const auto unwanted = CharactersOf(noneOf);
  for (const std::string &text : TextsOf(folder)) {
    const auto characters = CharactersOf(text);
    EXPECT_NE(
        std::find_first_of(characters.begin(), characters.end(), wanted.begin(), wanted.end()),
        characters.end())
        << text;
    EXPECT_EQ(
        std::find_first_of(characters.begin(), characters.end(), unwanted.begin(), unwanted.end()),
        characters.end())
        << text;
  }
}

constexpr const char *kSimplified = "选择输开关连应请将该这电脑传确认设声对没为发动个并启当换";
constexpr const char *kTraditional = "選擇輸開關連應請將該這電腦傳確認設聲對沒為發動個並啟當換";

TEST(WarningTextsScriptTest, ChineseOfTheMainlandIsSimplified) {
  ExpectOfEachText("zh_CN", kSimplified, kTraditional);
}

TEST(WarningTextsScriptTest, ChineseOfTaiwanIsTraditional) {
  ExpectOfEachText("zh_TW", kTraditional, kSimplified);
}

TEST(WarningTextsScriptTest, ChineseAndJapanesePunctuationIsWide) {
  for (const char *folder : {"zh_CN", "zh_TW", "Japanese"}) {
    for (const std::string &text : TextsOf(folder)) {
      EXPECT_EQ(text.find_first_of(",.;:()"), std::string::npos) << text;
    }
  }
}

// --- The wording ---

std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

TEST_P(WarningTextsTest, WarningTextsAreTwoOrThreeWholeSentences) {
  const bool isWide = std::set<std::string>{"Japanese", "zh_CN", "zh_TW"}.contains(folder_);
  const std::string fullStop = isWide ? "\u3002" : ".";
  for (const std::string &text : texts_) {
    EXPECT_TRUE(text.ends_with(fullStop)) << text;
    EXPECT_GE(CountOf(text, fullStop), 2U) << text;
    EXPECT_LE(CountOf(text, fullStop), 3U) << text;
  }
}

TEST_P(WarningTextsTest, WarningTextsNameMixerChannelSelectorAndUsbByTheWordsOfTheGlossary) {
  for (const std::string &text : texts_) {
    EXPECT_THAT(text, HasSubstr(GetParam().inputSelector));
    EXPECT_THAT(text, HasSubstr(GetParam().mixer));
    EXPECT_THAT(text, testing::ContainsRegex("USB"));
    EXPECT_TRUE(text.find(GetParam().channel) != std::string::npos) << text;
  }
}

TEST_P(WarningTextsTest, WarningTextsNameTheSecondPortWhereTheComputerIsOnItAndOnlyThere) {
  ASSERT_EQ(texts_.size(), kKeys.size());
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    EXPECT_EQ(texts_[i].find(GetParam().second) != std::string::npos, i == kSecondPort)
        << texts_[i];
  }
  EXPECT_THAT(texts_[kSecondPort], HasSubstr(GetParam().port));
}

TEST_P(WarningTextsTest, WarningTextsSpeakOfNoErrorAndOfNoModel) {
  for (const std::string &text : texts_) {
    EXPECT_THAT(text, Not(HasSubstr(GetParam().error)));
    EXPECT_THAT(text, Not(HasSubstr("TRX")));
  }
}

// --- Translations ---

class TranslationsTest : public WarningTextsTest {};

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest,
                         testing::ValuesIn(std::begin(kLanguages) + 1, std::end(kLanguages)),
                         [](const auto &row) { return std::string(row.param.folder); });

TEST_P(TranslationsTest, TranslationsLeaveNoEnglish) {
  const std::set<std::string> english = {"the",   "your",   "choice",    "channel", "input",
                                         "this",  "switch", "connected", "set",     "turn",
                                         "check", "sent",   "settings",  "mixers"};
  for (const std::string &text : texts_) {
    std::string word;
    for (const char character : text + " ") {
      if (g_ascii_isalpha(character)) {
        word += g_ascii_tolower(character);
      } else {
        EXPECT_FALSE(english.contains(word)) << word << " in " << text;
        word.clear();
      }
    }
  }
}

}  // namespace
}  // namespace orv
