// The warning texts of the library's own bundle, in each of its languages.
#include <filesystem>
#include <string>

#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HeapGrowth.h"
#include "LocalizedStrings.h"
#include "PrivateUser.h"

namespace orv {
namespace {

using testing::Lt;
using testing::StartsWith;

constexpr const char *kBundle = "/Library/Frameworks/TRX-SELVASetup.framework";

std::string Characters(ORVStringRef text) {
  return text != nullptr ? [reinterpret_cast<NSString *>(text) UTF8String] : "none";
}

class BundleTexts : public testing::Test {
 protected:
  // Lays the bundle out as a framework is, with the library's real resources.
  BundleTexts() {
    const std::filesystem::path bundle = trxtest::SystemRootOfUser() + kBundle;
    std::filesystem::remove_all(bundle);
    std::filesystem::create_directories(bundle / "Versions/A");
    std::filesystem::copy(RESOURCES, bundle / "Versions/A/Resources",
                          std::filesystem::copy_options::recursive);
    std::filesystem::create_directory_symlink("A", bundle / "Versions/Current");
    std::filesystem::create_directory_symlink("Versions/Current/Resources", bundle / "Resources");
  }
  ~BundleTexts() override { [pool_ drain]; }

  static std::string InLanguage(const char *folder, const char *key) {
    return Characters(StringInLanguage(kBundle, folder, key));
  }

  // On macOS the user chooses the languages in the system's settings.
  static std::string WhereTheUserReads(NSString *language, const char *key) {
    [NSUserDefaults setUserLanguages:[NSArray arrayWithObject:language]];
    return Characters(LocalizedString(kBundle, key));
  }

  NSAutoreleasePool *const pool_ = [[NSAutoreleasePool alloc] init];
};

TEST_F(BundleTexts, BundleTextsAreInTheLanguageOfTheFolder) {
  EXPECT_THAT(InLanguage("English", "WARNING2"), StartsWith("Your choice has been sent"));
  EXPECT_THAT(InLanguage("Japanese", "WARNING2"),
              StartsWith("選択した内容はミキサーに送信されましたが、このチャン"));
  EXPECT_THAT(InLanguage("French", "WARNING2"), StartsWith("Votre choix a été transmis"));
  EXPECT_THAT(InLanguage("German", "WARNING2"), StartsWith("Ihre Auswahl wurde an das"));
  EXPECT_THAT(InLanguage("Italian", "WARNING2"), StartsWith("La tua scelta è stata tras"));
  EXPECT_THAT(InLanguage("Dutch", "WARNING2"), StartsWith("Je keuze is naar het mengp"));
  EXPECT_THAT(InLanguage("Spanish", "WARNING2"), StartsWith("Su elección se ha enviado"));
  EXPECT_THAT(InLanguage("ru", "WARNING2"), StartsWith("Ваш выбор передан на микше"));
  EXPECT_THAT(InLanguage("pt", "WARNING2"), StartsWith("A sua escolha foi enviada"));
  EXPECT_THAT(InLanguage("zh_CN", "WARNING2"),
              StartsWith("您的选择已发送到混音台，但此通道的输入选择开关不在"));
  EXPECT_THAT(InLanguage("zh_TW", "WARNING2"),
              StartsWith("您的選擇已傳送到混音器，但此聲道的輸入選擇開關並未切"));
  EXPECT_THAT(InLanguage("ko", "WARNING2"),
              StartsWith("선택한 내용은 믹서로 전송되었지만, 이 채널의"));
}

TEST_F(BundleTexts, BundleTextsAreDifferentForEachKey) {
  EXPECT_THAT(InLanguage("English", "WARNING"), StartsWith("Your choice may not have taken"));
  EXPECT_THAT(InLanguage("English", "WARNING1"), StartsWith("No mixer is connected, so your"));
  EXPECT_THAT(InLanguage("English", "WARNING2"), StartsWith("Your choice has been sent to t"));
  EXPECT_THAT(InLanguage("English", "WARNING3"), StartsWith("Your choice has been sent to t"));
  EXPECT_NE(InLanguage("English", "WARNING2"), InLanguage("English", "WARNING3"));
}

TEST_F(BundleTexts, BundleTextsAreNoneWithoutFolderKeyOrBundle) {
  EXPECT_EQ(StringInLanguage(kBundle, "Klingon", "WARNING"), nullptr);
  EXPECT_EQ(StringInLanguage(kBundle, "German", "WARNING4"), nullptr);
  EXPECT_EQ(StringInLanguage("/Library/Frameworks/Another.framework", "German", "WARNING"),
            nullptr);
  EXPECT_EQ(LocalizedString("/Library/Frameworks/Another.framework", "WARNING"), nullptr);
}

TEST_F(BundleTexts, BundleTextsAreInTheLanguageOfTheUserWhereNoneIsNamed) {
  EXPECT_THAT(WhereTheUserReads(@"German", "WARNING1"), StartsWith("Es ist kein Mischpul"));
  EXPECT_THAT(WhereTheUserReads(@"ko", "WARNING1"),
              StartsWith("연결된 믹서가 없어 선택한 내용이 아"));
  EXPECT_THAT(WhereTheUserReads(@"ru", "WARNING1"), StartsWith("Микшер не подключён"));
  EXPECT_THAT(WhereTheUserReads(@"English", "WARNING1"), StartsWith("No mixer is connecte"));
  EXPECT_THAT(WhereTheUserReads(@"Klingon", "WARNING1"),
              StartsWith("No mixer is connected, so your"));
}

// The platform gives the key back, not the empty text that it was asked to give instead.
TEST_F(BundleTexts, BundleTextsAreTheKeyItselfWhereThePlatformHasNoText) {
  EXPECT_EQ(WhereTheUserReads(@"German", "WARNING4"), "WARNING4");
}

TEST_F(BundleTexts, BundleTextsAreTheSameObjectEachTime) {
  EXPECT_EQ(StringInLanguage(kBundle, "German", "WARNING"),
            StringInLanguage(kBundle, "German", "WARNING"));
  EXPECT_EQ(LocalizedString(kBundle, "WARNING1"), LocalizedString(kBundle, "WARNING1"));
}

TEST_F(BundleTexts, BundleTextsLeaveNothingBehindInMemory) {
  EXPECT_THAT(HeapGrowth(500, [] { StringInLanguage(kBundle, "German", "WARNING"); }),
              Lt(kNothingPerCall / 20));
  EXPECT_THAT(HeapGrowth(5'000, [] { LocalizedString(kBundle, "WARNING1"); }),
              Lt(kNothingPerCall / 2));
}

}  // namespace
}  // namespace orv
