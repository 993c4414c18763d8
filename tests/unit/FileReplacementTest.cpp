// Changing a file while others change it too, with files that killed writers have left, and when
// the system fails: on file systems with everything that the library can use, and on others.
#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
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
using testing::HasSubstr;
using testing::StartsWith;
using trxtest::BecomeOrdinaryUser;
using trxtest::ExpectQuietSuccess;
using trxtest::FailToOpen;
using trxtest::FailToRead;
using trxtest::GiveUpExchange;
using trxtest::GiveUpNamingFilesLater;
using trxtest::GiveUpUnnamedFiles;
using trxtest::ReadBytes;
using trxtest::SteppedProcess;
using trxtest::SystemCall;
using trxtest::TemporaryFolder;
using trxtest::WriteBytes;

constexpr std::size_t kPlenty = 1'000'000;

// Features that a system may lack. Each change is for a process that ends afterwards.
struct System {
  const char *description;
  std::function<void()> giveUp;
  bool canExchange = true;
};

const std::vector<System> kSystems = {
    {"everything", [] {}},
    {"no files without a name", GiveUpUnnamedFiles},
    {"no names for them later", GiveUpNamingFilesLater},
    {"no exchange", GiveUpExchange, false},
    {"neither",
     [] {
       GiveUpUnnamedFiles();
       GiveUpExchange();
     },
     false},
};

// Adds a letter to the file unless it is there. Returns whether it worked.
bool Add(const std::string &path, const std::string &letter) {
  return ChangeFileContents(path, kPlenty, [&](const std::optional<std::string> &old) {
    const std::string contents = old.value_or("");
    return contents.find(letter) == contents.npos ? contents + letter : contents;
  });
}

bool IsOfGivingUp(const SystemCall &call) { return static_cast<long>(call.number) == SYS_prctl; }

class FileReplacement : public testing::Test {
 protected:
  // A writer that adds a letter, on such a system, and ends well if that works.
  std::function<void()> Adding(const std::string &letter, const System &system) const {
    return [=, this] {
      system.giveUp();
      if (!Add(path_, letter)) _exit(1);
    };
  }

  void LetAnotherAdd(const std::string &letter, const System &system) const {
    EXPECT_TRUE(SteppedProcess(Adding(letter, system)).RunToEnd());
  }

  // Replaces the file as an editor does.
  void Edit(const std::string &contents) const {
    WriteBytes(folder_ / "edited", contents);
    ASSERT_EQ(rename((folder_ / "edited").c_str(), path_.c_str()), 0);
  }

  void PutOldFile() const {
    std::remove((path_ + ".unreadable").c_str());
    Edit("old");
    ASSERT_EQ(chmod(path_.c_str(), modeOfOldFile_), 0);
  }

  // Stops a writer that adds an "a" before its first, its second, ... its last system call, on each
  // system, and calls `then` with it.
  void AtEveryMoment(const std::function<void(SteppedProcess &, const System &)> &then) const {
    for (const System &system : kSystems) {
      int moment = 1;
      for (bool isAtWork = true; isAtWork && !HasFailure(); ++moment) {
        SCOPED_TRACE(std::string(system.description) + ", moment " + std::to_string(moment));
        PutOldFile();
        SteppedProcess writer(Adding("a", system));
        const auto call = writer.StepTo(moment);
        isAtWork = call.has_value();
        if (isAtWork && !IsOfGivingUp(*call)) then(writer, system);
        std::remove(path_.c_str());
      }
      EXPECT_GT(moment, 20);
    }
  }

  // The same; then calls something else, lets the writer continue for one, two, ... more system
  // calls, and kills it.
  void AtEveryTwoMoments(const std::vector<System> &systems,
                         const std::function<void(const System &)> &between,
                         const std::function<void(const System &)> &then) const {
    for (const System &system : systems) {
      bool isAtWork = true;
      for (int first = 1; isAtWork && !HasFailure(); ++first) {
        bool goesOn = true;
        for (int more = 1; goesOn && !HasFailure(); ++more) {
          SCOPED_TRACE(std::string(system.description) + ", moments " + std::to_string(first) +
                       " and " + std::to_string(more) + " more");
          PutOldFile();
          SteppedProcess writer(Adding("a", system));
          isAtWork = writer.StepTo(first).has_value();
          if (!isAtWork) break;
          between(system);
          goesOn = writer.StepTo(more).has_value();
          if (goesOn) {
            writer.Kill();
            then(system);
          }
          std::remove(path_.c_str());
        }
      }
    }
  }

