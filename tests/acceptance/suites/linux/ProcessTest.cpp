// The library's effects on its process: threads, descriptors, fork, folders.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include "../../Deliveries.h"
#include "../../InstalledFiles.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using CallList = std::vector<Call>;
using Lines = std::vector<std::string>;

std::string selva = "selva";
std::string halden = "halden";

std::ptrdiff_t EntriesOf(const std::string &folder) {
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

std::ptrdiff_t OpenDescriptors(pid_t process) {
  return EntriesOf("/proc/" + std::to_string(process) + "/fd");
}

// What each open descriptor of this process is, such as "socket:[4711]".
std::vector<std::string> DescriptorTargets() {
  std::vector<std::string> targets;
  for (const auto &entry : fs::directory_iterator("/proc/self/fd")) {
    const std::string target = fs::read_symlink(entry.path());
    if (!target.ends_with("/fd")) targets.push_back(target);  // the folder that is read here
  }
  std::sort(targets.begin(), targets.end());
  return targets;
}

class Process : public Deliveries {};

TEST_F(Process, NoThreadIsEverStarted) {
  rig_->PlugMixer();
  const auto host = rig_->StartHost();
  const std::string threads = "/proc/" + std::to_string(host->Id()) + "/task";
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 1"), "100");
  EXPECT_EQ(EntriesOf(threads), 1);
  ASSERT_EQ(host->Ask("register BoostLevel 11 host"), "100");
  EXPECT_EQ(EntriesOf(threads), 1);
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
  ASSERT_EQ(host->TakeCalls(1), Lines{"host 2"});
  EXPECT_EQ(EntriesOf(threads), 1);
  rig_->StopNotificationService();
  ASSERT_EQ(host->Ask("call ORV_SetBoostLevelIndex 11 2"), "100");
  EXPECT_EQ(EntriesOf(threads), 1);
}

TEST_F(Process, AThousandSetsHoldNoMoreDescriptorsThanOne) {
  rig_->PlugMixer();
  rig_->SetFault(rig_->PlugMixer(), UnitFault::kStalls);
  rig_->SetFault(rig_->PlugMixer(), UnitFault::kRefusesToOpen);
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("levels 11 1"), "100");
  const std::ptrdiff_t held = OpenDescriptors(host->Id());
  ASSERT_EQ(host->Ask("levels 11 1000"), "100");
  EXPECT_EQ(OpenDescriptors(host->Id()), held);
  EXPECT_EQ(rig_->WireLog().size(), 2U * 1001U);
}

TEST_F(Process, AHundredRegistrationsHoldNoMoreDescriptorsThanOne) {
  const auto host = rig_->StartHost();
  ASSERT_EQ(host->Ask("register BoostLevel 11 host"), "100");
  const std::ptrdiff_t held = OpenDescriptors(host->Id());
  for (int round = 0; round < 10; ++round) {
    for (const char *kind : {"BoostLevel", "InputAudio", "OutputAudio"}) {
      for (const char *product : {"0", "5", "11"}) {
        ASSERT_EQ(host->Ask(std::string("register ") + kind + ' ' + product + " host"), "100");
      }
    }
    ASSERT_EQ(host->Ask("register MidiChannel 1 host"), "100");
  }
  EXPECT_EQ(OpenDescriptors(host->Id()), held);
}

TEST_F(Process, RefusedCallsOpenNothing) {
  const std::ptrdiff_t held = OpenDescriptors(getpid());
  EXPECT_EQ(ORV_RegisterMidiKeyModeChangedCallback(kVolt, IndexA, nullptr), kBadArgument);
  EXPECT_EQ(ORV_UnregisterMidiKeyModeChangedCallback(kVolt, IndexA), kBadArgument);
  EXPECT_EQ(ORV_RegisterMidiChannelChangedCallback(kSelva, IndexA, nullptr), kBadArgument);
  EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kBrisk, IndexA, nullptr), kBadArgument);
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 4), kBadArgument);
  EXPECT_EQ(OpenDescriptors(getpid()), held);
}

TEST_F(Process, AThreadThatHasSetALevelLeavesNoDescriptorWhenItEnds) {
  std::thread([] { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess); }).join();
  const std::ptrdiff_t held = OpenDescriptors(getpid());
  for (int i = 0; i < 20; ++i) {
    std::thread([] { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess); }).join();
  }
  EXPECT_EQ(OpenDescriptors(getpid()), held);
  EXPECT_EQ(rig_->TakeAnnouncements(21).size(), 21U);
}

