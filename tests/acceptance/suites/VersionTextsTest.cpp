// Version texts: which file and which entry is read, on which system.
#include "../InstalledFiles.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;
using Query = StatusCode (*)(ProductId, ORVStringRef *);

constexpr const char *kReceipt = "/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist";
constexpr const char *kLaterLibrary =
    "/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Info.plist";
constexpr const char *kEarlierLibrary =
    "/System/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Info.plist";
constexpr const char *kSelvaPlugIn =
    "/Library/Audio/Plug-Ins/HAL/TRX-SELVA USBAudio.driver/Contents/Info.plist";
constexpr const char *kSelvaLaterExtension =
    "/Library/Extensions/TRX-SELVA USBAudio.kext/Contents/Info.plist";
constexpr const char *kSelvaEarlierExtension =
    "/System/Library/Extensions/TRX-SELVA USBAudio.kext/Contents/Info.plist";
constexpr const char *kSelvaSetup =
    "/Applications/Orvik/TRX-SELVA/TRX-SELVA Setup.app/Contents/Info.plist";
constexpr const char *kSystem = "/System/Library/CoreServices/SystemVersion.plist";

class VersionTexts : public InstalledFiles {
 protected:
  // The result of a query; "102" when it refuses and does not touch its result.
  static std::string Ask(Query query, ProductId product) {
    const ORVStringRef untouched = TextOf("untouched");
    ORVStringRef text = untouched;
    const StatusCode status = query(product, &text);
    if (status == kSuccess) return CharactersOf(text);
    return std::to_string(status) + (text == untouched ? "" : " and touched");
  }

  static std::string Library() { return Ask(ORV_GetLibraryVersionText, kSelva); }
  static std::string Driver() { return Ask(ORV_GetDriverVersionText, kSelva); }

  void InstallInfo(const std::string &path, const std::string &shortVersion,
                   const std::string &version) {
    Install(path, "<key>CFBundleShortVersionString</key><string>" + shortVersion +
                      "</string><key>CFBundleVersion</key><string>" + version + "</string>");
  }

  void InstallBothLibraries() {
    InstallInfo(kLaterLibrary, "short", "later");
    InstallInfo(kEarlierLibrary, "short", "earlier");
  }

  // Which of the installed libraries is found on a system with this version.
  std::string LibraryOn(const std::string &systemEntries) {
    Install(kSystem, systemEntries);
    return Library();
  }
};

// --- Package, setup application, library -----------------------------------------------------

TEST_F(VersionTexts, PackageVersionIsThatOfTheReceipt) {
  Install(kReceipt,
          "<key>PackageVersion</key><string>1.2.3</string>"
          "<key>CFBundleVersion</key><string>another</string>");
  EXPECT_EQ(Ask(ORV_GetPkgVersionText, kSelva), "1.2.3");
}

TEST_F(VersionTexts, UtilityVersionIsTheBuildVersionOfTheModelsOwnApplication) {
  const std::vector<std::pair<ProductId, std::string>> paths = {
      {0, "/Applications/Orvik/TRX-Arden/TRX-Arden Setup.app/Contents/Info.plist"},
      {1, "/Applications/Orvik/TRX-VOLT/TRX-VOLT Setup.app/Contents/Info.plist"},
      {5, "/Applications/Orvik/TRX-HALDEN/TRX-HALDEN Setup.app/Contents/Info.plist"},
      {6, "/Applications/Orvik/TRX-LUMEN/TRX-LUMEN Setup.app/Contents/Info.plist"},
      {8, "/Applications/Orvik/TRX-MORROW/TRX-MORROW Setup.app/Contents/Info.plist"},
      {11, "/Applications/Orvik/TRX-SELVA/TRX-SELVA Setup.app/Contents/Info.plist"}};
  for (const auto &[product, path] : paths) {
    EXPECT_EQ(Ask(ORV_GetUtilityVersionText, product), "102") << product;
    InstallInfo(path, "short", "build of " + std::to_string(product));
  }
  for (const auto &[product, path] : paths) {
    EXPECT_EQ(Ask(ORV_GetUtilityVersionText, product), "build of " + std::to_string(product));
  }
}