  void ExpectNothingBeside() const { EXPECT_THAT(folder_.Names(), ElementsAre("settings")); }

  const TemporaryFolder folder_;
  const std::string path_ = folder_ / "settings";
  mode_t modeOfOldFile_ = 0644;
};

TEST_F(FileReplacement, AChangeWorksOnEverySystem) {
  for (const System &system : kSystems) {
    SCOPED_TRACE(system.description);
    WriteBytes(path_, "old");
    ExpectQuietSuccess([&] {
      system.giveUp();
      EXPECT_TRUE(Add(path_, "a"));
      EXPECT_EQ(ReadBytes(path_), "olda");
      ASSERT_EQ(unlink(path_.c_str()), 0);
      EXPECT_TRUE(Add(path_, "b"));
      EXPECT_EQ(ReadBytes(path_), "b");
    });
    ExpectNothingBeside();
  }
}

// The lowest free number may be that of a standard stream.
TEST_F(FileReplacement, ADescriptorWithTheNumberZeroIsClosedToo) {
  ExpectQuietSuccess([this] {
    ASSERT_EQ(close(STDIN_FILENO), 0);
    EXPECT_TRUE(Add(path_, "a"));
    EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD), -1);
  });
  EXPECT_EQ(ReadBytes(path_), "a");
}

TEST_F(FileReplacement, AChangeToNothingLeavesTheFile) {
  WriteBytes(path_, "old");
  EXPECT_FALSE(ChangeFileContents(path_, kPlenty, [](const auto &) { return std::nullopt; }));
  EXPECT_EQ(ReadBytes(path_), "old");
  ExpectNothingBeside();
}

TEST_F(FileReplacement, AChangeLeavesAFileThatIsTooLarge) {
  WriteBytes(path_, "four");
  EXPECT_FALSE(ChangeFileContents(path_, 3, [](const auto &) { return "new"; }));
  EXPECT_EQ(ReadBytes(path_), "four");
  EXPECT_TRUE(ChangeFileContents(path_, 4, [](const auto &) { return "new"; }));
  EXPECT_EQ(ReadBytes(path_), "new");
}

// --- Many writers --------------------------------------------------------------------------------

// Lets processes change a file at the same time.
void AllAtOnce(int processes, const std::function<bool(int)> &body) {
  std::vector<pid_t> writers;
  for (int i = 0; i < processes; ++i) {
    writers.push_back(fork());
    if (writers.back() == 0) _exit(body(i) ? 0 : 1);
  }
  for (const pid_t writer : writers) {
    int status = 0;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a change was not made";
  }
}

std::string Letter(int i) { return std::string(1, static_cast<char>('a' + i)); }

// A letter with a number: five characters, which the file has once for each writer.
std::string Numbered(const std::string &letter, int number) {
  const std::string digits = std::to_string(number);
  return letter + std::string(4 - digits.size(), '0') + digits;
}

// Sets the number of a letter. Returns whether it is in the file then, and the number before it
// still was: setting the next one would hide the loss.
bool SetNumber(const std::string &path, const std::string &letter, int number) {
  const bool isLost =
      number > 1 && ReadBytes(path).find(Numbered(letter, number - 1)) == std::string::npos;
  const std::string entry = Numbered(letter, number);
  const bool isSet = ChangeFileContents(path, kPlenty, [&](const auto &old) {
    std::string contents = old.value_or("");
    const std::size_t before = contents.find(letter);
    if (before != contents.npos) contents.erase(before, entry.size());
    return contents + entry;
  });
  return !isLost && isSet && ReadBytes(path).find(entry) != std::string::npos;
}

