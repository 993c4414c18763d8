// Writing a property list: the complete new file or the complete old one, and no other file.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <new>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ChildProcess.h"
#include "PropertyList.h"
#include "PropertyListFile.h"
#include "TemporaryFolder.h"

namespace orv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using trxtest::BecomeOrdinaryUser;
using trxtest::ExpectQuietSuccess;
using trxtest::ReadBytes;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

constexpr const char *kOldContents =
    "<plist><dict><key>MaxLevel</key><integer>3</integer></dict></plist>";

struct stat StatusOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

class PropertyListWriting : public testing::Test {
 protected:
  const TemporaryFolder folder_;
  const std::string path_ = folder_ / "settings.plist";
};

TEST_F(PropertyListWriting, AWriteMakesAnXmlListAndNothingElse) {
  ASSERT_TRUE(SetMaxLevel(path_, 1));
  EXPECT_EQ(ReadBytes(path_),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
            "<plist version=\"1.0\">\n"
            "<dict>\n"
            "\t<key>MaxLevel</key>\n"
            "\t<integer>1</integer>\n"
            "</dict>\n"
            "</plist>\n");
  EXPECT_THAT(folder_.Names(), ElementsAre("settings.plist"));
}

TEST_F(PropertyListWriting, AnEmptyDictionaryIsAPropertyListToo) {
  ASSERT_TRUE(PropertyList::ChangeFile(path_, [](PropertyList &) {}));
  EXPECT_TRUE(PropertyList::ReadFile(path_).has_value());
}

TEST_F(PropertyListWriting, AWriteReplacesTheFileInsteadOfChangingIt) {
  WriteBytes(path_, kOldContents);
  ASSERT_EQ(link(path_.c_str(), (folder_ / "other name").c_str()), 0);
  const ino_t before = StatusOf(path_).st_ino;
  ASSERT_TRUE(SetMaxLevel(path_, 1));
  EXPECT_NE(StatusOf(path_).st_ino, before);
  EXPECT_EQ(StatusOf(path_).st_nlink, 1U);
  EXPECT_EQ(ReadBytes(folder_ / "other name"), kOldContents);
}

TEST_F(PropertyListWriting, ANewFileIsItsOwnersAlone) {
  const mode_t before = umask(0);
  ASSERT_TRUE(SetMaxLevel(path_, 1));
  umask(before);
  EXPECT_EQ(StatusOf(path_).st_mode & 07777, 0600U);
}

TEST_F(PropertyListWriting, AnOldFileKeepsItsPermissions) {
  const mode_t before = umask(077);
  for (const mode_t mode : {0644U, 0664U, 0600U, 0640U}) {
    WriteBytes(path_, kOldContents);
    ASSERT_EQ(chmod(path_.c_str(), mode), 0);
    ASSERT_TRUE(SetMaxLevel(path_, 1));
    EXPECT_EQ(StatusOf(path_).st_mode & 07777, mode);
  }
  umask(before);
}

TEST_F(PropertyListWriting, AMissingFolderIsMade) {
  ASSERT_TRUE(SetMaxLevel(folder_ / "one/two/settings.plist", 1));
  EXPECT_EQ(StatusOf(folder_ / "one").st_mode & 07777, 0700U);
  EXPECT_THAT(PropertyList::ReadFile(folder_ / "one/two/settings.plist")->IntegerForKey("MaxLevel"),
              Optional(1));
}

TEST_F(PropertyListWriting, AFileInThePlaceOfTheFolderFails) {
  WriteBytes(folder_ / "file", "a file");
  ExpectQuietSuccess([this] { EXPECT_FALSE(SetMaxLevel(folder_ / "file/settings.plist", 1)); });
  EXPECT_EQ(ReadBytes(folder_ / "file"), "a file");
}

TEST_F(PropertyListWriting, AFolderInThePlaceOfTheFileFailsAndStays) {
  ASSERT_EQ(mkdir(path_.c_str(), 0700), 0);
  WriteBytes(path_ + "/inside", "kept");
  ExpectQuietSuccess([this] { EXPECT_FALSE(SetMaxLevel(path_, 1)); });
  EXPECT_THAT(folder_.Names(), ElementsAre("settings.plist"));
  EXPECT_EQ(ReadBytes(path_ + "/inside"), "kept");
}

