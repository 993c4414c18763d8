// No space for the settings file: setting works otherwise, the file stays as it was, and nothing is
// left beside it.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <Mounts.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "Aftermath.h"
#include "WireLines.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class FullDisk : public Aftermath {
 protected:
  FullDisk() {
    HaveOwnMounts();
    fs::create_directories(rig_->LibraryFolder());
  }

  // Leaves this many free blocks of a file system in memory.
  void FillUpTo(std::uintmax_t blocksLeft) {
    struct statvfs status = {};
    ASSERT_EQ(statvfs(rig_->LibraryFolder().c_str(), &status), 0);
    ASSERT_GE(status.f_bfree, blocksLeft);
    const std::string bytes((status.f_bfree - blocksLeft) * status.f_bsize, 'x');
    std::ofstream filler(Filler(), std::ios::binary);
    ASSERT_TRUE(filler << bytes << std::flush);
  }

  void TakeAllNames() {
    for (int i = 0;; ++i) {
      std::ofstream file(Filler() + std::to_string(i));
      if (!file) return;
    }
  }

  void MakeRoom() {
    for (const auto &entry : fs::directory_iterator(rig_->LibraryFolder())) {
      if (entry.path().string().starts_with(Filler())) fs::remove(entry.path());
    }
  }

  std::string Filler() { return rig_->LibraryFolder() + "/filler"; }

  // The setter returns, sends and announces as usual.
  void ExpectSetButNotStored(int unit, const std::optional<Settings> &stored) {
    const Lines before = LibraryListing();
    rig_->ClearWireLog();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
    EXPECT_EQ(rig_->WireLog(), Lines{Sent(unit, "0200", "8003")});
    EXPECT_EQ(SettingsOf("TRX-SELVA"), stored);
    EXPECT_EQ(LibraryListing(), before);
    EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
    std::int32_t level = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &level), kSuccess);
    EXPECT_EQ(level, 3);
  }
};

TEST_F(FullDisk, AFullDiskLeavesTheOldFileWholeAndNothingBesideIt) {
  const Mount memory = Mount::Memory(rig_->LibraryFolder(), "size=256k");
  const int unit = rig_->PlugMixer();
  Register();
  // Three blocks of text, with none, one or two of them free.
  const std::string text(9000, 'o');
  const Settings old = {{"MaxLevel", "<integer>3</integer>"},
                        {"Other", "<string>" + text + "</string>"}};
  for (const std::uintmax_t free : {0U, 1U, 2U}) {
    PutLevelThree(text);
    FillUpTo(free);
    ExpectSetButNotStored(unit, old);
    MakeRoom();
  }
  PutLevelThree();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
  ExpectRegistrationHolds();
}

TEST_F(FullDisk, AFolderWithoutRoomForOneMoreNameKeepsTheOldFileWhole) {
  const Mount memory = Mount::Memory(rig_->LibraryFolder(), "size=256k,nr_inodes=16");
  const int unit = rig_->PlugMixer();
  PutLevelThree();
  TakeAllNames();
  ExpectSetButNotStored(unit, Level(3));
  MakeRoom();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
}

TEST_F(FullDisk, AFullDiskLeavesNothingWhereNothingWas) {
  const Mount memory = Mount::Memory(rig_->LibraryFolder(), "size=256k,nr_inodes=16");
  const int unit = rig_->PlugMixer();
  TakeAllNames();
  ExpectSetButNotStored(unit, std::nullopt);
  MakeRoom();
  fs::create_directory(rig_->LibraryFolder() + "/Preferences");
  FillUpTo(0);
  ExpectSetButNotStored(unit, std::nullopt);
  MakeRoom();
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"MaxLevel", "<integer>1</integer>"}}));
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
}

class ReadOnlyFolder : public FullDisk {};

TEST_F(ReadOnlyFolder, AReadOnlyFolderLeavesTheOldFile) {
  const int unit = rig_->PlugMixer();
  Register();
  PutLevelThree();
  {
    const Mount readOnly = Mount::ReadOnly(rig_->LibraryFolder() + "/Preferences");
    ExpectSetButNotStored(unit, Level(3));
  }
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
  ExpectRegistrationHolds();
}

TEST_F(ReadOnlyFolder, AReadOnlyFolderGetsNoSettings) {
  const int unit = rig_->PlugMixer();
  {
    const Mount readOnly = Mount::ReadOnly(rig_->LibraryFolder());
    ExpectSetButNotStored(unit, std::nullopt);
  }
  EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
}

}  // namespace
}  // namespace trxtest
