// Fixed paths of the system, and the versions that are read from there.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "../../support/Constants.h"
#include "PrivateUser.h"
#include "PropertyListFile.h"
#include "SystemPath.h"
#include "SystemVersion.h"
#include "TemporaryFolder.h"
#include "Text.h"

namespace orv {
namespace {

using trxtest::kArden;
using trxtest::kBadArgument;
using trxtest::kSelva;
using trxtest::kSuccess;

using trxtest::WriteBytes;

class FixedPaths : public testing::Test {
 protected:
  FixedPaths() { std::filesystem::remove_all(trxtest::SystemRootOfUser()); }

  // Puts a property list where the system has it.
  static void Install(const std::string &path, const std::string &entries) {
    const std::string installed = trxtest::SystemRootOfUser() + path;
    std::filesystem::create_directories(std::filesystem::path(installed).parent_path());
    WriteBytes(installed, XmlList(entries));
  }

  static void InstallSystem(const std::string &version) {
    Install("/System/Library/CoreServices/SystemVersion.plist",
            "<key>ProductVersion</key><string>" + version + "</string>");
  }
};

TEST_F(FixedPaths, FixedPathsAreWhatTheyAre) {
  EXPECT_EQ(SystemPath("/System/Library/CoreServices/SystemVersion.plist"),
            "/System/Library/CoreServices/SystemVersion.plist");
  EXPECT_EQ(SystemPath("/Library/Frameworks/TRX-SELVASetup.framework"),
            "/Library/Frameworks/TRX-SELVASetup.framework");
  EXPECT_EQ(SystemPath(""), "");
}

TEST_F(FixedPaths, FixedPathsLeadToTheSystemsVersion) {
  EXPECT_FALSE(SystemMinorVersionAbove10()) << "no version";
  for (const char *above : {"10.11", "10.13.6", "10.15", "11.11"}) {
    InstallSystem(above);
    EXPECT_TRUE(SystemMinorVersionAbove10()) << above;
  }
  for (const char *notAbove : {"10.9.5", "10.10", "10.10.5", "11.2", "12.0", "14", ""}) {
    InstallSystem(notAbove);
    EXPECT_FALSE(SystemMinorVersionAbove10()) << notAbove;
  }
}

TEST_F(FixedPaths, FixedPathsLeadToTheVersionTexts) {
  InstallSystem("10.13.6");
  Install("/Library/Extensions/TRX-SELVA USBAudio.kext/Contents/Info.plist",
          "<key>CFBundleShortVersionString</key><string>2.1</string>");
  Install("/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist",
          "<key>PackageVersion</key><string>3.2</string>");
  Install("/Applications/Orvik/TRX-Arden/TRX-Arden Setup.app/Contents/Info.plist",
          "<key>CFBundleVersion</key><string>4.3</string>");
  ORVStringRef text = nullptr;
  EXPECT_EQ(ORV_GetDriverVersionText(kSelva, &text), kSuccess);
  EXPECT_EQ(text, KeptText("2.1"));
  EXPECT_EQ(ORV_GetPkgVersionText(kSelva, &text), kSuccess);
  EXPECT_EQ(text, KeptText("3.2"));
  EXPECT_EQ(ORV_GetUtilityVersionText(kArden, &text), kSuccess);
  EXPECT_EQ(text, KeptText("4.3"));
  EXPECT_EQ(ORV_GetLibraryVersionText(kSelva, &text), kBadArgument);
  EXPECT_EQ(text, KeptText("4.3"));
}

}  // namespace
}  // namespace orv