// Limits the size of files to this many bytes: the write fails in the middle of the list or, with
// 0, at its beginning, for root too.
void LimitFileSize(rlim_t bytes) {
  ASSERT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
  const rlimit limit = {bytes, bytes};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

TEST_F(PropertyListWriting, AFullDiskLeavesTheOldFileWhole) {
  for (const rlim_t limit : {rlim_t{0}, rlim_t{1}, rlim_t{100}}) {
    WriteBytes(path_, kOldContents);
    const ino_t before = StatusOf(path_).st_ino;
    ExpectQuietSuccess([&] {
      LimitFileSize(limit);
      EXPECT_FALSE(SetMaxLevel(path_, 1));
    });
    EXPECT_EQ(StatusOf(path_).st_ino, before);
    EXPECT_EQ(ReadBytes(path_), kOldContents);
    EXPECT_THAT(folder_.Names(), ElementsAre("settings.plist"));
  }
}

TEST_F(PropertyListWriting, AFullDiskLeavesNothingWhereNothingWas) {
  ExpectQuietSuccess([this] {
    LimitFileSize(100);
    EXPECT_FALSE(SetMaxLevel(path_, 1));
  });
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(PropertyListWriting, WithoutDescriptorsTheOldFileStaysWhole) {
  WriteBytes(path_, kOldContents);
  ExpectQuietSuccess([this] {
    const rlimit none = {0, 0};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_FALSE(SetMaxLevel(path_, 1));
    EXPECT_FALSE(PropertyList::ReadFile(path_).has_value());
  });
  EXPECT_EQ(ReadBytes(path_), kOldContents);
}

TEST_F(PropertyListWriting, AFolderThatMayOnlyBeReadLeavesTheOldFileWhole) {
  WriteBytes(path_, kOldContents);
  ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    EXPECT_FALSE(SetMaxLevel(path_, 1));
  });
  EXPECT_EQ(ReadBytes(path_), kOldContents);
  EXPECT_THAT(folder_.Names(), ElementsAre("settings.plist"));
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
}

// Counts for two processes.
struct Progress {
  std::atomic<int> reads = 0;
  std::atomic<bool> ended = false;
};

// Reads the file again and again until it is stopped; every result must be complete.
void ReadUntilEnded(const std::string &path, Progress &progress) {
  while (!progress.ended) {
    const auto list = PropertyList::ReadFile(path);
    ASSERT_TRUE(list);
    const auto first = list->IntegerForKey("First");
    ASSERT_TRUE(first);
    ASSERT_EQ(list->IntegerForKey("Last"), first);
    ++progress.reads;
  }
}

TEST_F(PropertyListWriting, ReadersInAnotherProcessNeverSeeATornFile) {
  constexpr int kFewestWrites = 2000;
  constexpr int kMostWrites = 200'000;
  constexpr int kFewestReads = 500;
  const auto write = [&](std::int32_t value) {
    return PropertyList::ChangeFile(path_, [&](PropertyList &list) {
      list.SetInteger("First", value);
      for (int i = 0; i < 100; ++i) list.SetInteger(("Between" + std::to_string(i)).c_str(), value);
      list.SetInteger("Last", value);
    });
  };
  ASSERT_TRUE(write(0));

  void *const shared =
      mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  Progress &progress = *new (shared) Progress();
  const pid_t reader = fork();
  ASSERT_GE(reader, 0);
  if (reader == 0) {
    alarm(50);
    ReadUntilEnded(path_, progress);
    std::fflush(stdout);
    _exit(HasFailure() ? 1 : 0);
  }
  int status = 0;
  bool readerEnded = false;
  for (int i = 0; i < kFewestWrites || progress.reads < kFewestReads; ++i) {
    EXPECT_TRUE(write(i));
    readerEnded = waitpid(reader, &status, WNOHANG) != 0;
    if (readerEnded || i == kMostWrites) break;
  }
  progress.ended = true;
  if (!readerEnded) waitpid(reader, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_GE(progress.reads, kFewestReads);
  EXPECT_THAT(folder_.Names(), ElementsAre("settings.plist"));
  munmap(shared, sizeof(Progress));
}

}  // namespace
}  // namespace orv