void ExpectNothingLost(const TemporaryFolder &folder, int times) {
  constexpr int kProcesses = 6;
  const std::string path = folder / "settings";
  for (const System &system : kSystems) {
    SCOPED_TRACE(system.description);
    std::remove(path.c_str());
    AllAtOnce(kProcesses, [&](int i) {
      system.giveUp();
      bool isWell = true;
      for (int n = 1; n <= times; ++n) isWell = SetNumber(path, Letter(i), n) && isWell;
      return isWell;
    });
    const std::string contents = ReadBytes(path);
    EXPECT_EQ(contents.size(), 5U * kProcesses);
    for (int i = 0; i < kProcesses; ++i) {
      EXPECT_THAT(contents, HasSubstr(Numbered(Letter(i), times)));
    }
    EXPECT_THAT(folder.Names(), ElementsAre("settings"));
  }
}

TEST_F(FileReplacement, ChangesByManyProcessesAtOnceLoseNothing) {
  ExpectNothingLost(folder_, 150);
}

// The build folder is usually on a disk, which other tests do not use.
TEST_F(FileReplacement, ChangesByManyProcessesAtOnceLoseNothingOnADisk) {
  ExpectNothingLost(TemporaryFolder(BUILD_FOLDER), 10);
}

TEST_F(FileReplacement, TheFirstChangeByTwoAtOnceLosesNothing) {
  constexpr int kRounds = 60;
  for (const System &system : kSystems) {
    SCOPED_TRACE(system.description);
    for (int round = 0; round < kRounds && !HasFailure(); ++round) {
      AllAtOnce(2, [&](int i) {
        system.giveUp();
        return Add(path_, Letter(i));
      });
      EXPECT_THAT(ReadBytes(path_), AnyOf("ab", "ba"));
      ExpectNothingBeside();
      ASSERT_EQ(unlink(path_.c_str()), 0);
    }
  }
}

// --- A writer that stands still, or is killed ----------------------------------------------------

TEST_F(FileReplacement, AChangeKilledAtAnyMomentLeavesTheOldFileOrTheNewOne) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    writer.Kill();
    const std::string found = ReadBytes(path_);
    EXPECT_THAT(found, AnyOf("old", "olda"));
    LetAnotherAdd("b", system);
    EXPECT_EQ(ReadBytes(path_), found + "b");
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeKilledAtAnyMomentDoesNotBringBackWhatIsRemovedAfterwards) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    writer.Kill();
    ASSERT_EQ(unlink(path_.c_str()), 0);
    LetAnotherAdd("b", system);
    EXPECT_EQ(ReadBytes(path_), "b");
    LetAnotherAdd("c", system);
    EXPECT_EQ(ReadBytes(path_), "bc");
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeKilledAtAnyMomentDoesNotUndoAnEditAfterwards) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    writer.Kill();
    Edit("edited");
    LetAnotherAdd("b", system);
    EXPECT_EQ(ReadBytes(path_), "editedb");
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeSlowerThanAnotherAtAnyMomentLosesNothing) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    LetAnotherAdd("b", system);
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_THAT(ReadBytes(path_), AnyOf("oldab", "oldba"));
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeSlowerThanAnotherAndThenKilledLosesNothingOfTheOthers) {
  AtEveryTwoMoments(
      {kSystems[0], kSystems[4]}, [this](const System &system) { LetAnotherAdd("b", system); },
      [this](const System &system) {
        LetAnotherAdd("c", system);
        EXPECT_THAT(ReadBytes(path_), AnyOf("oldbc", "oldabc", "oldbac"));
        ExpectNothingBeside();
      });
}

TEST_F(FileReplacement, AChangeSlowerThanAnEditorLosesNothingOfTheEdit) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    if (!system.canExchange) return;
    Edit("edited");
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_THAT(ReadBytes(path_), AnyOf("edited", "editeda"));
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeSlowerThanAnEditorAndThenKilledLosesNothingOfTheEdit) {
  AtEveryTwoMoments(
      {kSystems[0], kSystems[1]}, [this](const System &) { Edit("edited"); },
      [this](const System &system) {
        LetAnotherAdd("c", system);
        EXPECT_THAT(ReadBytes(path_), AnyOf("editedc", "editedac"));
        ExpectNothingBeside();
      });
}

TEST_F(FileReplacement, AChangeSlowerThanAChangeInPlaceLosesNothingOfIt) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    if (!system.canExchange) return;
    WriteBytes(path_, "edited");
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_THAT(ReadBytes(path_), AnyOf("edited", "editeda"));
    ExpectNothingBeside();
  });
}

