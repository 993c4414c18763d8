// Replacing a file while others replace it too, and beside what killed writers have left: on file
// systems that have files without a name, and on those that have not.
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "File.h"
#include "FileReplacement.h"
#include "SteppedProcess.h"
#include "SystemCallFilter.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using trxtest::BecomeOrdinaryUser;
using trxtest::ExpectQuietSuccess;
using trxtest::GiveUpNamingFilesLater;
using trxtest::GiveUpUnnamedFiles;
using trxtest::ReadBytes;
using trxtest::SteppedProcess;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

// The three kinds of system that there are, each for a process that can be given up.
const std::vector<std::function<void()>> kSystems = {[] {}, GiveUpUnnamedFiles,
                                                     GiveUpNamingFilesLater};

constexpr uid_t kSomeUser = 54'321;
constexpr gid_t kSomeGroup = 54'322;

struct stat StatusOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

class FileReplacement : public testing::Test {
 protected:
  void ExpectReplaced() const {
    EXPECT_TRUE(ReplaceFile(path_, "new"));
    EXPECT_EQ(ReadBytes(path_), "new");
  }

  // The clock of a file system goes in steps of some milliseconds.
  void WriteLaterThan(const std::string &other, const std::string &contents) const {
    const timespec before = StatusOf(other).st_ctim;
    timespec now = before;
    while (now.tv_sec == before.tv_sec && now.tv_nsec == before.tv_nsec) {
      WriteBytes(path_, contents);
      now = StatusOf(path_).st_ctim;
    }
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_ / "settings";
};

TEST_F(FileReplacement, WorksOnEverySystem) {
  for (const auto &giveUp : kSystems) {
    WriteBytes(path_, "old");
    ExpectQuietSuccess([&] {
      giveUp();
      ExpectReplaced();
      ASSERT_EQ(unlink(path_.c_str()), 0);
      ExpectReplaced();
    });
    EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
  }
}

// Lets processes replace the file `settings` in a folder, each so many times, all at once.
void ExpectManyAtOnceAreWell(const TemporaryFolder &folder, int times) {
  constexpr int kProcesses = 6;
  const std::string path = folder / "settings";
  for (const auto &giveUp : kSystems) {
    std::vector<pid_t> writers;
    for (int i = 0; i < kProcesses; ++i) {
      writers.push_back(fork());
      if (writers.back() != 0) continue;
      giveUp();
      const std::string contents(1000, static_cast<char>('a' + i));
      bool isWell = true;
      for (int n = 0; n < times; ++n) isWell = ReplaceFile(path, contents) && isWell;
      _exit(isWell ? 0 : 1);
    }
    for (const pid_t writer : writers) {
      int status = 0;
      ASSERT_EQ(waitpid(writer, &status, 0), writer);
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a file was not replaced";
    }
    const std::string contents = ReadBytes(path);
    EXPECT_EQ(contents, std::string(1000, contents.at(0)));
    EXPECT_THAT(folder.Names(), ElementsAre("settings"));
  }
}

TEST_F(FileReplacement, ByManyProcessesAtOnceWorksForEachAndLeavesNothing) {
  ExpectManyAtOnceAreWell(folder_, 150);
}

// What the build folder lies on is usually a disk, which other tests spare.
TEST_F(FileReplacement, ByManyProcessesAtOnceWorksOnADiskToo) {
  const TemporaryFolder onDisk(BUILD_FOLDER);
  ExpectManyAtOnceAreWell(onDisk, 15);
}

TEST_F(FileReplacement, TakesAwayWhatADeadWriterHadReady) {
  WriteBytes(path_, "old");
  WriteBytes(folder_ / ".settings.new", "the dead writer's");
  ExpectReplaced();
  EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
}

TEST_F(FileReplacement, DoesNotBringBackWhatADeadWriterHadReadyBeforeAReset) {
  WriteBytes(folder_ / ".settings.new", "the dead writer's");
  SteppedProcess writer([this] { ExpectReplaced(); });
  while (writer.Step()) EXPECT_NE(ReadBytes(path_), "the dead writer's");
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "new");
  EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
}

TEST_F(FileReplacement, DoesNotBringBackWhatADeadWriterHadReadyEvenWhenKilledItself) {
  for (int moment = 1;; ++moment) {
    ASSERT_LT(moment, 1000) << "the writer never ends";
    WriteBytes(folder_ / ".settings.new", "the dead writer's");
    WriteLaterThan(folder_ / ".settings.new", "old");
    SteppedProcess writer([this] { ExpectReplaced(); });
    const bool isRunning = writer.StepTo(moment).has_value();
    EXPECT_THAT(ReadBytes(path_), AnyOf("old", "new")) << "moment " << moment;
    if (!isRunning) break;
    writer.Kill();
  }
  EXPECT_EQ(ReadBytes(path_), "new");
  EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
}