TEST_F(VersionTexts, LibraryVersionIsTheBuildVersionOfTheInstalledOne) {
  InstallSystem("10.15");
  InstallInfo(kLaterLibrary, "9.9", "9.9.1");
  EXPECT_EQ(Library(), "9.9.1");
}

TEST_F(VersionTexts, LibraryVersionHasNoOtherPlaceToFallBackTo) {
  InstallSystem("10.13.6");
  InstallInfo(kEarlierLibrary, "short", "earlier");
  EXPECT_EQ(Library(), "102");
  InstallSystem("10.9");
  Uninstall("/System/Library/Frameworks");
  InstallInfo(kLaterLibrary, "short", "later");
  EXPECT_EQ(Library(), "102");
}

TEST_F(VersionTexts, WithNothingInstalledEveryVersionIsRefused) {
  for (const Query query : {ORV_GetPkgVersionText, ORV_GetDriverVersionText,
                            ORV_GetUtilityVersionText, ORV_GetLibraryVersionText}) {
    for (const ProductId product : kAllProducts) EXPECT_EQ(Ask(query, product), "102") << product;
  }
}

TEST_F(VersionTexts, OtherModelsAndANullResultAreRefusedEvenWhenTheFilesAreThere) {
  InstallSystem("10.15");
  Install(kReceipt, "<key>PackageVersion</key><string>1</string>");
  InstallBothLibraries();
  InstallInfo(kSelvaPlugIn, "1", "1");
  InstallInfo(kSelvaSetup, "1", "1");
  for (const ProductId product :
       {kArden, kVolt, kBrisk, kHalden, kLumen, kMorrow, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Ask(ORV_GetPkgVersionText, product), "102") << product;
    EXPECT_EQ(Ask(ORV_GetLibraryVersionText, product), "102") << product;
  }
  for (const ProductId product : {kBrisk, kFenno, kCirrus, 7U, 9U, 10U, 12U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Ask(ORV_GetDriverVersionText, product), "102") << product;
    EXPECT_EQ(Ask(ORV_GetUtilityVersionText, product), "102") << product;
  }
  for (const Query query : {ORV_GetPkgVersionText, ORV_GetDriverVersionText,
                            ORV_GetUtilityVersionText, ORV_GetLibraryVersionText}) {
    EXPECT_EQ(query(kSelva, nullptr), kBadArgument);
    EXPECT_NE(Ask(query, kSelva), "102");
  }
}

// --- The order of the checks -----------------------------------------------------------------

TEST_F(VersionTexts, TheDriverLooksAtTheSystemEvenForAModelThatIsThenRefused) {
  InstallSystem("10.15");
  for (const ProductId product : {kArden, kBrisk, kSelva, 12U, 0xFFFFFFFFU}) {
    EXPECT_TRUE(IsOpenedBy(kSystem, [&] { Ask(ORV_GetDriverVersionText, product); })) << product;
  }
  EXPECT_FALSE(IsOpenedBy(kSystem, [] { ORV_GetDriverVersionText(kSelva, nullptr); }));
}