TEST_F(FileReplacement, AChangeSlowerThanTheRemovalDoesNotBringTheFileBack) {
  AtEveryMoment([this](SteppedProcess &writer, const System &system) {
    if (!system.canExchange) return;
    ASSERT_EQ(unlink(path_.c_str()), 0);
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_THAT(ReadBytes(path_), AnyOf("", "a"));
  });
}

TEST_F(FileReplacement, AChangeRemovesWhatKilledWritersLeftAndNothingElse) {
  const std::string living = folder_ / ".settings.tmp.77";
  WriteBytes(path_, "old");
  WriteBytes(living, "half of it");
  WriteBytes(folder_ / ".settings.tmp.78", "half of it");
  WriteBytes(folder_ / ".settings.new.12-34.56-78.9a", "all of it");
  WriteBytes(folder_ / ".settings.old.12-34.56-78.9b", "all of it");
  WriteBytes(folder_ / ".settings.new", "somebody else's");
  WriteBytes(folder_ / ".settings.new.txt", "somebody else's");
  WriteBytes(folder_ / ".settings.backup", "somebody else's");
  WriteBytes(folder_ / ".other.tmp.78", "somebody else's");
  const File heldByLivingWriter(open(living.c_str(), O_WRONLY | O_CLOEXEC));
  ASSERT_EQ(flock(heldByLivingWriter.Descriptor(), LOCK_EX), 0);
  EXPECT_TRUE(Add(path_, "a"));
  EXPECT_EQ(ReadBytes(path_), "olda");
  EXPECT_THAT(folder_.Names(), ElementsAre(".other.tmp.78", ".settings.backup", ".settings.new",
                                           ".settings.new.txt", ".settings.tmp.77", "settings"));
  EXPECT_EQ(ReadBytes(living), "half of it");
}

// The mode of the file that is replaced may already be set.
TEST_F(FileReplacement, AChangeRemovesAnUnfinishedFileThatMayOnlyBeRead) {
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  WriteBytes(folder_ / ".settings.tmp.78", "half of it");
  ASSERT_EQ(chmod((folder_ / ".settings.tmp.78").c_str(), 0444), 0);
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    EXPECT_TRUE(Add(path_, "a"));
  });
  ExpectNothingBeside();
}

// --- A system that fails -------------------------------------------------------------------------

TEST_F(FileReplacement, AChangeLeavesAFileThatCannotBeReadAtTheMoment) {
  WriteBytes(path_, "old");
  for (const int error : {EIO, ESTALE, ETIMEDOUT, ENOTCONN, ENXIO, ENFILE, EMFILE, ENOMEM,
                          EWOULDBLOCK, ENOTDIR, ELOOP, ENODEV}) {
    SCOPED_TRACE(error);
    ExpectQuietSuccess([&] {
      // No other file is opened with this flag.
      FailToOpen(O_NOCTTY, error);
      EXPECT_FALSE(Add(path_, "a"));
    });
    EXPECT_EQ(ReadBytes(path_), "old");
    ExpectNothingBeside();
  }
}

TEST_F(FileReplacement, AChangeLeavesAFileThatBreaksOffWhileItIsRead) {
  WriteBytes(path_, "old");
  for (const int error : {EIO, ESTALE, ETIMEDOUT}) {
    SCOPED_TRACE(error);
    ExpectQuietSuccess([&] {
      FailToRead(error);
      EXPECT_FALSE(Add(path_, "a"));
    });
    EXPECT_EQ(ReadBytes(path_), "old");
    ExpectNothingBeside();
  }
}

TEST_F(FileReplacement, AChangeWithAnySystemCallFailingOnceLosesNothing) {
  for (const int error : {EIO, EINTR, ENOMEM, EMFILE, ENOSPC}) {
    AtEveryMoment([&](SteppedProcess &writer, const System &system) {
      SCOPED_TRACE(error);
      writer.Fail(error);
      writer.RunToEnd();
      const std::string found = ReadBytes(path_);
      EXPECT_THAT(found, AnyOf("old", "olda"));
      LetAnotherAdd("b", system);
      EXPECT_EQ(ReadBytes(path_), found + "b");
      ExpectNothingBeside();
    });
  }
}

