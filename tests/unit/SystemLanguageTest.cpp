#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Environment.h"
#include "SystemLanguage.h"

namespace orv {
namespace {

using testing::ElementsAreArray;
using Folders = std::vector<std::string>;
using Set = std::vector<Environment::Variable>;

// The folders in the order in which they are tried; one that is named again counts only once.
Folders FoldersFor(const Set &variables) {
  const Environment environment(OnlyLanguage(variables));
  Folders folders;
  for (const char *folder : SystemLanguageFolders()) {
    if (std::find(folders.begin(), folders.end(), folder) == folders.end()) {
      folders.emplace_back(folder);
    }
  }
  return folders;
}

struct Case {
  const char *name;
  Set variables;
  Folders folders;
};

void PrintTo(const Case &row, std::ostream *stream) {
  for (const auto &[name, value] : row.variables) *stream << name << '=' << *value << ' ';
}

std::string NameOf(const testing::TestParamInfo<Case> &info) { return info.param.name; }

class SystemLanguageTest : public testing::TestWithParam<Case> {};

TEST_P(SystemLanguageTest, TheLanguageFollowsTheEnvironment) {
  EXPECT_THAT(FoldersFor(GetParam().variables), ElementsAreArray(GetParam().folders));
}

const Folders kEnglishOnly = {"English"};

const Case kLanguages[] = {
    {"English", {{"LANG", "en_GB.UTF-8"}}, {"English"}},
    {"Japanese", {{"LANG", "ja_JP.UTF-8"}}, {"Japanese", "English"}},
    {"French", {{"LANG", "fr_FR.UTF-8"}}, {"French", "English"}},
    {"German", {{"LANG", "de_DE.UTF-8"}}, {"German", "English"}},
    {"Italian", {{"LANG", "it_IT.UTF-8"}}, {"Italian", "English"}},
    {"Dutch", {{"LANG", "nl_NL.UTF-8"}}, {"Dutch", "English"}},
    {"Spanish", {{"LANG", "es_ES.UTF-8"}}, {"Spanish", "English"}},
    {"Russian", {{"LANG", "ru_RU.UTF-8"}}, {"ru", "English"}},
    {"Portuguese", {{"LANG", "pt_PT.UTF-8"}}, {"pt", "English"}},
    {"SimplifiedChinese", {{"LANG", "zh_CN.UTF-8"}}, {"zh_CN", "English"}},
    {"TraditionalChinese", {{"LANG", "zh_TW.UTF-8"}}, {"zh_TW", "English"}},
    {"Korean", {{"LANG", "ko_KR.UTF-8"}}, {"ko", "English"}},
};
INSTANTIATE_TEST_SUITE_P(Languages, SystemLanguageTest, testing::ValuesIn(kLanguages), NameOf);

const Case kCountries[] = {
    {"Brazil", {{"LANG", "pt_BR.UTF-8"}}, {"pt", "English"}},
    {"Austria", {{"LANG", "de_AT.UTF-8"}}, {"German", "English"}},
    {"Canada", {{"LANG", "fr_CA.UTF-8"}}, {"French", "English"}},
    {"Mexico", {{"LANG", "es_MX.UTF-8"}}, {"Spanish", "English"}},
    {"Belgium", {{"LANG", "nl_BE.UTF-8"}}, {"Dutch", "English"}},
    {"HongKong", {{"LANG", "zh_HK.UTF-8"}}, {"zh_TW", "English"}},
    {"Macao", {{"LANG", "zh_MO.UTF-8"}}, {"zh_TW", "English"}},
    {"Singapore", {{"LANG", "zh_SG.UTF-8"}}, {"zh_CN", "English"}},
    {"ChineseWithoutCountry", {{"LANG", "zh"}}, {"zh_CN", "English"}},
    {"GermanWithoutCountry", {{"LANG", "de"}}, {"German", "English"}},
    {"CountryThatDoesNotExist", {{"LANG", "it_XX"}}, {"Italian", "English"}},
};
INSTANTIATE_TEST_SUITE_P(Countries, SystemLanguageTest, testing::ValuesIn(kCountries), NameOf);

const Case kEncodings[] = {
    {"NoEncoding", {{"LANG", "de_DE"}}, {"German", "English"}},
    {"EightBitEncoding", {{"LANG", "ru_RU.KOI8-R"}}, {"ru", "English"}},
    {"EncodingWithoutCountry", {{"LANG", "ru.KOI8-R"}}, {"ru", "English"}},
    {"Modifier", {{"LANG", "de_DE@euro"}}, {"German", "English"}},
    {"ModifierWithoutCountry", {{"LANG", "de@euro"}}, {"German", "English"}},
    {"EncodingAndModifier", {{"LANG", "nl_NL.ISO-8859-15@euro"}}, {"Dutch", "English"}},
    {"CountryThatMattersAndEncoding", {{"LANG", "zh_TW.Big5"}}, {"zh_TW", "English"}},
    {"CountryThatMattersAndModifier", {{"LANG", "zh_HK@stroke"}}, {"zh_TW", "English"}},
    {"InTheList",
     {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "de_AT.UTF-8@euro:zh_TW.UTF-8"}},
     {"German", "zh_TW", "English"}},
};
INSTANTIATE_TEST_SUITE_P(Encodings, SystemLanguageTest, testing::ValuesIn(kEncodings), NameOf);

const Case kUnknown[] = {
    {"Unknown", {{"LANG", "sv_SE.UTF-8"}}, kEnglishOnly},
    {"LongerThanAKnownOne", {{"LANG", "nlx_NL.UTF-8"}}, kEnglishOnly},
    {"ShorterThanAKnownOne", {{"LANG", "d"}}, kEnglishOnly},
    {"InCapitals", {{"LANG", "DE_DE"}}, kEnglishOnly},
    {"CountryOnly", {{"LANG", "_DE.UTF-8"}}, kEnglishOnly},
    {"EncodingOnly", {{"LANG", ".UTF-8"}}, kEnglishOnly},
    {"InTheListIsPassedOver",
     {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "sv:ko:xx:it"}},
     {"ko", "Italian", "English"}},
    // A list replaces the locale, even when nothing in it is known.
    {"ListOfNothingElse", {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "sv:xx"}}, kEnglishOnly},
};
INSTANTIATE_TEST_SUITE_P(Unknown, SystemLanguageTest, testing::ValuesIn(kUnknown), NameOf);

