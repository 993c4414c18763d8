// Where a user's files are, by the environment and the account.
#include <cstdlib>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "Folders.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::Optional;
using testing::StrEq;
using trxtest::BecomeUserWithoutAccount;
using trxtest::ExpectQuietSuccess;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

// The environment is the process's: each test changes it in a child.
TEST(LibraryFolder, LiesInTheConfigurationFolderOfTheEnvironment) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    setenv("XDG_CONFIG_HOME", "/elsewhere/config", 1);
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/elsewhere/config/orvikaudio")));
  });
}

TEST(LibraryFolder, LiesInTheHomeFolderWhenTheEnvironmentNamesNoOther) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/home/somebody/.config/orvikaudio")));
  });
}

TEST(LibraryFolder, TakesNoNoticeOfAConfigurationFolderThatIsNotAbsolute) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    for (const char *relative : {"", "config", "./config", "~/config"}) {
      setenv("XDG_CONFIG_HOME", relative, 1);
      EXPECT_THAT(LibraryFolder(), Optional(StrEq("/home/somebody/.config/orvikaudio")))
          << relative;
    }
  });
}

TEST(LibraryFolder, LiesInTheHomeFolderOfTheAccountWhenTheEnvironmentNamesNone) {
  const passwd *const account = getpwuid(getuid());
  ASSERT_NE(account, nullptr);
  const std::string expected = std::string(account->pw_dir) + "/.config/orvikaudio";
  ExpectQuietSuccess([&] {
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");
    EXPECT_THAT(LibraryFolder(), Optional(StrEq(expected)));
    for (const char *relative : {"", "somebody"}) {
      setenv("HOME", relative, 1);
      EXPECT_THAT(LibraryFolder(), Optional(StrEq(expected))) << relative;
    }
  });
}

TEST(LibraryFolder, IsLookedUpAfreshEachTime) {
  ExpectQuietSuccess([] {
    setenv("XDG_CONFIG_HOME", "/first", 1);
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/first/orvikaudio")));
    setenv("XDG_CONFIG_HOME", "/second", 1);
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/second/orvikaudio")));
    setenv("HOME", "/third", 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/third/.config/orvikaudio")));
  });
}

TEST(LibraryFolder, IsNoneForAUserWithoutHomeAndAccount) {
  ExpectQuietSuccess([] {
    BecomeUserWithoutAccount();
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");
    EXPECT_EQ(LibraryFolder(), std::nullopt);
  });
}

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