// Runs a writer up to the first of these system calls; nothing when it does not make one.
std::optional<SystemCall> StepToCall(SteppedProcess &writer, long number) {
  std::optional<SystemCall> call = writer.Step();
  while (call && static_cast<long>(call->number) != number) call = writer.Step();
  return call;
}

TEST_F(FileReplacement, AChangeInterruptedWhileReadingOrWritingGoesOn) {
  constexpr std::array kNumbers = {SYS_pread64, SYS_write, SYS_fsync};
  for (const long number : kNumbers) {
    SCOPED_TRACE(number);
    WriteBytes(path_, "old");
    SteppedProcess writer(Adding("a", kSystems.front()));
    ASSERT_TRUE(StepToCall(writer, number));
    writer.Fail(EINTR);
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_EQ(ReadBytes(path_), "olda");
  }
}

TEST_F(FileReplacement, AChangeReadsOnWhereAReadWasShort) {
  WriteBytes(path_, "old");
  SteppedProcess writer(Adding("a", kSystems.front()));
  ASSERT_TRUE(StepToCall(writer, SYS_pread64));
  writer.Shorten(1);
  const std::optional<SystemCall> next = StepToCall(writer, SYS_pread64);
  ASSERT_TRUE(next);
  EXPECT_EQ(next->arguments[2], 2U) << "no more than is left in the buffer";
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "olda");
}

TEST_F(FileReplacement, AChangeReadsAFileThatGetsShorterToItsNewEnd) {
  WriteBytes(path_, "old");
  SteppedProcess writer(Adding("a", kSystems.front()));
  ASSERT_TRUE(StepToCall(writer, SYS_pread64));
  writer.Shorten(1);
  ASSERT_TRUE(StepToCall(writer, SYS_pread64));
  ASSERT_EQ(truncate(path_.c_str(), 1), 0);
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "oa");
}

TEST_F(FileReplacement, AChangeLeavesTheFileWhenItCannotSeeWhoElseWrites) {
  for (const bool isThere : {true, false}) {
    for (const System &system : kSystems) {
      SCOPED_TRACE(system.description);
      if (isThere) WriteBytes(path_, "old");
      SteppedProcess writer(Adding("a", system));
      ASSERT_TRUE(StepToCall(writer, SYS_getdents64));
      writer.Fail(EIO);
      EXPECT_FALSE(writer.RunToEnd());
      EXPECT_EQ(ReadBytes(path_), isThere ? "old" : "");
      EXPECT_EQ(folder_.Entries(), isThere ? 1U : 0U);
      std::remove(path_.c_str());
    }
  }
}

TEST_F(FileReplacement, AChangeReplacesAFileOfAnotherProjectThatCannotBeExchanged) {
  WriteBytes(path_, "old");
  SteppedProcess writer(Adding("a", kSystems.front()));
  ASSERT_TRUE(StepToCall(writer, SYS_renameat2));
  writer.Fail(EXDEV);
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "olda");
  ExpectNothingBeside();
}

TEST_F(FileReplacement, AChangeWhoseUnfinishedFileWasRemovedStartsAgain) {
  WriteBytes(path_, "old");
  SteppedProcess writer(Adding("a", kSystems[1]));
  ASSERT_TRUE(StepToCall(writer, SYS_renameat));
  const std::vector<std::string> names = folder_.Names();
  ASSERT_THAT(names, ElementsAre(StartsWith(".settings.tmp."), "settings"));
  ASSERT_EQ(unlink((folder_ / names.front()).c_str()), 0);
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "olda");
  ExpectNothingBeside();
}

// As on a file system that gives a file another inode number whenever it is asked.
TEST_F(FileReplacement, AChangeOfAFileThatAlwaysLooksChangedIsDoneNevertheless) {
  WriteBytes(path_, "old");
  SteppedProcess writer(Adding("a", kSystems.front()));
  // Another program's file beside it does not count as a writer's.
  WriteBytes(folder_ / ".settings.new.swp", "");
  int attempts = 0;
  while (StepToCall(writer, SYS_linkat)) {
    ++attempts;
    Edit("old");
  }
  EXPECT_EQ(attempts, 25);
  EXPECT_TRUE(writer.RunToEnd());
  EXPECT_EQ(ReadBytes(path_), "olda");
  EXPECT_THAT(folder_.Names(), ElementsAre(".settings.new.swp", "settings"));
}

