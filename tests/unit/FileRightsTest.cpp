// The rights to a file that has replaced another one: nobody gets more than before.
#include <cerrno>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "FileReplacement.h"
#include "SystemCallFilter.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using trxtest::BecomeOrdinaryUser;
using trxtest::ExpectQuietSuccess;
using trxtest::GiveUpUnnamedFiles;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

constexpr std::size_t kPlenty = 1'000'000;
constexpr uid_t kSomeUser = 54'321;
constexpr gid_t kSomeGroup = 54'322;

constexpr const char *kAccessList = "system.posix_acl_access";
constexpr const char *kListForNewFiles = "system.posix_acl_default";

struct stat StatusOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

// An access list in the kernel's format: the rights of the owner, one more user, the group, the
// mask and all others.
std::string AccessList(unsigned owner, unsigned oneMore, unsigned group, unsigned most,
                       unsigned rest) {
  std::string list("\2\0\0\0", 4);
  const auto add = [&](char tag, unsigned rights, std::uint32_t id) {
    list += {tag, 0, static_cast<char>(rights), 0};
    for (int shift = 0; shift < 32; shift += 8) list += static_cast<char>(id >> shift & 0xFF);
  };
  add(0x01, owner, UINT32_MAX);
  add(0x02, oneMore, kSomeUser);
  add(0x04, group, UINT32_MAX);
  add(0x10, most, UINT32_MAX);
  add(0x20, rest, UINT32_MAX);
  return list;
}

std::optional<std::string> Attribute(const std::string &path, const char *name) {
  std::string value(1000, '\0');
  const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
  if (size < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(size));
  return value;
}

// Returns false where the file system has no such attributes.
bool SetAttribute(const std::string &path, const char *name, const std::string &value) {
  return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

class FileRights : public testing::Test {
 protected:
  void PutOldFile(mode_t mode) const {
    WriteBytes(path_, "old");
    ASSERT_EQ(chmod(path_.c_str(), mode), 0);
  }

  void Replace() const {
    EXPECT_TRUE(ChangeFileContents(path_, kPlenty, [](const auto &) { return "new"; }));
    EXPECT_EQ(ReadBytes(path_), "new");
  }

  mode_t Mode() const { return StatusOf(path_).st_mode & 07777; }

  // In the build folder: file systems in memory have no user attributes.
  const TemporaryFolder folder_{BUILD_FOLDER};
  const std::string path_ = folder_ / "settings";
};

TEST_F(FileRights, OwnerGroupAndPermissionsAreKept) {
  const bool isRoot = geteuid() == 0;
  const uid_t user = isRoot ? kSomeUser : geteuid();
  const gid_t group = isRoot ? kSomeGroup : getegid();
  const std::vector<std::function<void()>> systems = {[] {}, GiveUpUnnamedFiles};
  for (const auto &giveUp : systems) {
    PutOldFile(0600);
    ASSERT_EQ(chown(path_.c_str(), user, group), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0664), 0);
    ExpectQuietSuccess([&] {
      giveUp();
      Replace();
    });
    EXPECT_EQ(StatusOf(path_).st_uid, user);
    EXPECT_EQ(StatusOf(path_).st_gid, group);
    EXPECT_EQ(Mode(), 0664U);
    ASSERT_EQ(unlink(path_.c_str()), 0);
  }
}

// Only root can test the first half of this: a file of a group that the writer is not in.
TEST_F(FileRights, NothingIsLeftToAnotherGroupThanTheOldFiles) {
  const bool isRoot = geteuid() == 0;
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  struct Case {
    mode_t before;
    mode_t afterwards;
  };
  // In the last one, all others may read and the group may not.
  for (const auto &[before, afterwards] : {Case{0664, 0604}, Case{0646, 0604}, Case{0604, 0600}}) {
    PutOldFile(0600);
    ASSERT_EQ(chown(path_.c_str(), geteuid(), isRoot ? kSomeGroup : getegid()), 0);
    ASSERT_EQ(chmod(path_.c_str(), before), 0);
    ExpectQuietSuccess([this] {
      BecomeOrdinaryUser();
      Replace();
    });
    EXPECT_EQ(Mode(), isRoot ? afterwards : before);
    ASSERT_EQ(unlink(path_.c_str()), 0);
  }
}