TEST_F(FileReplacement, KeepsTheOldFileWhenTheNewOneGetsNoNameBesideWhatADeadWriterHadReady) {
  WriteBytes(folder_ / ".settings.new", "the dead writer's");
  WriteLaterThan(folder_ / ".settings.new", "old");
  SteppedProcess writer([this] { ReplaceFile(path_, "new"); });
  int linked = 0;
  while (const auto call = writer.Step()) {
    if (call->number == SYS_linkat && ++linked == 2) break;
  }
  ASSERT_EQ(linked, 2) << "the case does not show what it is for";
  writer.Kill();
  EXPECT_EQ(ReadBytes(path_), "old");
  EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
}

TEST_F(FileReplacement, DoesTheLastStepOfAWriterThatIsOnlySlower) {
  WriteBytes(path_, "old");
  WriteBytes(folder_ / ".settings.new", "the slower writer's");
  ExpectReplaced();
  // The slower one finds that its file is gone, and that is as if it had been first.
  EXPECT_EQ(rename((folder_ / ".settings.new").c_str(), path_.c_str()), -1);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(ReadBytes(path_), "new");
}

TEST_F(FileReplacement, WhereFilesNeedANameRemovesThoseOfDeadWritersAndNoOthers) {
  const std::string living = folder_ / ".settings.Living";
  WriteBytes(path_, "old");
  WriteBytes(living, "half of it");
  WriteBytes(folder_ / ".settings.a1B2c3", "half of it");
  WriteBytes(folder_ / ".settings.new", "somebody else's");
  WriteBytes(folder_ / ".settings.backup1", "somebody else's");
  WriteBytes(folder_ / ".other.a1B2c3", "somebody else's");
  const File heldByLivingWriter(open(living.c_str(), O_WRONLY | O_CLOEXEC));
  ASSERT_EQ(flock(heldByLivingWriter.Descriptor(), LOCK_EX), 0);
  ExpectQuietSuccess([this] {
    GiveUpUnnamedFiles();
    ExpectReplaced();
  });
  EXPECT_THAT(folder_.Names(), ElementsAre(".other.a1B2c3", ".settings.Living", ".settings.backup1",
                                           ".settings.new", "settings"));
  EXPECT_EQ(ReadBytes(living), "half of it");
}

TEST_F(FileReplacement, ReplacesWhatALinkLeadsToAndKeepsTheLink) {
  ASSERT_EQ(mkdir((folder_ / "elsewhere").c_str(), 0700), 0);
  WriteBytes(folder_ / "elsewhere/file", "old");
  ASSERT_EQ(symlink("elsewhere/file", path_.c_str()), 0);
  ExpectReplaced();
  EXPECT_EQ(ReadBytes(folder_ / "elsewhere/file"), "new");
  EXPECT_THAT(folder_.Names(), ElementsAre("elsewhere", "settings"));
  EXPECT_EQ(folder_.Entries(), 3U);
}

TEST_F(FileReplacement, ALinkThatLeadsNowhereIsReplacedItself) {
  ASSERT_EQ(symlink("nowhere", path_.c_str()), 0);
  ExpectReplaced();
  EXPECT_THAT(folder_.Names(), ElementsAre("settings"));
}

TEST_F(FileReplacement, KeepsOwnerGroupAndPermissions) {
  const bool isRoot = geteuid() == 0;
  const uid_t user = isRoot ? kSomeUser : geteuid();
  const gid_t group = isRoot ? kSomeGroup : getegid();
  for (const auto &giveUp : kSystems) {
    WriteBytes(path_, "old");
    ASSERT_EQ(chown(path_.c_str(), user, group), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0660), 0);
    ExpectQuietSuccess([&] {
      giveUp();
      ExpectReplaced();
    });
    const struct stat status = StatusOf(path_);
    EXPECT_EQ(status.st_uid, user);
    EXPECT_EQ(status.st_gid, group);
    EXPECT_EQ(status.st_mode & 07777, 0660U);
    ASSERT_EQ(unlink(path_.c_str()), 0);
  }
}

// Only root can bring about the first half of it: a file of a group that the writer is not in.
TEST_F(FileReplacement, LeavesNothingToAnotherGroupThanTheOldFiles) {
  const bool isRoot = geteuid() == 0;
  WriteBytes(path_, "old");
  const gid_t group = isRoot ? kSomeGroup : getegid();
  ASSERT_EQ(chown(path_.c_str(), geteuid(), group), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0664), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    ExpectReplaced();
  });
  EXPECT_EQ(StatusOf(path_).st_mode & 07777, isRoot ? 0604U : 0664U);
}

}  // namespace
}  // namespace orv
