// The warning after an input routing: which of the four texts, and in which language. In these
// cases the system's language is English.
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>

#include "../InstalledFiles.h"
#include "../WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

constexpr const char *kLaterFramework = "/Library/Frameworks/TRX-SELVASetup.framework";
constexpr const char *kEarlierFramework = "/System/Library/Frameworks/TRX-SELVASetup.framework";

// The folders of the languages 0 to 11.
const Lines kFolders = {"English", "Japanese", "French", "German", "Italian", "Dutch",
                        "Spanish", "ru",       "pt",     "zh_CN",  "zh_TW",   "ko"};

class InputRoutingWarning : public InstalledFiles {
 protected:
  // A framework folder as on the platform, with these language folders.
  void InstallFramework(const std::string &framework, const Lines &folders,
                        const std::string &prefix = {}) {
    for (const std::string &folder : folders) {
      std::string entries;
      for (const std::string key : {"WARNING", "WARNING1", "WARNING2", "WARNING3"}) {
        entries += "<key>" + key + "</key><string>" + prefix + folder + " " + key + "</string>";
      }
      Install(framework + "/Versions/A/Resources/" + folder + ".lproj/Localizable.strings",
              entries);
    }
    LinkResources(framework);
  }

  // All languages, on a system that has the framework below /Library.
  void InstallAll() {
    InstallSystem("10.15");
    InstallFramework(kLaterFramework, kFolders);
  }

  // The text; "(null)" for none; the status when the call is refused.
  static std::string Warning(ProductId product, std::int32_t channel, std::int32_t language,
                             StatusCode status = kSuccessWithWarning) {
    const ORVStringRef untouched = TextOf("untouched");
    ORVStringRef text = untouched;
    const StatusCode answer =
        ORV_GetWarningTextForSetUSBAudioInput(product, channel, status, language, &text);
    if (answer == kSuccess) return CharactersOf(text);
    return std::to_string(answer) + (text == untouched ? "" : " and touched");
  }

  static std::string AskedPort(int unit, const std::string &outcome) {
    return Asked(unit, "8006", 2, outcome);
  }
};

// --- Which text ------------------------------------------------------------------------------

TEST_F(InputRoutingWarning, ArdenAndVoltHaveOneTextForAllCasesAndTheirUnitsAreNotAsked) {
  InstallAll();
  EXPECT_EQ(Warning(kArden, 3, 99), "English WARNING");
  EXPECT_EQ(Warning(kArden, 0, 3), "German WARNING");
  EXPECT_EQ(Warning(kVolt, 2, 1), "Japanese WARNING");
  rig_->SetPort(rig_->PlugMixer(), 1, 0);
  EXPECT_EQ(Warning(kArden, 3, 99), "English WARNING");
  EXPECT_EQ(Warning(kArden, 0, 3), "German WARNING");
  EXPECT_EQ(Warning(kVolt, 2, 1), "Japanese WARNING");
  ExpectNothingHappened();
}

TEST_F(InputRoutingWarning, WithoutAUnitTheTextComesInTheSystemsLanguageWhateverIsNamed) {
  InstallAll();
  rig_->PlugStranger(Stranger::kOtherProductOfTheMaker);
  for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
    for (const std::int32_t language : {0, 1, 3, 7, 11, 99}) {
      EXPECT_EQ(Warning(product, 0, language), "English WARNING1") << product << ' ' << language;
    }
  }
  ExpectNothingHappened();
}

TEST_F(InputRoutingWarning, WithAUnitItsPortStateDecidesAndCountsAsOneOnlyAsAWhole) {
  InstallAll();
  rig_->PlugMixer();
  struct {
    std::uint8_t first;
    std::uint8_t second;
    const char *text;
  } const cases[] = {{0, 0, "French WARNING2"},    {1, 0, "French WARNING3"},
                     {1, 1, "French WARNING2"},    {0, 1, "French WARNING2"},
                     {2, 0, "French WARNING2"},    {255, 0, "French WARNING2"},
                     {255, 255, "French WARNING2"}};
  for (const auto &port : cases) {
    rig_->SetPort(1, port.first, port.second);
    for (const ProductId product : {kHalden, kLumen, kMorrow, kSelva}) {
      EXPECT_EQ(Warning(product, 0, 2), port.text) << +port.first << ' ' << +port.second;
    }
  }
}