TEST_F(FileRights, AnAccessListIsKept) {
  const std::string list = AccessList(6, 4, 0, 4, 0);
  PutOldFile(0600);
  ASSERT_TRUE(SetAttribute(path_, kAccessList, list)) << "needs access lists below " BUILD_FOLDER;
  ASSERT_EQ(Mode(), 0640U);
  Replace();
  EXPECT_EQ(Attribute(path_, kAccessList), list);
  EXPECT_EQ(Mode(), 0640U);
}

// Only root can test this, as above.
TEST_F(FileRights, AnAccessListThatCannotBeKeptLeavesNothingToAnybodyElse) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can make a file of a group that it is not in";
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  PutOldFile(0600);
  ASSERT_EQ(chown(path_.c_str(), 0, kSomeGroup), 0);
  ASSERT_TRUE(SetAttribute(path_, kAccessList, AccessList(6, 0, 4, 4, 4)));
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    Replace();
  });
  EXPECT_EQ(Attribute(path_, kAccessList), std::nullopt);
  EXPECT_EQ(Mode(), 0600U);
}

TEST_F(FileRights, AListThatTheFolderHasForNewFilesGivesNobodyMore) {
  ASSERT_TRUE(SetAttribute(folder_.Path(), kListForNewFiles, AccessList(7, 7, 7, 7, 7)));
  PutOldFile(0600);
  ASSERT_EQ(removexattr(path_.c_str(), kAccessList), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
  Replace();
  EXPECT_EQ(Attribute(path_, kAccessList), std::nullopt);
  EXPECT_EQ(Mode(), 0640U);
  ASSERT_EQ(unlink(path_.c_str()), 0);
  Replace();
  EXPECT_EQ(Mode(), 0600U);
}

TEST_F(FileRights, AttributesOfUsersAreKept) {
  PutOldFile(0600);
  const std::string many(300, 'x');
  ASSERT_TRUE(SetAttribute(path_, "user.xdg.comment", "from the desk"));
  ASSERT_TRUE(SetAttribute(path_, "user.empty", ""));
  ASSERT_TRUE(SetAttribute(path_, ("user." + std::string(200, 'n')).c_str(), many));
  ASSERT_TRUE(SetAttribute(path_, ("user." + std::string(200, 'm')).c_str(), many));
  Replace();
  EXPECT_EQ(Attribute(path_, "user.xdg.comment"), "from the desk");
  EXPECT_EQ(Attribute(path_, "user.empty"), "");
  EXPECT_EQ(Attribute(path_, ("user." + std::string(200, 'n')).c_str()), many);
  EXPECT_EQ(Attribute(path_, ("user." + std::string(200, 'm')).c_str()), many);
}

TEST_F(FileRights, TheRightsOfWhatIsNoFileAreNotTaken) {
  const std::vector<std::function<int()>> kinds = {
      [this] { return mkfifo(path_.c_str(), 0); },
      [this] { return mknod(path_.c_str(), S_IFSOCK, 0); }};
  for (const auto &make : kinds) {
    ASSERT_EQ(make(), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
    Replace();
    EXPECT_TRUE(S_ISREG(StatusOf(path_).st_mode));
    EXPECT_EQ(Mode(), 0600U);
    EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
    ASSERT_EQ(unlink(path_.c_str()), 0);
  }
}

// Root with a user's environment, as with sudo.
TEST_F(FileRights, WhatRootMakesInAUsersFolderIsTheUsers) {
  if (geteuid() != 0) GTEST_SKIP() << "only root makes things in the folders of others";
  ASSERT_EQ(chown(folder_.Path().c_str(), kSomeUser, kSomeGroup), 0);
  const std::vector<std::function<void()>> systems = {[] {}, GiveUpUnnamedFiles};
  for (const auto &giveUp : systems) {
    ExpectQuietSuccess([&] {
      giveUp();
      EXPECT_TRUE(ChangeFileContents(folder_ / "one/two/settings", kPlenty,
                                     [](const auto &) { return "new"; }));
    });
    for (const char *const made : {"one", "one/two", "one/two/settings"}) {
      EXPECT_EQ(StatusOf(folder_ / made).st_uid, kSomeUser) << made;
      EXPECT_EQ(StatusOf(folder_ / made).st_gid, kSomeGroup) << made;
    }
    std::filesystem::remove_all(folder_ / "one");
  }
}

}  // namespace
}  // namespace orv