TEST_F(FileReplacement, AChangeThatPutsAnEditBackLosesNothingOfALaterOneEither) {
  bool isAtWork = true;
  for (int more = 1; isAtWork && !HasFailure(); ++more) {
    SCOPED_TRACE(more);
    PutOldFile();
    SteppedProcess writer(Adding("a", kSystems.front()));
    ASSERT_TRUE(StepToCall(writer, SYS_renameat2));
    Edit("edited");
    isAtWork = writer.StepTo(more).has_value();
    if (!isAtWork) break;
    Edit("again");
    EXPECT_TRUE(writer.RunToEnd());
    EXPECT_THAT(ReadBytes(path_), AnyOf("again", "againa"));
    ExpectNothingBeside();
  }
}

TEST_F(FileReplacement, AChangeWithASystemCallFailingWhileItPutsAnEditBackLosesNothing) {
  bool isAtWork = true;
  for (int more = 1; isAtWork && !HasFailure(); ++more) {
    SCOPED_TRACE(more);
    PutOldFile();
    SteppedProcess writer(Adding("a", kSystems.front()));
    ASSERT_TRUE(StepToCall(writer, SYS_renameat2));
    Edit("edited");
    isAtWork = writer.StepTo(more).has_value();
    if (!isAtWork) break;
    writer.Fail(EIO);
    writer.RunToEnd();
    LetAnotherAdd("b", kSystems.front());
    EXPECT_THAT(ReadBytes(path_), AnyOf("editedb", "editedab"));
    ExpectNothingBeside();
  }
}

bool IsDurableWithEachWrite(const SteppedProcess &process, std::uint64_t file) {
  std::ifstream status("/proc/" + std::to_string(process.Id()) + "/fdinfo/" + std::to_string(file));
  std::string name;
  int flags = 0;
  while (status >> name && name != "flags:") continue;
  status >> std::oct >> flags;
  return (flags & O_SYNC) == O_SYNC;
}

// A power cut must not undo the change: the contents and rights are durable before they get a name,
// and the name before the setter returns.
TEST_F(FileReplacement, AChangeIsDurableBeforeItShowsAndBeforeItIsSaidToBeDone) {
  const auto orderOf = [this](mode_t mode, const System &system) {
    WriteBytes(path_, "old");
    EXPECT_EQ(chmod(path_.c_str(), mode), 0);
    SteppedProcess writer(Adding("a", system));
    std::vector<std::string> order;
    std::uint64_t file = 0;
    while (const auto call = writer.Step()) {
      switch (static_cast<long>(call->number)) {
        case SYS_write:
          EXPECT_TRUE(IsDurableWithEachWrite(writer, call->arguments[0]));
          file = call->arguments[0];
          // If a file cannot get a name later, there is a second one.
          order = {"contents"};
          break;
        case SYS_fchmod:
          order.emplace_back("rights");
          break;
        case SYS_fsync:
          order.emplace_back(call->arguments[0] == file ? "file" : "folder");
          break;
        case SYS_renameat2:
          order.emplace_back("exchange");
          break;
        default:
          break;
      }
    }
    return order;
  };
  for (const System &system : kSystems) {
    SCOPED_TRACE(system.description);
    EXPECT_THAT(orderOf(0600, system), ElementsAre("contents", "exchange", "folder"));
    EXPECT_THAT(orderOf(0644, system),
                ElementsAre("contents", "rights", "file", "exchange", "folder"));
  }
}

// --- Links ---------------------------------------------------------------------------------------

constexpr uid_t kSomeUser = 54'321;
constexpr gid_t kSomeGroup = 54'322;