TEST_F(InputRoutingWarning, OneUnitIsAskedForTwoBytesOfItsPortState) {
  InstallAll();
  for (int i = 0; i < 3; ++i) rig_->PlugMixer();
  rig_->SetPort(1, 1, 0);
  EXPECT_EQ(Warning(kSelva, 0, 0), "English WARNING3");
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedPort(1, "2 bytes 01 00")}));
  rig_->ClearWireLog();
  rig_->SetPort(1, 0, 0);
  rig_->SetPort(2, 1, 0);
  EXPECT_EQ(Warning(kHalden, 4, 0), "English WARNING2");
  EXPECT_EQ(rig_->WireLog(), (Lines{AskedPort(1, "2 bytes 00 00")}));
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

TEST_F(InputRoutingWarning, APortStateThatIsRefusedOrShortHasZeroForWhatIsMissing) {
  InstallAll();
  rig_->SetPort(rig_->PlugMixer(), 1, 1);
  rig_->SetFault(1, UnitFault::kStalls);
  EXPECT_EQ(Warning(kSelva, 0, 0), "English WARNING2");
  rig_->ClearFaults(1);
  rig_->SetShortReplies(1, 1);
  EXPECT_EQ(Warning(kSelva, 0, 0), "English WARNING3");
  rig_->SetShortReplies(1, 0);
  EXPECT_EQ(Warning(kSelva, 0, 0), "English WARNING2");
  EXPECT_EQ(rig_->WireLog(),
            (Lines{AskedPort(1, "stalled"), AskedPort(1, "1 byte 01"), AskedPort(1, "0 bytes")}));
}

// --- Which language --------------------------------------------------------------------------

TEST_F(InputRoutingWarning, EachLanguageNumberHasItsFolder) {
  InstallAll();
  Lines plain;
  for (std::int32_t language = 0; language < 12; ++language)
    plain.push_back(Warning(kArden, 0, language));
  EXPECT_EQ(plain, (Lines{"English WARNING", "Japanese WARNING", "French WARNING", "German WARNING",
                          "Italian WARNING", "Dutch WARNING", "Spanish WARNING", "ru WARNING",
                          "pt WARNING", "zh_CN WARNING", "zh_TW WARNING", "ko WARNING"}));
  rig_->SetPort(rig_->PlugMixer(), 1, 0);
  Lines byPort;
  for (std::int32_t language = 0; language < 12; ++language) {
    byPort.push_back(Warning(kSelva, 0, language));
  }
  EXPECT_EQ(byPort,
            (Lines{"English WARNING3", "Japanese WARNING3", "French WARNING3", "German WARNING3",
                   "Italian WARNING3", "Dutch WARNING3", "Spanish WARNING3", "ru WARNING3",
                   "pt WARNING3", "zh_CN WARNING3", "zh_TW WARNING3", "ko WARNING3"}));
}

TEST_F(InputRoutingWarning, AnotherLanguageNumberIsRefusedButOnlyAfterTheUnitWasAsked) {
  InstallAll();
  rig_->PlugMixer();
  Lines expected;
  for (const std::int32_t language : {12, 13, 98, 100, 101, -1, 256, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(Warning(kSelva, 0, language), "102") << language;
    expected.push_back(AskedPort(1, "2 bytes 00 00"));
    EXPECT_EQ(Warning(kArden, 0, language), "102") << language;
  }
  EXPECT_EQ(rig_->WireLog(), expected);
}

TEST_F(InputRoutingWarning, AnotherLanguageNumberIsRefusedWithoutAUnitToo) {
  InstallAll();
  for (const ProductId product : {kArden, kVolt, kHalden, kLumen, kMorrow, kSelva}) {
    for (const std::int32_t language : {12, 98, -1}) {
      EXPECT_EQ(Warning(product, 0, language), "102") << product << ' ' << language;
    }
  }
}

TEST_F(InputRoutingWarning, AnotherLanguageNumberIsRefusedOnlyAfterTheFrameworkWasLookedFor) {
  InstallAll();
  EXPECT_TRUE(IsOpenedBy(kSystemVersionFile, [] { EXPECT_EQ(Warning(kArden, 0, 12), "102"); }));
  EXPECT_FALSE(IsOpenedBy(kSystemVersionFile, [] { EXPECT_EQ(Warning(kArden, 4, 0), "102"); }));
}

TEST_F(InputRoutingWarning, OtherArgumentsAreRefusedBeforeAnyUnitIsAsked) {
  InstallAll();
  rig_->PlugMixer();
  const std::vector<std::pair<ProductId, std::int32_t>> places = {
      {0, 4}, {1, 3}, {5, 5}, {6, 4}, {8, 4}, {11, 4}, {0, -1}, {11, -1}, {2, 0}, {7, 0}, {12, 0}};
  for (const auto &[product, channel] : places) {
    EXPECT_EQ(Warning(product, channel, 99), "102") << product << ' ' << channel;
  }
  for (const StatusCode status : {kSuccess, kBadArgument, kConnected, 0, -101, 357}) {
    EXPECT_EQ(Warning(kSelva, 0, 0, status), "102") << status;
    EXPECT_EQ(Warning(kArden, 0, 0, status), "102") << status;
  }
  EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 0, nullptr),
            kBadArgument);
  ExpectNothingHappened();
}