TEST_F(Process, ABusThatIsAwayLeavesNoDescriptorBehind) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  DeliverAll();
  rig_->StopNotificationService();
  rig_->RunEventLoop(std::chrono::milliseconds(100));
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  const std::ptrdiff_t held = OpenDescriptors(getpid());
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
    ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
    rig_->RunEventLoop(std::chrono::milliseconds(0));
  }
  EXPECT_EQ(OpenDescriptors(getpid()), held);
}

TEST_F(Process, SettersOnEightThreadsReachEveryUnitTearNoFileAndAnnounceAll) {
  constexpr int kThreads = 8;
  constexpr int kSets = 25;
  rig_->PlugMixer();
  rig_->PlugMixer();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  PutSettings("TRX-SELVA",
              "<key>MaxLevel</key><integer>0</integer><key>Other</key><string>kept</string>");
  std::atomic<int> running = kThreads;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&running, t] {
      for (int i = 0; i < kSets; ++i) {
        EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, static_cast<std::uint32_t>(t + i) % 4), kSuccess);
        EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
        EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
        ORVStringRef text = nullptr;
        EXPECT_EQ(ORV_GetBoostLevelText(kSelva, 3, 0, &text), kSuccess);
        EXPECT_STREQ(text, "-19 dB");
      }
      --running;
    });
  }
  int looks = 0;
  while (running > 0) {
    const auto settings = SettingsOf("TRX-SELVA");
    ASSERT_TRUE(settings) << "missing or torn at look " << looks;
    ASSERT_EQ(settings->size(), 2U);
    ASSERT_EQ(settings->at("Other"), "<string>kept</string>");
    std::int32_t index = -77;
    ASSERT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &index), kSuccess);
    ASSERT_TRUE(index >= 0 && index < 4) << index;
    if (looks < 10) {
      ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, nullptr, nullptr), kSuccess);
    }
    ++looks;
  }
  for (std::thread &thread : threads) thread.join();
  EXPECT_GT(looks, 0);
  EXPECT_EQ(LibraryListing().size(), 1U) << "temporary files are left";
  const Lines wire = rig_->WireLog();
  EXPECT_EQ(wire.size(), 2U + 2U * 2U * kThreads * kSets);
  EXPECT_EQ(std::count_if(wire.begin(), wire.end(),
                          [](const std::string &line) { return line.starts_with("unit 1 "); }),
            1 + 2 * kThreads * kSets);
  const auto announcements = rig_->TakeAnnouncements(1 + kThreads * kSets);
  ASSERT_EQ(announcements.size(), 1U + kThreads * kSets);
  for (std::int32_t index = 0; index < 4; ++index) {
    EXPECT_EQ(std::count(announcements.begin(), announcements.end(),
                         BoostChange("TRX-SELVA", kSelva, index)),
              kThreads * kSets / 4 + (index == 0 ? 1 : 0));
  }
}

// A case with installed texts, and functions that threads call again and again.
class Threads : public InstalledFiles {
 protected:
  static constexpr int kThreads = 8;
  static constexpr int kRounds = 5;