struct stat StatusOf(const std::string &path) {
  struct stat status = {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status;
}

TEST_F(FileReplacement, AChangeReplacesWhatALinkLeadsToAndKeepsTheLink) {
  ASSERT_EQ(mkdir((folder_ / "elsewhere").c_str(), 0700), 0);
  WriteBytes(folder_ / "elsewhere/file", "old");
  ASSERT_EQ(symlink("elsewhere/file", path_.c_str()), 0);
  EXPECT_TRUE(Add(path_, "a"));
  EXPECT_EQ(ReadBytes(folder_ / "elsewhere/file"), "olda");
  EXPECT_THAT(folder_.Names(), ElementsAre("elsewhere", "settings"));
  EXPECT_EQ(folder_.Entries(), 3U);
}

TEST_F(FileReplacement, ALinkThatLeadsToNoFileIsReplacedItself) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  for (const char *const target : {"nowhere", "settings", ".", "pipe", "/dev/null"}) {
    SCOPED_TRACE(target);
    std::remove(path_.c_str());
    ASSERT_EQ(symlink(target, path_.c_str()), 0);
    EXPECT_TRUE(Add(path_, "a"));
    EXPECT_TRUE(S_ISREG(StatusOf(path_).st_mode));
    EXPECT_EQ(ReadBytes(path_), "a");
    EXPECT_THAT(folder_.Names(), ElementsAre("pipe", "settings"));
  }
  EXPECT_TRUE(S_ISFIFO(StatusOf(folder_ / "pipe").st_mode));
  EXPECT_TRUE(S_ISCHR(StatusOf("/dev/null").st_mode));
}

TEST_F(FileReplacement, ALinkOfAnotherUsersToAFileOfOnesOwnIsNotFollowed) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can lay a link for another user";
  WriteBytes(folder_ / "root's", "old");
  ASSERT_EQ(symlink("root's", path_.c_str()), 0);
  ASSERT_EQ(lchown(path_.c_str(), kSomeUser, kSomeGroup), 0);
  EXPECT_FALSE(Add(path_, "a"));
  EXPECT_EQ(ReadBytes(folder_ / "root's"), "old");
  ASSERT_EQ(chown((folder_ / "root's").c_str(), kSomeUser, kSomeGroup), 0);
  EXPECT_TRUE(Add(path_, "a"));
  EXPECT_EQ(ReadBytes(folder_ / "root's"), "olda");
  EXPECT_EQ(StatusOf(folder_ / "root's").st_uid, kSomeUser);
}

// Root with a user's environment: a folder of the user's may be a link to anywhere.
TEST_F(FileReplacement, RootDoesNotFollowAUsersLinkToAFolderOfAnotherUser) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can write everywhere";
  ASSERT_EQ(mkdir((folder_ / "root's").c_str(), 0700), 0);
  ASSERT_EQ(symlink("root's", (folder_ / "link").c_str()), 0);
  EXPECT_TRUE(Add(folder_ / "link/settings", "a"));
  EXPECT_TRUE(Add(folder_ / "link/made/settings", "a"));
  EXPECT_EQ(folder_.Entries(), 5U);

  ASSERT_EQ(lchown((folder_ / "link").c_str(), kSomeUser, kSomeGroup), 0);
  EXPECT_FALSE(Add(folder_ / "link/settings", "b"));
  EXPECT_FALSE(Add(folder_ / "link/made/settings", "b"));
  EXPECT_FALSE(Add(folder_ / "link/new/settings", "b"));
  EXPECT_EQ(ReadBytes(folder_ / "root's/settings"), "a");
  EXPECT_EQ(ReadBytes(folder_ / "root's/made/settings"), "a");
  EXPECT_EQ(folder_.Entries(), 5U);

  ASSERT_EQ(chown((folder_ / "root's").c_str(), kSomeUser, kSomeGroup), 0);
  EXPECT_TRUE(Add(folder_ / "link/settings", "b"));
  EXPECT_EQ(ReadBytes(folder_ / "root's/settings"), "ab");
}

// --- What may not be read ------------------------------------------------------------------------

TEST_F(FileReplacement, AChangeKeepsAFileThatItMayNotReadBesideTheNewOne) {
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  for (const char *const old : {"first", "second", "third"}) {
    std::remove(path_.c_str());
    WriteBytes(path_, old);
    ASSERT_EQ(chmod(path_.c_str(), 0), 0);
    ExpectQuietSuccess([this] {
      BecomeOrdinaryUser();
      EXPECT_TRUE(Add(path_, "a"));
      EXPECT_EQ(ReadBytes(path_), "a");
      EXPECT_EQ(StatusOf(path_).st_mode & 07777, 0600U);
    });
  }
  EXPECT_THAT(folder_.Names(), ElementsAre("settings", "settings.unreadable",
                                           "settings.unreadable-2", "settings.unreadable-3"));
  const std::array<std::pair<const char *, const char *>, 3> kKept = {
      {{"settings.unreadable", "first"},
       {"settings.unreadable-2", "second"},
       {"settings.unreadable-3", "third"}}};
  for (const auto &[name, contents] : kKept) {
    ASSERT_EQ(chmod((folder_ / name).c_str(), 0600), 0);
    EXPECT_EQ(ReadBytes(folder_ / name), contents);
  }
}