TEST_F(VersionTexts, TheLibraryRefusesAModelBeforeItLooksAtTheSystem) {
  InstallSystem("10.15");
  for (const ProductId product : {kArden, kVolt, kBrisk, kMorrow, 12U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(IsOpenedBy(kSystem, [&] { Ask(ORV_GetLibraryVersionText, product); })) << product;
  }
  EXPECT_FALSE(IsOpenedBy(kSystem, [] { ORV_GetLibraryVersionText(kSelva, nullptr); }));
  EXPECT_TRUE(IsOpenedBy(kSystem, [] { Ask(ORV_GetLibraryVersionText, kSelva); }));
}

TEST_F(VersionTexts, TheOthersRefuseAModelBeforeTheyLookAtAnything) {
  InstallSystem("10.15");
  Install(kReceipt, "<key>PackageVersion</key><string>1</string>");
  EXPECT_FALSE(IsOpenedBy(kReceipt, [] { Ask(ORV_GetPkgVersionText, kArden); }));
  EXPECT_FALSE(IsOpenedBy(kReceipt, [] { ORV_GetPkgVersionText(kSelva, nullptr); }));
  EXPECT_TRUE(IsOpenedBy(kReceipt, [] { Ask(ORV_GetPkgVersionText, kSelva); }));
  InstallInfo(kSelvaSetup, "1", "1");
  EXPECT_FALSE(IsOpenedBy(kSelvaSetup, [] { ORV_GetUtilityVersionText(kSelva, nullptr); }));
  EXPECT_FALSE(IsOpenedBy(kSystem, [] { Ask(ORV_GetUtilityVersionText, kSelva); }));
}

// --- Which system counts as a later one ------------------------------------------------------

TEST_F(VersionTexts, ASystemIsALaterOneWhenItsSecondNumberIsAboveTen) {
  InstallBothLibraries();
  for (const char *version : {"10.11", "10.11.6", "10.13.6", "10.15", "10.15.7", "10.100", "11.11",
                              "9.12", "0.11.0.0", "10.011", "10.0011.1"}) {
    InstallSystem(version);
    EXPECT_EQ(Library(), "later") << version;
  }
  for (const char *version : {"10.10", "10.10.5", "10.9", "10.9.5", "10.2", "11.2", "11.4", "12.0",
                              "12.6.11", "15.1", "10.010"}) {
    InstallSystem(version);
    EXPECT_EQ(Library(), "earlier") << version;
  }
}

TEST_F(VersionTexts, ASystemWithoutASecondNumberCountsAsAnEarlierOne) {
  InstallBothLibraries();
  for (const char *version : {"10", "", "11", ".", "10.", "10..13", "999", "10,13"}) {
    InstallSystem(version);
    EXPECT_EQ(Library(), "earlier") << version;
  }
}

TEST_F(VersionTexts, ASystemThatDoesNotSayItsVersionCountsAsAnEarlierOne) {
  InstallBothLibraries();
  EXPECT_EQ(Library(), "earlier");
  for (const char *entries :
       {"", "<key>ProductName</key><string>10.13</string>",
        "<key>ProductVersion</key><integer>1013</integer>",
        "<key>ProductVersion</key><real>10.13</real>", "<key>ProductVersion</key><true/>",
        "<key>ProductVersion</key><data>MTAuMTM=</data>",
        "<key>ProductVersion</key><array><string>10.13</string></array>",
        "<key>ProductVersion</key><dict><key>a</key><string>10.13</string></dict>"}) {
    EXPECT_EQ(LibraryOn(entries), "earlier") << entries;
  }
  for (const char *contents : {"", "10.13",
                               "<plist version=\"1.0\"><array><string>ProductVersion</string>"
                               "<string>10.13</string></array></plist>"}) {
    InstallFile(kSystem, contents);
    EXPECT_EQ(Library(), "earlier") << contents;
  }
}

TEST_F(VersionTexts, TheSystemIsLookedAtAfreshForEachCall) {
  InstallBothLibraries();
  InstallSystem("10.15");
  EXPECT_EQ(Library(), "later");
  InstallSystem("11.4");
  EXPECT_EQ(Library(), "earlier");
  InstallSystem("10.13.6");
  EXPECT_EQ(Library(), "later");
}

// --- The driver ------------------------------------------------------------------------------

struct DriverFiles {
  ProductId product;
  std::string plugIn;
  std::string laterExtension;
  std::string earlierExtension;
};

TEST_F(VersionTexts, DriverVersionIsTheShortVersionOfTheModelsOwnFiles) {
  const std::vector<DriverFiles> models = {
      {0, "/Library/Audio/Plug-Ins/HAL/TRX-Arden USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-Arden USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-Arden USBAudio.kext/Contents/Info.plist"},
      {1, "/Library/Audio/Plug-Ins/HAL/TRX-VOLT USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-VOLT USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-VOLT USBAudio.kext/Contents/Info.plist"},
      {5, "/Library/Audio/Plug-Ins/HAL/TRX-HALDEN USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-HALDEN USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-HALDEN USBAudio.kext/Contents/Info.plist"},
      {6, "/Library/Audio/Plug-Ins/HAL/TRX-LUMEN USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-LUMEN USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-LUMEN USBAudio.kext/Contents/Info.plist"},
      {8, "/Library/Audio/Plug-Ins/HAL/TRX-MORROW USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-MORROW USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-MORROW USBAudio.kext/Contents/Info.plist"},
      {11, "/Library/Audio/Plug-Ins/HAL/TRX-SELVA USBAudio.driver/Contents/Info.plist",
       "/Library/Extensions/TRX-SELVA USBAudio.kext/Contents/Info.plist",
       "/System/Library/Extensions/TRX-SELVA USBAudio.kext/Contents/Info.plist"}};
  for (const DriverFiles &model : models) {
    const std::string number = std::to_string(model.product);
    InstallInfo(model.laterExtension, "later extension " + number, "build");
    InstallInfo(model.earlierExtension, "earlier extension " + number, "build");
  }
  InstallSystem("10.13.6");
  for (const DriverFiles &model : models) {
    const std::string number = std::to_string(model.product);
    EXPECT_EQ(Ask(ORV_GetDriverVersionText, model.product), "later extension " + number);
    InstallInfo(model.plugIn, "plug-in " + number, "build");
  }
  for (const DriverFiles &model : models) {
    EXPECT_EQ(Ask(ORV_GetDriverVersionText, model.product),
              "plug-in " + std::to_string(model.product));
  }
  InstallSystem("10.10.5");
  for (const DriverFiles &model : models) {
    EXPECT_EQ(Ask(ORV_GetDriverVersionText, model.product),
              "earlier extension " + std::to_string(model.product));
  }
}

TEST_F(VersionTexts, OnALaterSystemTheExtensionAnswersWhenThereIsNoPlugIn) {
  InstallSystem("10.13.6");
  InstallInfo(kSelvaLaterExtension, "4.5", "4.5.6");
  EXPECT_EQ(Driver(), "4.5");
}

TEST_F(VersionTexts, OnALaterSystemTheExtensionOfEarlierSystemsDoesNotAnswer) {
  InstallSystem("10.15");
  InstallInfo(kSelvaEarlierExtension, "4.5", "4.5.6");
  EXPECT_EQ(Driver(), "102");
}

TEST_F(VersionTexts, OnAnEarlierSystemNothingButItsOwnExtensionAnswers) {
  InstallInfo(kSelvaPlugIn, "1", "1");
  InstallInfo(kSelvaLaterExtension, "2", "2");
  for (const char *version : {"10.10.5", "10.9", "11.4", "10", ""}) {
    InstallSystem(version);
    EXPECT_EQ(Driver(), "102") << version;
  }
  InstallInfo(kSelvaEarlierExtension, "3", "4");
  for (const char *version : {"10.10.5", "10.9", "11.4", "10", ""}) {
    InstallSystem(version);
    EXPECT_EQ(Driver(), "3") << version;
  }
}

TEST_F(VersionTexts, APlugInWithoutTheVersionIsRefusedAndTheExtensionNotConsulted) {
  InstallSystem("10.13.6");
  InstallInfo(kSelvaLaterExtension, "4.5", "4.5.6");
  Install(kSelvaPlugIn, "<key>CFBundleVersion</key><string>7</string>");
  EXPECT_EQ(Driver(), "102");
  Install(kSelvaPlugIn, "<key>CFBundleShortVersionString</key><integer>7</integer>");
  EXPECT_EQ(Driver(), "102");
}

TEST_F(VersionTexts, APlugInThatCannotBeReadLeavesTheAnswerToTheExtension) {
  InstallSystem("10.13.6");
  InstallInfo(kSelvaLaterExtension, "4.5", "4.5.6");
  for (const char *contents :
       {"", "no property list",
        "<plist "
        "version=\"1.0\"><array><string>CFBundleShortVersionString</string></array></plist>"}) {
    InstallFile(kSelvaPlugIn, contents);
    EXPECT_EQ(Driver(), "4.5") << contents;
  }
}

// --- The contents of the files ---------------------------------------------------------------

TEST_F(VersionTexts, AnEntryThatIsMissingOrNoTextIsRefused) {
  InstallSystem("10.15");
  const std::vector<std::pair<Query, std::pair<std::string, std::string>>> files = {
      {ORV_GetPkgVersionText, {kReceipt, "PackageVersion"}},
      {ORV_GetDriverVersionText, {kSelvaPlugIn, "CFBundleShortVersionString"}},
      {ORV_GetUtilityVersionText, {kSelvaSetup, "CFBundleVersion"}},
      {ORV_GetLibraryVersionText, {kLaterLibrary, "CFBundleVersion"}}};
  for (const auto &[query, file] : files) {
    const auto &[path, key] = file;
    for (const char *value :
         {"<integer>1</integer>", "<real>1.5</real>", "<true/>", "<data>MS4w</data>",
          "<array><string>1</string></array>", "<dict/>"}) {
      Install(path, "<key>" + key + "</key>" + value);
      EXPECT_EQ(Ask(query, kSelva), "102") << path << ' ' << value;
    }
    Install(path, "");
    EXPECT_EQ(Ask(query, kSelva), "102") << path;
    Install(path,
            "<key>" + key + "2</key><string>1</string><key>OtherVersion</key><string>1</string>");
    EXPECT_EQ(Ask(query, kSelva), "102") << path;
    InstallFile(path, "<plist version=\"1.0\"><array><string>" + key + "</string></array></plist>");
    EXPECT_EQ(Ask(query, kSelva), "102") << path;
    Install(path, "<key>" + key + "</key><string>right</string>");
    EXPECT_EQ(Ask(query, kSelva), "right") << path;
  }
}

TEST_F(VersionTexts, AnythingThatIsATextIsHandedOutAsItStands) {
  for (const std::string text : {"", " 1.0 (build 7)\xC3\xA9 ", "not a version"}) {
    Install(kReceipt, "<key>PackageVersion</key><string>" + text + "</string>");
    EXPECT_EQ(Ask(ORV_GetPkgVersionText, kSelva), text);
  }
  Install(kReceipt, "<key>PackageVersion</key><string>a &amp; b &lt;c&gt;</string>");
  EXPECT_EQ(Ask(ORV_GetPkgVersionText, kSelva), "a & b <c>");
}

TEST_F(VersionTexts, ATextHandedOutStaysUnchangedWhenTheFileChangesOrGoes) {
  std::vector<ORVStringRef> texts;
  Lines expected;
  for (int i = 0; i < 40; ++i) {
    expected.push_back("version " + std::to_string(i));
    Install(kReceipt, "<key>PackageVersion</key><string>" + expected.back() + "</string>");
    ASSERT_EQ(ORV_GetPkgVersionText(kSelva, &texts.emplace_back()), kSuccess);
  }
  Uninstall(kReceipt);
  EXPECT_EQ(Ask(ORV_GetPkgVersionText, kSelva), "102");
  Lines characters;
  for (const ORVStringRef text : texts) characters.push_back(CharactersOf(text));
  EXPECT_EQ(characters, expected);
}

TEST_F(VersionTexts, TheSameTextIsHandedOutAtTheSamePlaceWhereverItWasRead) {
  const std::string text = "<key>PackageVersion</key><string>5.6.7</string>";
  Install(kReceipt, text);
  InstallInfo(kSelvaSetup, "short", "5.6.7");
  ORVStringRef first = nullptr;
  ORVStringRef other = nullptr;
  ORVStringRef again = nullptr;
  ASSERT_EQ(ORV_GetPkgVersionText(kSelva, &first), kSuccess);
  Install(kReceipt, "<key>PackageVersion</key><string>8</string>");
  ASSERT_EQ(ORV_GetPkgVersionText(kSelva, &other), kSuccess);
  Install(kReceipt, text);
  ASSERT_EQ(ORV_GetPkgVersionText(kSelva, &again), kSuccess);
  EXPECT_EQ(again, first);
  ASSERT_EQ(ORV_GetUtilityVersionText(kSelva, &again), kSuccess);
  EXPECT_EQ(again, first);
  EXPECT_EQ(CharactersOf(first), "5.6.7");
  EXPECT_EQ(CharactersOf(other), "8");
}

TEST_F(VersionTexts, AskingForVersionsLeavesUnitsAndSettingsAlone) {
  rig_->PlugMixer();
  InstallSystem("10.15");
  Install(kReceipt, "<key>PackageVersion</key><string>1</string>");
  EXPECT_EQ(Ask(ORV_GetPkgVersionText, kSelva), "1");
  EXPECT_EQ(Driver(), "102");
  ExpectNothingHappened();
}

}  // namespace
}  // namespace trxtest