  static void Set() {
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 3), kSuccess);
    EXPECT_EQ(ORV_SetUSBInputAudioDirect(kSelva, 1, 0, 5), kSuccess);
    EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess);
    EXPECT_EQ(ORV_SetUSBOutputAudioDefault(kSelva, 2), kSuccess);
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
    EXPECT_EQ(ORV_SetMidiChannelIndex(kVolt, 2), kSuccess);
  }

  static void SendAgain() {
    EXPECT_EQ(ORV_SetCurrentUSBInputAudio(kSelva, 0), kSuccess);
    EXPECT_EQ(ORV_SetCurrentUSBOutputAudio(kSelva, 1), kSuccess);
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
    EXPECT_EQ(ORV_SetCurrentMidiChannelIndex(kVolt), kSuccess);
  }

  // Each value is the one that is set here or, before that, the default.
  static void ExpectStored() {
    std::int32_t input = -77;
    EXPECT_EQ(ORV_GetCurrentUSBInputAudioIndex(kSelva, 0, &input), kSuccess);
    EXPECT_TRUE(input == 3 || input == 0) << input;
    std::int32_t output = -77;
    EXPECT_EQ(ORV_GetCurrentUSBOutputAudioIndex(kSelva, 1, &output), kSuccess);
    EXPECT_TRUE(output == 2 || output == 1) << output;
    std::int32_t level = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &level), kSuccess);
    EXPECT_TRUE(level == 1 || level == 3) << level;
    std::int32_t midi = -77;
    EXPECT_EQ(ORV_GetCurrentMidiChannelIndex(kVolt, &midi), kSuccess);
    EXPECT_EQ(midi, 2);
  }

  static void ExpectStatus() {
    EXPECT_EQ(ORV_IsUSBConnection(kSelva), kConnected);
    std::uint32_t certify = 77;
    EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &certify), kSuccess);
    EXPECT_EQ(certify, 1U);
    std::uint32_t firmware = 77;
    EXPECT_EQ(ORV_GetFirmwareVersionIndex(kSelva, &firmware), kSuccess);
    EXPECT_EQ(firmware, 0x0100U);
    std::uint32_t selector = 77;
    EXPECT_EQ(ORV_GetMixerInputSelectorStatus(kSelva, 2, &selector), kSuccess);
    EXPECT_EQ(selector, 6U);
    std::uint32_t serato = 77;
    EXPECT_EQ(ORV_GetMixerSeratoActiveStatus(kSelva, &serato), kSuccess);
    EXPECT_EQ(serato, 1U);
  }

  static void ExpectTexts() {
    ORVStringRef text = nullptr;
    EXPECT_EQ(ORV_GetPkgVersionText(kSelva, &text), kSuccess);
    EXPECT_STREQ(text, "1.2.3");
    EXPECT_EQ(ORV_GetLibraryVersionText(kSelva, &text), kSuccess);
    EXPECT_STREQ(text, "4.5");
    EXPECT_EQ(ORV_GetDriverVersionText(kSelva, &text), kBadArgument);
    EXPECT_EQ(ORV_GetUtilityVersionText(kSelva, &text), kBadArgument);
    EXPECT_EQ(ORV_GetWarningTextForSetUSBAudioInput(kSelva, 0, kSuccessWithWarning, 99, &text),
              kSuccess);
    EXPECT_STREQ(text, "a warning");
    EXPECT_EQ(ORV_GetUSBInputAudioText(kSelva, 0, 3, 0, &text), kSuccess);
    EXPECT_STREQ(text, "Cross Fader A");
    EXPECT_EQ(ORV_GetUSBOutputAudioText(kSelva, 0, 2, 0, &text), kSuccess);
    EXPECT_STREQ(text, "AUX");
    EXPECT_EQ(ORV_GetBoostLevelText(kSelva, 3, 0, &text), kSuccess);
    EXPECT_STREQ(text, "-19 dB");
  }

  void InstallTexts() {
    const std::string resources = "/Library/Frameworks/TRX-SELVASetup.framework/Resources";
    InstallSystem("10.15");
    Install("/private/var/db/receipts/com.orvikaudio.TRX-SELVA.pkg.plist",
            "<key>PackageVersion</key><string>1.2.3</string>");
    Install("/Library/Frameworks/TRX-SELVASetup.framework/Versions/A/Resources/Info.plist",
            "<key>CFBundleVersion</key><string>4.5</string>");
    std::string warnings;
    for (const std::string key : {"WARNING", "WARNING1", "WARNING2", "WARNING3"}) {
      warnings += "<key>" + key + "</key><string>a warning</string>";
    }
    Install(resources + "/English.lproj/Localizable.strings", warnings);
  }
};

