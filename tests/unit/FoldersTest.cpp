// The place of a user's files, from the environment and the account.
#include <cstdlib>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "Environment.h"
#include "Folders.h"
#include "PrivilegedProbe.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::EndsWith;
using testing::Optional;
using testing::StartsWith;
using testing::StrEq;
using trxtest::BecomeUserWithoutAccount;
using trxtest::ExpectQuietSuccess;
using trxtest::OutputOf;
using trxtest::PrivilegedProbe;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;

// The environment is the process's: each test changes it in a child.
TEST(LibraryFolder, TheLibraryFolderLiesInTheConfigurationFolderOfTheEnvironment) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    setenv("XDG_CONFIG_HOME", "/elsewhere/config", 1);
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/elsewhere/config/orvikaudio")));
  });
}

TEST(LibraryFolder, TheLibraryFolderLiesInTheHomeFolderWhenTheEnvironmentNamesNoOther) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_THAT(LibraryFolder(), Optional(StrEq("/home/somebody/.config/orvikaudio")));
  });
}

TEST(LibraryFolder, TheLibraryFolderTakesNoNoticeOfAConfigurationFolderThatIsNotAbsolute) {
  ExpectQuietSuccess([] {
    setenv("HOME", "/home/somebody", 1);
    for (const char *relative : {"", "config", "./config", "~/config"}) {
      setenv("XDG_CONFIG_HOME", relative, 1);
      EXPECT_THAT(LibraryFolder(), Optional(StrEq("/home/somebody/.config/orvikaudio")))
          << relative;
    }
  });
}

TEST(LibraryFolder, TheLibraryFolderLiesInTheHomeFolderOfTheAccountWhenTheEnvironmentNamesNone) {
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

TEST(LibraryFolder, TheLibraryFolderIsLookedUpAfreshEachTime) {
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

// The user who starts such a program must not choose where it writes with another user's rights.
TEST(LibraryFolder,
     TheLibraryFolderLiesInTheHomeOfWhoseRightsTheProcessHasWhateverTheEnvironmentSays) {
  const Environment environment = {{"HOME", "/foreign"}, {"XDG_CONFIG_HOME", "/foreign/config"}};
  EXPECT_THAT(OutputOf(PRIVILEGE_PROBE), EndsWith(" /foreign/config/orvikaudio"));
  const PrivilegedProbe probe;
  if (!probe.IsPrivileged() && geteuid() != 0) {
    GTEST_SKIP() << "this account cannot give a program other rights";
  }
  ASSERT_TRUE(probe.IsPrivileged());
  struct stat program = {};
  ASSERT_EQ(stat(probe.Path().c_str(), &program), 0);
  const passwd *const account = getpwuid(program.st_uid);
  ASSERT_NE(account, nullptr);
  EXPECT_THAT(OutputOf(probe.Path()),
              EndsWith(std::string(" ") + account->pw_dir + "/.config/orvikaudio"));
}

// Such a program's folders may be closed to the user who starts it.
TEST(LibraryFolder, TheLibraryFolderIsMadeInAHomeThatOnlyTheUserWhoseRightsTheProcessHasCanEnter) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a program another user's rights";
  const PrivilegedProbe probe;
  ASSERT_TRUE(probe.IsPrivileged());
  struct stat program = {};
  ASSERT_EQ(stat(probe.Path().c_str(), &program), 0);
  const TemporaryFolder home;
  ASSERT_EQ(chown(home.Path().c_str(), program.st_uid, program.st_gid), 0);
  const std::string file = home / ".config/orvikaudio/file";
  ExpectQuietSuccess([&] {
    BecomeUserWithoutAccount();
    EXPECT_THAT(OutputOf(probe.Path(), file), StartsWith("privileged "));
  });
  EXPECT_EQ(ReadBytes(file), "stored");
}

TEST(LibraryFolder, TheLibraryFolderIsNoneForAUserWithoutHomeAndAccount) {
  ExpectQuietSuccess([] {
    BecomeUserWithoutAccount();
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");
    EXPECT_EQ(LibraryFolder(), std::nullopt);
  });
}

}  // namespace
}  // namespace orv
