// The language of a warning for the system's language on Linux: LANGUAGE, a list, then LC_ALL,
// LC_MESSAGES and LANG, then English.
#include <cstdlib>

#include "../../InstalledFiles.h"

namespace trxtest {
namespace {

// The variables with the user's language; null for one that is not set.
struct Variables {
  const char *language;
  const char *all;
  const char *messages;
  const char *lang;
  const char *folder;  // the one that answers
};

class SystemLanguage : public InstalledFiles {
 protected:
  void InstallLanguages(const std::vector<std::string> &folders) {
    for (const std::string &folder : folders) {
      Install("/System/Library/Frameworks/TRX-SELVASetup.framework/Resources/" + folder +
                  ".lproj/Localizable.strings",
              "<key>WARNING</key><string>" + folder + "</string><key>WARNING1</key><string>" +
                  folder + " 1</string>");
    }
  }

  static void SetVariable(const char *name, const char *value) {
    if (value == nullptr) {
      unsetenv(name);
    } else {
      setenv(name, value, 1);
    }
  }

  static void SetVariables(const Variables &variables) {
    SetVariable("LANGUAGE", variables.language);
    SetVariable("LC_ALL", variables.all);
    SetVariable("LC_MESSAGES", variables.messages);
    SetVariable("LANG", variables.lang);
  }

  static std::string Warning(ProductId product, std::int32_t language) {
    ORVStringRef text = nullptr;
    EXPECT_EQ(
        ORV_GetWarningTextForSetUSBAudioInput(product, 0, kSuccessWithWarning, language, &text),
        kSuccess);
    return text != nullptr ? text : "(null)";
  }

  static void ExpectFolders(const std::vector<Variables> &cases) {
    for (const Variables &variables : cases) {
      SetVariables(variables);
      const auto shown = [](const char *value) { return value != nullptr ? value : "-"; };
      const std::string said = std::string(shown(variables.language)) + ' ' + shown(variables.all) +
                               ' ' + shown(variables.messages) + ' ' + shown(variables.lang);
      EXPECT_EQ(Warning(kArden, 99), variables.folder) << said;
      EXPECT_EQ(Warning(kSelva, 0), std::string(variables.folder) + " 1") << said;
    }
  }
};

TEST_F(SystemLanguage, EveryLanguageOfTheTextsIsFound) {
  InstallLanguages({"English", "Japanese", "French", "German", "Italian", "Dutch", "Spanish", "ru",
                    "pt", "zh_CN", "zh_TW", "ko"});
  ExpectFolders({{nullptr, nullptr, nullptr, "en_GB.UTF-8", "English"},
                 {nullptr, nullptr, nullptr, "ja_JP.UTF-8", "Japanese"},
                 {nullptr, nullptr, nullptr, "fr_CA.UTF-8", "French"},
                 {nullptr, nullptr, nullptr, "de_AT.UTF-8", "German"},
                 {nullptr, nullptr, nullptr, "it", "Italian"},
                 {nullptr, nullptr, nullptr, "nl_BE@euro", "Dutch"},
                 {nullptr, nullptr, nullptr, "es_MX.UTF-8", "Spanish"},
                 {nullptr, nullptr, nullptr, "ru_RU.KOI8-R", "ru"},
                 {nullptr, nullptr, nullptr, "pt_BR.UTF-8", "pt"},
                 {nullptr, nullptr, nullptr, "zh_CN.UTF-8", "zh_CN"},
                 {nullptr, nullptr, nullptr, "zh_SG.UTF-8", "zh_CN"},
                 {nullptr, nullptr, nullptr, "zh_TW.UTF-8", "zh_TW"},
                 {nullptr, nullptr, nullptr, "zh_HK.UTF-8", "zh_TW"},
                 {nullptr, nullptr, nullptr, "ko_KR.UTF-8", "ko"}});
}

TEST_F(SystemLanguage, TheVariablesAreAskedInTheirOrder) {
  InstallLanguages({"English", "Japanese", "French", "German", "ko"});
  ExpectFolders({{"ja", "fr_FR.UTF-8", "de_DE.UTF-8", "ko_KR.UTF-8", "Japanese"},
                 {nullptr, "fr_FR.UTF-8", "de_DE.UTF-8", "ko_KR.UTF-8", "French"},
                 {"", "", "de_DE.UTF-8", "ko_KR.UTF-8", "German"},
                 {nullptr, nullptr, nullptr, "ko_KR.UTF-8", "ko"},
                 {nullptr, nullptr, nullptr, nullptr, "English"},
                 {"", "", "", "", "English"}});
}

TEST_F(SystemLanguage, TheFirstOfTheListThatIsInstalledAnswers) {
  InstallLanguages({"English", "French", "ko"});
  ExpectFolders({{"sv:da:ja:ko:fr", nullptr, nullptr, "fr_FR.UTF-8", "ko"},
                 {"fr_BE:ko", nullptr, nullptr, "ko_KR.UTF-8", "French"},
                 {":::fr", nullptr, nullptr, "ko_KR.UTF-8", "French"},
                 {"sv:da", nullptr, nullptr, "sv_SE.UTF-8", "English"}});
}

TEST_F(SystemLanguage, WithoutATranslationTheLanguageIsEnglish) {
  InstallLanguages({"English", "French"});
  ExpectFolders({{"fr", "C", nullptr, "fr_FR.UTF-8", "English"},
                 {"fr", "POSIX", nullptr, "fr_FR.UTF-8", "English"},
                 {"fr", nullptr, "C", "fr_FR.UTF-8", "English"},
                 {"fr", nullptr, nullptr, nullptr, "English"}});
}

TEST_F(SystemLanguage, ALanguageThatIsNamedIsNotReplacedByTheSystems) {
  InstallLanguages({"English", "French", "German"});
  SetVariables({nullptr, nullptr, nullptr, "fr_FR.UTF-8", nullptr});
  EXPECT_EQ(Warning(kArden, 3), "German");
  EXPECT_EQ(Warning(kArden, 1), "(null)");
  EXPECT_EQ(Warning(kSelva, 3), "French 1");
}

class MissingWarning : public InstalledFiles {};

TEST_F(MissingWarning, AWarningInTheSystemsLanguageHasNoText) {
  constexpr const char *kFramework = "/Library/Frameworks/TRX-SELVASetup.framework";
  InstallSystem("10.15");
  Install(std::string(kFramework) + "/Versions/A/Resources/English.lproj/Localizable.strings",
          "<key>WARNING2</key><string>two</string>");
  LinkResources(kFramework);
  ORVStringRef text = TextOf("untouched");
  EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 3, &text),
            kSuccess);
  EXPECT_EQ(CharactersOf(text), "(null)");
}

}  // namespace
}  // namespace trxtest