TEST_F(Threads, EightThatCallEverythingAtOnceGetWhatOneWouldGet) {
  InstallTexts();
  for (const int unit : {rig_->PlugMixer(), rig_->PlugMixer()}) {
    rig_->SetSelector(unit, 2, 6);
    rig_->SetSerato(unit, 1, 0);
  }
  Set();
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([] {
      for (int i = 0; i < kRounds; ++i) {
        Set();
        SendAgain();
        ExpectStored();
        ExpectStatus();
        ExpectTexts();
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  const Lines wire = rig_->WireLog();
  const auto requestsTo = [&wire](const char *unit) {
    return std::count_if(wire.begin(), wire.end(),
                         [unit](const std::string &line) { return line.starts_with(unit); });
  };
  EXPECT_EQ(requestsTo("unit 1 "), 10 + 19 * kThreads * kRounds);
  EXPECT_EQ(requestsTo("unit 2 "), 10 + 17 * kThreads * kRounds)
      << "all but the firmware version and the port";
  EXPECT_EQ(rig_->TakeAnnouncements(5U + 5U * kThreads * kRounds).size(),
            5U + 5U * kThreads * kRounds);
}

// --- fork ------------------------------------------------------------------------------------

// Runs `body` in a forked child and expects that it returns true there.
void ExpectInChild(const std::function<bool()> &body) {
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) _exit(body() && !testing::Test::HasFailure() ? 0 : 1);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
}

// A connection that a child kept would outlive its parent: to the bus the parent was still there.
TEST_F(Process, AForkedChildHoldsNoDescriptorOfTheParentsRegistrations) {
  const std::vector<std::string> before = DescriptorTargets();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_GT(DescriptorTargets().size(), before.size());
  ExpectInChild([&] {
    EXPECT_EQ(DescriptorTargets(), before);
    return true;
  });
}

// Long enough for an inherited timer to try the bus again.
TEST_F(Process, AForkedChildStartsWithoutRegistrationsAndLeavesTheParentsAlone) {
  constexpr std::chrono::milliseconds kChildLooks{1500};
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_TRUE(Delivered({}));
  rig_->TakeAnnouncements(2);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ASSERT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
  ExpectInChild([&] {
    const auto end = std::chrono::steady_clock::now() + kChildLooks;
    while (std::chrono::steady_clock::now() < end) {
      rig_->RunEventLoop(std::chrono::milliseconds(50));
    }
    if (ORV_SetBoostLevelIndex(kSelva, 2) != kSuccess) return false;
    rig_->RunEventLoop(std::chrono::milliseconds(200));
    return Calls().empty();
  });
  EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 2)});
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_TRUE(RunEventLoopUntil([] { return Calls().size() >= 3; }));
  EXPECT_EQ(Calls(), (CallList{{"A selva", -1, 1}, {"A selva", -1, 2}, {"A selva", -1, 3}}));
}

TEST_F(Process, AForkedChildCanRegisterOnItsOwn) {
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  DeliverAll();
  ExpectInChild([this] {
    if (ORV_RegisterBoostLevelChangedCallback(kHalden, IndexB, &halden) != kSuccess) return false;
    if (ORV_SetBoostLevelIndex(kSelva, 0) != kSuccess ||
        ORV_SetBoostLevelIndex(kHalden, 2) != kSuccess)
      return false;
    return RunEventLoopUntil([] { return !Calls().empty(); }) &&
           Calls() == CallList{{"B halden", -1, 2}};
  });
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_TRUE(Delivered({{"A selva", -1, 0}, {"A selva", -1, 3}}));
}

TEST_F(Process, AForkedChildOfAProcessThatOnlySetLevelsSetsAndAnnouncesToo) {
  rig_->PlugMixer();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  ExpectInChild([] { return ORV_SetBoostLevelIndex(kSelva, 2) == kSuccess; });
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
  EXPECT_EQ(rig_->WireLog().size(), 3U);
  EXPECT_EQ(rig_->TakeAnnouncements(3),
            (std::vector{BoostChange("TRX-SELVA", kSelva, 1), BoostChange("TRX-SELVA", kSelva, 2),
                         BoostChange("TRX-SELVA", kSelva, 3)}));
}

// --- The user's folders ------------------------------------------------------------------------

TEST_F(Process, TheConfigurationFolderIsLookedUpAfreshAndARelativeOneIsIgnored) {
  const std::string home = fs::path(rig_->LibraryFolder()).parent_path().parent_path() / "someone";
  ASSERT_EQ(setenv("HOME", home.c_str(), 1), 0);
  ASSERT_EQ(setenv("XDG_CONFIG_HOME", "relative/folder", 1), 0);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  const std::string file = "/orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist";
  EXPECT_TRUE(fs::is_regular_file(home + "/.config" + file));
  EXPECT_FALSE(fs::exists("relative"));
  ASSERT_EQ(setenv("XDG_CONFIG_HOME", (home + "/elsewhere").c_str(), 1), 0);
  std::int32_t index = -77;
  EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &index), kSuccess);
  EXPECT_EQ(index, 3);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  EXPECT_TRUE(fs::is_regular_file(home + "/elsewhere" + file));
  EXPECT_EQ(LibraryListing(), Lines());
}

}  // namespace
}  // namespace trxtest
