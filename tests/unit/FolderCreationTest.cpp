// Making a user's folders: only for their owner, whoever makes them.
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "FolderCreation.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using trxtest::ExpectQuietSuccess;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

mode_t ModeOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  EXPECT_TRUE(S_ISDIR(status.st_mode)) << path;
  return status.st_mode & 07777;
}

TEST(MakeFolder, MakesEveryMissingLevelForItsOwnerAlone) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  MakeFolder(folder / "one/two/three");
  umask(before);
  EXPECT_EQ(ModeOf(folder / "one"), 0700U);
  EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
  EXPECT_EQ(ModeOf(folder / "one/two/three"), 0700U);
}

TEST(MakeFolder, LeavesLevelsThatAreThereAsTheyAre) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir((folder / "one").c_str(), 0700), 0);
  ASSERT_EQ(chmod((folder / "one").c_str(), 0755), 0);
  WriteBytes(folder / "one/file", "kept");
  MakeFolder(folder / "one/two");
  EXPECT_EQ(ModeOf(folder / "one"), 0755U);
  EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
  EXPECT_EQ(ReadBytes(folder / "one/file"), "kept");
  MakeFolder(folder / "one/two");
  EXPECT_EQ(ModeOf(folder / "one/two"), 0700U);
}

TEST(MakeFolder, LeavesAFileInAFoldersPlaceAsItIs) {
  const TemporaryFolder folder;
  WriteBytes(folder / "one", "a file");
  ExpectQuietSuccess([&] { MakeFolder(folder / "one/two"); });
  EXPECT_EQ(ReadBytes(folder / "one"), "a file");
}

}  // namespace
}  // namespace orv
