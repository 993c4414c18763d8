// A process that is killed while it sets something, before each of its system calls in turn: the
// settings file is the old one or the new one, and the next write removes any file beside it.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <SteppedProcess.h>
#include <SystemCallFilter.h>

#include "Deliveries.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

constexpr int kFewestMoments = 25;
constexpr int kMostMoments = 5000;

const Settings kOld = {{"MaxLevel", "<integer>3</integer>"}, {"Other", "<string>kept</string>"}};
const Settings kNew = {{"MaxLevel", "<integer>1</integer>"}, {"Other", "<string>kept</string>"}};
const Settings kNext = {{"MaxLevel", "<integer>2</integer>"}, {"Other", "<string>kept</string>"}};

const Lines kNothingElse = {"Preferences/com.orvikaudio.TRX-SELVAautosetup.plist"};
// Folders that are empty so far.
const Lines kBeforeTheFile = {"./", "Preferences/"};
const std::string kLeftBeside = "Preferences/.com.orvikaudio.TRX-SELVAautosetup.plist.";
const std::string kLeftAnnounced = kLeftBeside + "new.";

std::string selva = "selva";

bool Contains(const Lines &lines, const std::string &line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

void SetOne() { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess); }
void SetTwo() { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess); }

class KilledWriter : public Deliveries {
 protected:
  struct Tally {
    int moments = 0;
    int oldFiles = 0;
    int newFiles = 0;
    Lines leftBehind;  // a line for each name each time
  };

  // Calls `prepare`, has a child run `set`, and kills it before its first, its second, ... its last
  // system call. Checks the files each time, and calls `afterwards`.
  Tally KillAtEveryMoment(const std::function<void()> &prepare, const std::function<void()> &set,
                          const std::optional<Settings> &oldFile,
                          const std::optional<Settings> &newFile,
                          const std::function<void()> &afterwards) {
    Tally tally;
    for (int moment = 1; moment <= kMostMoments; ++moment) {
      prepare();
      SteppedProcess child(set);
      if (!child.StepTo(moment)) {
        EXPECT_TRUE(child.RunToEnd());
        EXPECT_EQ(SettingsOf("TRX-SELVA"), newFile);
        return tally;
      }
      child.Kill();
      ++tally.moments;
      const std::optional<Settings> found = SettingsOf("TRX-SELVA");
      EXPECT_TRUE(found == oldFile || found == newFile) << "torn or lost at moment " << moment;
      EXPECT_TRUE(found || !fs::exists(rig_->SettingsFile("TRX-SELVA"))) << "moment " << moment;
      ++(found == oldFile ? tally.oldFiles : tally.newFiles);
      for (const std::string &name : LibraryListing()) {
        if (!Contains(kNothingElse, name) && !Contains(kBeforeTheFile, name)) {
          tally.leftBehind.push_back(name);
        }
      }
      afterwards();
      if (HasFailure()) return tally;
    }
    ADD_FAILURE() << "the child never ends";
    return tally;
  }

  void PutOldFile() {
    PutSettings("TRX-SELVA",
                "<key>MaxLevel</key><integer>3</integer><key>Other</key><string>kept</string>");
  }

  static void ExpectAllToBegin(const std::string &beginning, const Lines &names) {
    EXPECT_FALSE(names.empty()) << "the case does not show what it is for";
    for (const std::string &name : names) {
      EXPECT_EQ(name.substr(0, beginning.size()), beginning);
    }
  }

  void ExpectNextWriteLeavesOnlyTheFile() {
    SetTwo();
    EXPECT_EQ(SettingsOf("TRX-SELVA"), kNext);
    EXPECT_EQ(LibraryListing(), kNothingElse);
  }

  // An earlier registration still gets later settings.
  void ExpectRegistrationsHold() {
    DeliverAll();
    SetTwo();
    EXPECT_TRUE(Delivered({{"A selva", -1, 2}}));
  }
};

TEST_F(KilledWriter, AKilledWriterLeavesTheOldFileOrTheNewOneAndNothingAfterTheNextWrite) {
  rig_->PlugMixer();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kSelva, IndexA, &selva), kSuccess);
  const Tally tally = KillAtEveryMoment([this] { PutOldFile(); }, SetOne, kOld, kNew,
                                        [this] { ExpectNextWriteLeavesOnlyTheFile(); });
  EXPECT_GT(tally.moments, kFewestMoments);
  EXPECT_GT(tally.oldFiles, 0);
  EXPECT_GT(tally.newFiles, 0);
  ExpectAllToBegin(kLeftAnnounced, tally.leftBehind);
  ExpectRegistrationsHold();
}

TEST_F(KilledWriter, AKilledWriterLeavesNothingWhenItWasTheFirst) {
  const Tally tally =
      KillAtEveryMoment([this] { fs::remove_all(rig_->LibraryFolder()); }, SetOne, std::nullopt,
                        Settings{{"MaxLevel", "<integer>1</integer>"}}, [] {});
  EXPECT_GT(tally.moments, kFewestMoments);
  EXPECT_GT(tally.oldFiles, 0);
  EXPECT_GT(tally.newFiles, 0);
  EXPECT_EQ(tally.leftBehind, Lines());
}

TEST_F(KilledWriter, AKilledWriterThatNamesItsFileLeavesNothingAfterTheNextWrite) {
  const Tally tally = KillAtEveryMoment([this] { PutOldFile(); },
                                        [] {
                                          GiveUpUnnamedFiles();
                                          SetOne();
                                        },
                                        kOld, kNew,
                                        [this] {
                                          SteppedProcess next([] {
                                            GiveUpUnnamedFiles();
                                            SetTwo();
                                          });
                                          EXPECT_TRUE(next.RunToEnd());
                                          EXPECT_EQ(SettingsOf("TRX-SELVA"), kNext);
                                          EXPECT_EQ(LibraryListing(), kNothingElse);
                                        });
  EXPECT_GT(tally.moments, kFewestMoments);
  EXPECT_GT(tally.oldFiles, 0);
  EXPECT_GT(tally.newFiles, 0);
  ExpectAllToBegin(kLeftBeside, tally.leftBehind);
}

// Another program sets another value while the one to be killed is stopped.
TEST_F(KilledWriter, AKilledWriterTakesNothingOfAnotherWithIt) {
  int moments = 0;
  for (bool isAtWork = true; isAtWork && !HasFailure();) {
    PutOldFile();
    SteppedProcess child(SetOne);
    isAtWork = child.StepTo(++moments).has_value();
    SteppedProcess another([] { EXPECT_EQ(ORV_SetUSBOutputAudio(kSelva, 1, 2), kSuccess); });
    EXPECT_TRUE(another.RunToEnd());
    // As far as it would have come alone, and no further.
    if (isAtWork && child.StepTo(kFewestMoments)) child.Kill();
    SetTwo();
    Settings expected = kNext;
    expected["Input1"] = "<integer>2</integer>";
    EXPECT_EQ(SettingsOf("TRX-SELVA"), expected) << "moment " << moments;
    EXPECT_EQ(LibraryListing(), kNothingElse);
  }
  EXPECT_GT(moments, kFewestMoments);
}

}  // namespace
}  // namespace trxtest
