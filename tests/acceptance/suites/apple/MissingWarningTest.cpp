// The platform's result for a text that a bundle does not have.
#include "../../InstalledFiles.h"

namespace trxtest {
namespace {

class MissingWarning : public InstalledFiles {};

TEST_F(MissingWarning, AWarningInTheSystemsLanguageIsItsKey) {
  constexpr const char *kFramework = "/Library/Frameworks/TRX-SELVASetup.framework";
  InstallSystem("10.15");
  Install(std::string(kFramework) + "/Versions/A/Resources/English.lproj/Localizable.strings",
          "<key>WARNING2</key><string>two</string>");
  LinkResources(kFramework);
  ORVStringRef text = TextOf("untouched");
  EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 3, &text),
            kSuccess);
  EXPECT_EQ(CharactersOf(text), "WARNING1");
}

}  // namespace
}  // namespace trxtest