TEST_F(InputRoutingWarning, TheFifthChannelIsThereForHaldenOnly) {
  InstallAll();
  EXPECT_EQ(Warning(kHalden, 4, 99), "English WARNING1");
  EXPECT_EQ(Warning(kSelva, 3, 99), "English WARNING1");
  EXPECT_EQ(Warning(kSelva, 4, 99), "102");
}

// --- The place of the texts ------------------------------------------------------------------

TEST_F(InputRoutingWarning, TheSystemVersionDecidesWhichFrameworkIsOpened) {
  InstallFramework(kLaterFramework, {"English", "German"}, "later ");
  InstallFramework(kEarlierFramework, {"English", "German"}, "earlier ");
  for (const char *version : {"10.11.6", "10.13.6", "10.15", "10.11"}) {
    InstallSystem(version);
    EXPECT_EQ(Warning(kArden, 0, 3), "later German WARNING") << version;
    EXPECT_EQ(Warning(kArden, 0, 99), "later English WARNING") << version;
    EXPECT_EQ(Warning(kSelva, 0, 3), "later English WARNING1") << version;
  }
  for (const char *version : {"10.9.5", "10.10", "10.10.5", "11.2", "11.4", "10", ""}) {
    InstallSystem(version);
    EXPECT_EQ(Warning(kArden, 0, 3), "earlier German WARNING") << version;
    EXPECT_EQ(Warning(kArden, 0, 99), "earlier English WARNING") << version;
    EXPECT_EQ(Warning(kSelva, 0, 3), "earlier English WARNING1") << version;
  }
  Uninstall("/System/Library/CoreServices");
  EXPECT_EQ(Warning(kArden, 0, 3), "earlier German WARNING");
}

TEST_F(InputRoutingWarning, WithoutAFrameworkThereIsNoTextAndTheCallSucceeds) {
  EXPECT_EQ(Warning(kArden, 0, 0), "(null)");
  EXPECT_EQ(Warning(kArden, 0, 99), "(null)");
  EXPECT_EQ(Warning(kSelva, 0, 0), "(null)");
  EXPECT_EQ(Warning(kSelva, 0, 99), "(null)");
  InstallSystem("10.15");
  InstallFramework(kEarlierFramework, kFolders);
  EXPECT_EQ(Warning(kArden, 0, 0), "(null)");
  EXPECT_EQ(Warning(kSelva, 0, 99), "(null)");
}

TEST_F(InputRoutingWarning, ALanguageThatIsNotInstalledHasNoTextButTheSystemsFallsBack) {
  InstallSystem("10.15");
  InstallFramework(kLaterFramework, {"English", "ko"});
  EXPECT_EQ(Warning(kArden, 0, 3), "(null)");
  EXPECT_EQ(Warning(kArden, 0, 11), "ko WARNING");
  EXPECT_EQ(Warning(kArden, 0, 99), "English WARNING");
  EXPECT_EQ(Warning(kSelva, 0, 3), "English WARNING1");
}

TEST_F(InputRoutingWarning, AMissingEntryHasNoText) {
  InstallSystem("10.15");
  const std::string german =
      std::string(kLaterFramework) + "/Versions/A/Resources/German.lproj/Localizable.strings";
  Install(german, "<key>WARNING2</key><string>two</string>");
  LinkResources(kLaterFramework);
  EXPECT_EQ(Warning(kArden, 0, 3), "(null)");
  rig_->PlugMixer();
  EXPECT_EQ(Warning(kSelva, 0, 3), "two");
  rig_->SetPort(1, 1, 0);
  EXPECT_EQ(Warning(kSelva, 0, 3), "(null)");
  InstallFile(german, "no property list");
  EXPECT_EQ(Warning(kArden, 0, 3), "(null)");
}

