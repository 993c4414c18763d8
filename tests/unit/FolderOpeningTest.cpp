// Opening and making a user's folders: only for their owner, whoever makes them, and through no
// link by which a user could lead root elsewhere.
#include <cstdio>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "FolderOpening.h"
#include "SteppedProcess.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using trxtest::ExpectQuietSuccess;
using trxtest::ReadBytes;
using trxtest::SteppedProcess;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

mode_t ModeOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  EXPECT_TRUE(S_ISDIR(status.st_mode)) << path;
  return status.st_mode & 07777;
}

bool IsFolder(const File &file, const std::string &path) {
  struct stat opened = {};
  struct stat there = {};
  return fstat(file.Descriptor(), &opened) == 0 && stat(path.c_str(), &there) == 0 &&
         opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

TEST(OpenFolder, OpenFolderMakesEveryMissingLevelForItsOwnerAlone) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  const File opened = OpenFolder(folder / "one/two/three");
  umask(before);
  EXPECT_TRUE(IsFolder(opened, folder / "one/two/three"));
  EXPECT_EQ(ModeOf(folder / "one"), 0700U);
  EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
  EXPECT_EQ(ModeOf(folder / "one/two/three"), 0700U);
}

TEST(OpenFolder, OpenFolderLeavesLevelsThatAreThereAsTheyAre) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir((folder / "one").c_str(), 0700), 0);
  ASSERT_EQ(chmod((folder / "one").c_str(), 0755), 0);
  WriteBytes(folder / "one/file", "kept");
  for (int time = 0; time < 2; ++time) {
    EXPECT_TRUE(IsFolder(OpenFolder(folder / "one/two"), folder / "one/two"));
    EXPECT_EQ(ModeOf(folder / "one"), 0755U);
    EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
    EXPECT_EQ(ReadBytes(folder / "one/file"), "kept");
  }
}

TEST(OpenFolder, OpenFolderLeavesAFileInAFoldersPlaceAsItIs) {
  const TemporaryFolder folder;
  WriteBytes(folder / "one", "a file");
  ExpectQuietSuccess([&] { EXPECT_FALSE(OpenFolder(folder / "one/two").IsOpen()); });
  EXPECT_EQ(ReadBytes(folder / "one"), "a file");
}

TEST(OpenFolder, OpenFolderFollowsLinksOfItsOwnUser) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir((folder / "there").c_str(), 0700), 0);
  ASSERT_EQ(symlink("./there//", (folder / "relative").c_str()), 0);
  ASSERT_EQ(symlink((folder / "relative/../relative").c_str(), (folder / "chain").c_str()), 0);
  EXPECT_TRUE(IsFolder(OpenFolder(folder / "chain"), folder / "there"));
  EXPECT_TRUE(IsFolder(OpenFolder(folder / "chain/one"), folder / "there/one"));
  EXPECT_TRUE(IsFolder(OpenFolder(folder / "relative/one/two"), folder / "there/one/two"));
}

TEST(OpenFolder, OpenFolderMakesNothingBehindALinkThatLeadsNowhere) {
  const TemporaryFolder folder;
  ASSERT_EQ(symlink("nowhere", (folder / "link").c_str()), 0);
  ASSERT_EQ(symlink("circle", (folder / "circle").c_str()), 0);
  for (const char *const path : {"link", "link/one", "circle", "circle/one"}) {
    EXPECT_FALSE(OpenFolder(folder / path).IsOpen()) << path;
  }
  EXPECT_EQ(folder.Entries(), 2U);
}

TEST(OpenFolder, OpenFolderOpensTheRootOfAllFolders) {
  EXPECT_TRUE(IsFolder(OpenFolder("/"), "/"));
}

// --- Root in a user's folders --------------------------------------------------------------------

constexpr uid_t kSomeUser = 54'321;

// Root's link leads into a user's home, so root looks at each step.
class OpenFolderAsRoot : public testing::Test {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "only root can write everywhere";
    for (const char *const name : {"home", "home/config", "root's"}) {
      ASSERT_EQ(mkdir((folder_ / name).c_str(), 0700), 0);
    }
    ASSERT_EQ(symlink("home", (folder_ / "link").c_str()), 0);
    ASSERT_EQ(chown((folder_ / "home").c_str(), kSomeUser, 0), 0);
    ASSERT_EQ(chown((folder_ / "home/config").c_str(), kSomeUser, 0), 0);
  }

  void PutUsersLinkInPlace() {
    ASSERT_EQ(rename(config_.c_str(), away_.c_str()), 0);
    ASSERT_EQ(symlink((folder_ / "root's").c_str(), config_.c_str()), 0);
    ASSERT_EQ(lchown(config_.c_str(), kSomeUser, 0), 0);
  }

  void PutFolderBack() {
    ASSERT_EQ(unlink(config_.c_str()), 0);
    ASSERT_EQ(rename(away_.c_str(), config_.c_str()), 0);
    rmdir((config_ + "/made").c_str());
  }

  const TemporaryFolder folder_;
  const std::string config_ = folder_ / "home/config";
  const std::string away_ = folder_ / "home/away";
};

TEST_F(OpenFolderAsRoot, RootDoesNotFollowAUsersLinkBehindOneOfItsOwn) {
  EXPECT_TRUE(IsFolder(OpenFolder(folder_ / "link/config"), config_));
  PutUsersLinkInPlace();
  EXPECT_FALSE(OpenFolder(folder_ / "link/config").IsOpen());
  ASSERT_EQ(symlink("link/config", (folder_ / "chain").c_str()), 0);
  EXPECT_FALSE(OpenFolder(folder_ / "chain").IsOpen());
}

TEST_F(OpenFolderAsRoot, RootIsNotLedElsewhereByALinkThatTakesAFoldersPlaceMeanwhile) {
  bool isAtWork = true;
  int moment = 1;
  for (; isAtWork && !HasFailure(); ++moment) {
    SCOPED_TRACE(moment);
    SteppedProcess root([&] {
      const File opened = OpenFolder(folder_ / "link/config/made");
      _exit(opened.IsOpen() && mkdirat(opened.Descriptor(), "inside", 0700) == 0 ? 0 : 1);
    });
    isAtWork = root.StepTo(moment).has_value();
    PutUsersLinkInPlace();
    root.RunToEnd();
    EXPECT_TRUE(std::filesystem::is_empty(folder_ / "root's"));
    rmdir((away_ + "/made/inside").c_str());
    PutFolderBack();
  }
  EXPECT_GT(moment, 10);
}

}  // namespace
}  // namespace orv