TEST_F(FileReplacement, AChangeKeepsItWhereFilesCannotBeExchangedToo) {
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  WriteBytes(path_, "old");
  ASSERT_EQ(chmod(path_.c_str(), 0), 0);
  ExpectQuietSuccess([this] {
    BecomeOrdinaryUser();
    GiveUpExchange();
    EXPECT_TRUE(Add(path_, "a"));
    EXPECT_EQ(ReadBytes(path_), "a");
  });
  EXPECT_THAT(folder_.Names(), ElementsAre("settings", "settings.unreadable"));
}

// The old file may not be read by its own user. Each test is for an ordinary user: root can read
// everything.
class UnreadableFile : public FileReplacement {
 protected:
  UnreadableFile() { modeOfOldFile_ = 0; }

  void AsOrdinaryUser(const std::function<void()> &test) const {
    ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
    ExpectQuietSuccess([&] {
      BecomeOrdinaryUser();
      test();
    });
  }

  void ExpectTheOldFileIsKept() const {
    EXPECT_THAT(folder_.Names(), ElementsAre("settings", "settings.unreadable"));
    ASSERT_EQ(chmod((path_ + ".unreadable").c_str(), 0600), 0);
    EXPECT_EQ(ReadBytes(path_ + ".unreadable"), "old");
  }
};

TEST_F(UnreadableFile, AnUnreadableFileReplacedSlowerThanByAnotherAtAnyMomentLosesNothing) {
  AsOrdinaryUser([this] {
    AtEveryMoment([this](SteppedProcess &writer, const System &system) {
      LetAnotherAdd("b", system);
      EXPECT_TRUE(writer.RunToEnd());
      EXPECT_THAT(ReadBytes(path_), AnyOf("ab", "ba"));
      ExpectTheOldFileIsKept();
    });
  });
}

TEST_F(UnreadableFile, AnUnreadableFileKilledAtAnyMomentIsNeverMissing) {
  AsOrdinaryUser([this] {
    AtEveryMoment([this](SteppedProcess &writer, const System &system) {
      writer.Kill();
      EXPECT_THAT(StatusOf(path_).st_size, AnyOf(1, 3));
      const std::string found = ReadBytes(path_);
      LetAnotherAdd("b", system);
      EXPECT_EQ(ReadBytes(path_), found + "b");
      ExpectTheOldFileIsKept();
    });
  });
}

TEST_F(UnreadableFile, AnUnreadableFileWithAnySystemCallFailingOnceIsNeverMissing) {
  AsOrdinaryUser([this] {
    AtEveryMoment([this](SteppedProcess &writer, const System &system) {
      writer.Fail(EIO);
      writer.RunToEnd();
      EXPECT_THAT(StatusOf(path_).st_size, AnyOf(1, 3));
      const std::string found = ReadBytes(path_);
      LetAnotherAdd("b", system);
      EXPECT_EQ(ReadBytes(path_), found + "b");
      ExpectTheOldFileIsKept();
    });
  });
}

TEST_F(UnreadableFile, AnUnreadableFileReplacedSlowerThanByAnotherAndThenKilledLosesNothing) {
  AsOrdinaryUser([this] {
    AtEveryTwoMoments(
        {kSystems[0], kSystems[1]}, [this](const System &system) { LetAnotherAdd("b", system); },
        [this](const System &system) {
          LetAnotherAdd("c", system);
          EXPECT_THAT(ReadBytes(path_), AnyOf("bc", "abc", "bac"));
          ExpectTheOldFileIsKept();
        });
  });
}

TEST_F(FileReplacement, AChangeLeavesAFolderInThePlace) {
  ASSERT_EQ(mkdir(path_.c_str(), 0700), 0);
  EXPECT_FALSE(Add(path_, "a"));
  EXPECT_TRUE(S_ISDIR(StatusOf(path_).st_mode));
  ExpectNothingBeside();
}

}  // namespace
}  // namespace orv