TEST_F(InputRoutingWarning, ATextHandedOutStaysUnchangedWhenTheFileChanges) {
  InstallAll();
  ORVStringRef first = nullptr;
  ASSERT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kArden, 0, kSuccessWithWarning, 3, &first),
            kSuccess);
  Install(std::string(kLaterFramework) + "/Versions/A/Resources/German.lproj/Localizable.strings",
          "<key>WARNING</key><string>neu</string>");
  EXPECT_EQ(Warning(kArden, 0, 3), "neu");
  Uninstall(kLaterFramework);
  EXPECT_EQ(Warning(kArden, 0, 3), "(null)");
  EXPECT_EQ(CharactersOf(first), "German WARNING");
}

TEST_F(InputRoutingWarning, AWarningFollowsAnInputRoutingThatAnswered101) {
  InstallAll();
  EXPECT_EQ(Warning(kSelva, 0, 99, ORV_SetUSBInputAudio(kSelva, 0, 0)), "English WARNING1");
  EXPECT_EQ(Warning(kSelva, 0, 99, ORV_SetUSBInputAudio(kSelva, 0, 3)), "102");
  EXPECT_EQ(Warning(kVolt, 2, 6, ORV_SetUSBInputAudioDirect(kVolt, 2, 0, 15)), "Spanish WARNING");
}

// --- The texts of the build ------------------------------------------------------------------

std::string WithoutEntities(std::string text) {
  const std::pair<std::string, std::string> entities[] = {
      {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};
  for (const auto &[entity, character] : entities) {
    for (std::size_t at = 0; (at = text.find(entity, at)) != text.npos; ++at) {
      text.replace(at, entity.size(), character);
    }
  }
  return text;
}

// The text for a key of a strings file.
std::string TextBehind(const std::string &key, const std::string &contents) {
  const std::string before = "<string>";
  const std::size_t keyAt = contents.find("<key>" + key + "</key>");
  if (keyAt == contents.npos) return "(no entry)";
  const std::size_t start = contents.find(before, keyAt) + before.size();
  return WithoutEntities(contents.substr(start, contents.find("</string>", start) - start));
}

class BuiltWarning : public InputRoutingWarning {
 protected:
  void InstallWhatIsBuilt() {
    const auto everything = std::filesystem::copy_options::recursive |
                            std::filesystem::copy_options::copy_symlinks |
                            std::filesystem::copy_options::overwrite_existing;
    std::filesystem::copy(BUILT_SYSTEM_ROOT, rig_->SystemRoot(), everything);
  }

  // The text for a key in the build's strings file of a language, read without the library.
  static std::string Written(const std::string &folder, const std::string &key) {
    std::ifstream file(BUILT_SYSTEM_ROOT + std::string(kLaterFramework) + "/Versions/A/Resources/" +
                           folder + ".lproj/Localizable.strings",
                       std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(file), {}};
    return TextBehind(key, contents);
  }
};

TEST_F(BuiltWarning, EveryLanguageHandsOutWhatStandsInItsFileForEverySituation) {
  InstallWhatIsBuilt();
  std::set<std::string> different;
  const auto expectWritten = [&](const std::string &key, ProductId product) {
    for (std::size_t number = 0; number < kFolders.size(); ++number) {
      const auto language = static_cast<std::int32_t>(number);
      const std::string written = Written(kFolders[number], key);
      EXPECT_GT(written.size(), 20U) << kFolders[number] << ' ' << key << ": " << written;
      EXPECT_EQ(Warning(product, 0, language), written) << kFolders[number] << ' ' << key;
      different.insert(written);
    }
    EXPECT_EQ(Warning(product, 0, 99), Written("English", key));
  };
  expectWritten("WARNING", 0);
  expectWritten("WARNING", 1);
  rig_->PlugMixer();
  expectWritten("WARNING2", 11);
  rig_->SetPort(1, 1, 0);
  expectWritten("WARNING3", 11);
  EXPECT_EQ(different.size(), 36U) << "three situations in twelve languages";
}

TEST_F(BuiltWarning, WithoutAUnitTheSystemsLanguageIsHandedOut) {
  InstallWhatIsBuilt();
  for (std::int32_t language = 0; language < 12; ++language) {
    EXPECT_EQ(Warning(kSelva, 0, language), Written("English", "WARNING1")) << language;
  }
  EXPECT_EQ(Warning(kSelva, 0, 99), Written("English", "WARNING1"));
  for (const std::string &folder : kFolders) EXPECT_GT(Written(folder, "WARNING1").size(), 20U);
}

}  // namespace
}  // namespace trxtest