const Case kOrder[] = {
    {"NothingSet", {}, kEnglishOnly},
    {"AllBeforeMessages",
     {{"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}, {"LANG", "it_IT.UTF-8"}},
     {"German", "English"}},
    {"MessagesBeforeLang",
     {{"LC_MESSAGES", "fr_FR.UTF-8"}, {"LANG", "it_IT.UTF-8"}},
     {"French", "English"}},
    {"EmptyAllIsNotSet",
     {{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR.UTF-8"}, {"LANG", "it_IT.UTF-8"}},
     {"French", "English"}},
    {"EmptyMessagesIsNotSet",
     {{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "it_IT.UTF-8"}},
     {"Italian", "English"}},
    {"AllEmpty",
     {{"LANGUAGE", ""}, {"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", ""}},
     kEnglishOnly},
    {"UnknownAllHidesLang", {{"LC_ALL", "sv_SE"}, {"LANG", "it_IT"}}, kEnglishOnly},
    {"ListBeforeAll",
     {{"LANGUAGE", "ko"}, {"LC_ALL", "de_DE.UTF-8"}, {"LANG", "it_IT.UTF-8"}},
     {"ko", "English"}},
    {"EmptyListIsNotSet", {{"LANGUAGE", ""}, {"LANG", "it_IT.UTF-8"}}, {"Italian", "English"}},
};
INSTANTIATE_TEST_SUITE_P(Order, SystemLanguageTest, testing::ValuesIn(kOrder), NameOf);

const Case kLists[] = {
    {"InOrder",
     {{"LANG", "it_IT.UTF-8"}, {"LANGUAGE", "nl:fr_CA:zh_HK:zh"}},
     {"Dutch", "French", "zh_TW", "zh_CN", "English"}},
    {"EnglishInTheMiddle",
     {{"LANG", "it_IT.UTF-8"}, {"LANGUAGE", "de:en_US:fr"}},
     {"German", "English", "French"}},
    {"EmptyEntries",
     {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "::de::ja:"}},
     {"German", "Japanese", "English"}},
    {"ColonsOnly", {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "::"}}, kEnglishOnly},
};
INSTANTIATE_TEST_SUITE_P(Lists, SystemLanguageTest, testing::ValuesIn(kLists), NameOf);

// Untranslated texts are the English ones.
const Case kUntranslated[] = {
    {"CIgnoresTheList", {{"LANG", "C"}, {"LANGUAGE", "de"}}, kEnglishOnly},
    {"PosixIgnoresTheList", {{"LANG", "POSIX"}, {"LANGUAGE", "de"}}, kEnglishOnly},
    {"NoLocaleIgnoresTheList", {{"LANGUAGE", "de"}}, kEnglishOnly},
    {"AllSaysC",
     {{"LC_ALL", "C"}, {"LC_MESSAGES", "de_DE"}, {"LANG", "fr_FR"}, {"LANGUAGE", "ko"}},
     kEnglishOnly},
    {"MessagesSayC",
     {{"LC_MESSAGES", "C"}, {"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "ko"}},
     kEnglishOnly},
    {"LangSaysCButMessagesDoNot",
     {{"LC_MESSAGES", "de_DE.UTF-8"}, {"LANG", "C"}},
     {"German", "English"}},
    // C.UTF-8 is a locale like others: only its texts are English.
    {"CInUtf8", {{"LANG", "C.UTF-8"}}, kEnglishOnly},
    {"CInUtf8ReadsTheList", {{"LANG", "C.UTF-8"}, {"LANGUAGE", "de"}}, {"German", "English"}},
    // As an entry, C means that the user prefers untranslated texts to what follows.
    {"CEndsTheList", {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "de:C:ja"}}, {"German", "English"}},
    {"PosixEndsTheList",
     {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "de:POSIX:ja"}},
     {"German", "English"}},
    {"CBeginsTheList", {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "C:de"}}, kEnglishOnly},
    {"CInUtf8IsAnUnknownEntry",
     {{"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "C.UTF-8:de"}},
     {"German", "English"}},
};
INSTANTIATE_TEST_SUITE_P(Untranslated, SystemLanguageTest, testing::ValuesIn(kUntranslated),
                         NameOf);

TEST(SystemLanguageFoldersTest, FoldersEndInEnglishWhateverComesBefore) {
  const Environment environment(OnlyLanguage({{"LANG", "ja_JP.UTF-8"}, {"LANGUAGE", "en:ja:ko"}}));
  EXPECT_STREQ(SystemLanguageFolders().back(), "English");
}

TEST(SystemLanguageFoldersTest, FoldersFollowAChangeOfTheEnvironmentAtOnce) {
  EXPECT_THAT(FoldersFor({{"LANG", "ja_JP.UTF-8"}}), testing::ElementsAre("Japanese", "English"));
  EXPECT_THAT(FoldersFor({{"LANG", "ko_KR.UTF-8"}}), testing::ElementsAre("ko", "English"));
}

}  // namespace
}  // namespace orv
