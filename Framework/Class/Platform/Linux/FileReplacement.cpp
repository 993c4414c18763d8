// How several programs change one file at the same time and lose nothing, without a lock.
//
// A writer reads the file, writes a new file without a name, and makes it durable. Then it
//   1. announces: links the new file to a unique name beside the old file,
//   2. renames the files that other writers have announced: those writers start again,
//   3. compares: the file must still be the one that was read, else the writer starts again,
//   4. exchanges the two files in one system call, which fails if step 2 of another writer has
//      renamed the announced file,
//   5. checks which file is now under the announced name, and removes it, or keeps it under another
//      name if it could not be read.
// Of two writers, the one that announces later either renames the other's announced file before it
// compares, or sees the file that the other has put in place. So no other writer can succeed
// between steps 3 and 4 of a writer that succeeds, however slow it is. Nobody waits for a writer
// that is stopped or dead. A lock would have to be waited for, or broken.
//
// A program that does not follow these steps, such as an editor, may replace the file between 3
// and 4. Then step 5 finds its file, puts it back, and the writer starts again.
//
// A writer can be killed at any moment. Before step 1 its file has no name and disappears. After
// it, the name remains. The name says which file is the new one and which one it replaces, so the
// next writer knows what it finds and does step 5 in its place. That also reverts what a killed
// writer has put in the place of an editor's file; until the next write, the killed writer's file
// stays there.
//
// On file systems without files that have no name, the new file has a name from the start, and a
// lock that ends with its writer and shows others whether it is still running. Where files cannot
// be exchanged, step 4 is a rename, and only an editor's change between 3 and 4 can be lost. Where
// files cannot be told apart, step 3 is left out as well.
#include "FileReplacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "File.h"
#include "FileReading.h"
#include "FileRights.h"
#include "FolderOpening.h"

namespace orv {
namespace {

constexpr mode_t kOwnerOnly = 0600;
constexpr int kWriteDurably = O_WRONLY | O_SYNC | O_CLOEXEC;

// Each attempt after the first means that another program has changed the file.
constexpr int kMostAttempts = 2000;

// Some file systems give one file another number or time whenever they are asked. So many attempts
// in a row in which the file looked changed, with the same contents and no other writer's file
// beside it, mean that this is one.
constexpr int kMostFalseChanges = 24;

enum class Result {
  kReplaced,
  kOvertaken,
  kChanged,  // overtaken, but no other writer was seen
  kFailed
};

// --- The place of the file -----------------------------------------------------------------------

// A file's place: its folder, held open so that all steps use the same one, and its name.
struct Place {
  explicit Place(const std::string &path)
      : folder(OpenFolder(path.substr(0, std::max<std::size_t>(path.rfind('/'), 1)))),
        name(path.substr(path.rfind('/') + 1)) {}

  int Folder() const { return folder.Descriptor(); }
  /// The beginning of the names of all files that writers make beside the file.
  std::string Beside() const { return "." + name + "."; }

  File folder;
  std::string name;
  bool tellsFilesApart = true;
};

// The file that was found there and will be replaced.
using OldFile = FileReading;

bool HasPlace(const OldFile &old) { return old.outcome != ReadOutcome::kMissing; }

struct FreeText {
  void operator()(char *text) const { std::free(text); }
};

ReadOutcome OutcomeBehindLink(int error) {
  if (error == ENOENT || error == ENOTDIR || error == ELOOP) return ReadOutcome::kLink;
  return error == EACCES ? ReadOutcome::kForbidden : ReadOutcome::kNotNow;
}

// Opens the file in a place. If it is a link, opens its target and sets the place to the target's.
OldFile FindOldFile(const std::string &path, std::size_t most, Place &place) {
  OldFile old = ReadFile(place.Folder(), place.name, most, O_NOFOLLOW);
  if (old.outcome != ReadOutcome::kLink) return old;
  const std::unique_ptr<char, FreeText> behind(realpath(path.c_str(), nullptr));
  if (!behind) {
    old.outcome = OutcomeBehindLink(errno);
    return old;
  }
  Place placeBehind(behind.get());
  OldFile file = ReadFile(placeBehind.Folder(), placeBehind.name, most, O_NOFOLLOW);
  const bool isFile = file.outcome == ReadOutcome::kNotNow || S_ISREG(file.status.st_mode);
  if (!isFile) return old;
  if (!MayFollow(old.status, file.status)) file.outcome = ReadOutcome::kNotNow;
  place = std::move(placeBehind);
  return file;
}

// --- Identity of files ---------------------------------------------------------------------------

std::string InHexadecimal(std::uint64_t number) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
  return std::string(digits.begin(), end);
}

// Inode number and time of the last write. While a file is open, no other gets its inode number. A
// link, a pipe or a file that cannot be read is not open; the time tells it from a later file.
std::string TagOf(const struct stat &status) {
  const auto seconds = static_cast<std::uint64_t>(status.st_mtim.tv_sec);
  const auto nanoseconds = static_cast<std::uint64_t>(status.st_mtim.tv_nsec);
  return InHexadecimal(status.st_ino) + "-" + InHexadecimal(seconds << 32 | nanoseconds);
}

// Stands for no file.
constexpr const char *kNoTag = "0-0";

// Nothing when the system does not say which file it is.
std::optional<std::string> TagAt(const Place &place, const std::string &name) {
  struct stat status = {};
  if (fstatat(place.Folder(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
    return TagOf(status);
  }
  return errno == ENOENT ? std::optional<std::string>(kNoTag) : std::nullopt;
}

// Whether the file that was read is still there and unchanged.
bool IsStillThere(const Place &place, const OldFile &old) {
  struct stat now = {};
  if (fstatat(place.Folder(), place.name.c_str(), &now, AT_SYMLINK_NOFOLLOW) != 0) {
    return !HasPlace(old) && errno == ENOENT;
  }
  return HasPlace(old) && IsUnchanged(old.status, now);
}

// --- Files beside the file -----------------------------------------------------------------------

// A file that is being written, on file systems where such a file needs a name.
constexpr std::string_view kUnfinished = "tmp.";
// An announced new file; after the exchange, the old file.
constexpr std::string_view kAnnounced = "new.";
// The same, after another writer has renamed it.
constexpr std::string_view kTaken = "old.";

std::uint64_t NumberThatIsNew() {
  return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

// The parts of an announced name: which file is the new one, which one it replaces, and a number
// that makes the name unique. A minus sign before the number says that the old file is kept.
struct Announcement {
  std::string newTag;
  std::string oldTag;
  std::string number;

  bool KeepsOldFile() const { return number.starts_with('-'); }

  std::string Name(const Place &place, std::string_view kind) const {
    return place.Beside().append(kind) + newTag + "." + oldTag + "." + number;
  }
};

std::string UniqueNumber(bool keepsOldFile) {
  return (keepsOldFile ? "-" : "") + InHexadecimal(NumberThatIsNew());
}

// Nothing for another program's name that only begins in the same way.
std::optional<Announcement> AnnouncementIn(std::string_view text) {
  if (text.find_first_not_of("0123456789abcdef-.") != text.npos) return std::nullopt;
  const std::size_t first = text.find('.');
  const std::size_t second = text.rfind('.');
  if (first == text.npos || first == second) return std::nullopt;
  return Announcement{std::string(text.substr(0, first)),
                      std::string(text.substr(first + 1, second - first - 1)),
                      std::string(text.substr(second + 1))};
}

enum class Found { kNothing, kNewFile, kOldFile, kForeignFile };

bool Rename(const Place &place, const std::string &from, const std::string &to,
            unsigned flags = 0) {
  return renameat2(place.Folder(), from.c_str(), place.Folder(), to.c_str(), flags) == 0;
}

// The errors of systems that do not support an operation. If the error has another cause, the
// replacement for the operation fails as well and leaves no file. EXDEV: the old file counts
// against another project's quota than its folder, and cannot be exchanged, only replaced.
bool SaysUnsupported(int error) {
  constexpr std::array kErrors = {EOPNOTSUPP, EISDIR, EINVAL, ENOSYS, ENOENT, EPERM, EACCES, EXDEV};
  return std::find(kErrors.begin(), kErrors.end(), error) != kErrors.end();
}

// Renames a file unless the new name exists. Returns 0 or an errno value.
int RenameToFreeName(const Place &place, const std::string &from, const std::string &to) {
  if (Rename(place, from, to, RENAME_NOREPLACE)) return 0;
  const int error = errno;
  if (error == ENOENT || !SaysUnsupported(error)) return error;
  const auto there = TagAt(place, to);
  if (!there) return EIO;
  if (*there != kNoTag) return EEXIST;
  return Rename(place, from, to) ? 0 : errno;
}

// A file that cannot be read may be worth keeping. Calls `giveName` with names for it until one is
// free. Returns 0 or an errno value.
int KeepUnreadable(const Place &place, const std::function<int(const std::string &)> &giveName) {
  const std::string first = place.name + kUnreadableEnding;
  int error = giveName(first);
  for (int number = 2; error == EEXIST; ++number) {
    error = giveName(first + "-" + std::to_string(number));
  }
  return error;
}

// Removes the old file, or keeps it if it could not be read.
void PutAway(const Place &place, const Announcement &announcement, const std::string &name) {
  if (announcement.KeepsOldFile()) {
    KeepUnreadable(place, [&](const auto &kept) { return RenameToFreeName(place, name, kept); });
  } else {
    unlinkat(place.Folder(), name.c_str(), 0);
  }
}

// Puts a foreign file back in place of the new file and removes that. If the file that comes out is
// not the one that went in before, another program has just put it there: it goes back as well.
void PutBack(const Place &place, const std::string &name, std::string foreign,
             std::string inPlace) {
  while (Rename(place, name, place.name, RENAME_EXCHANGE)) {
    const auto found = TagAt(place, name);
    if (!found) return;
    if (*found == inPlace) {
      unlinkat(place.Folder(), name.c_str(), 0);
      return;
    }
    inPlace = std::exchange(foreign, *found);
  }
}

// Deals with a file that is neither the new one nor the one to replace. It comes from a program
// that does not announce. It is put back, unless the new file is no longer in place either.
void SettleForeign(const Place &place, const Announcement &announcement, const std::string &name,
                   const std::string &tag) {
  const auto inPlace = TagAt(place, place.name);
  if (!inPlace) return;
  if (*inPlace == announcement.newTag) {
    PutBack(place, name, tag, *inPlace);
  } else {
    unlinkat(place.Folder(), name.c_str(), 0);
  }
}

// Checks which file is under a name that no writer exchanges any more, and removes it. What cannot
// be decided now is left to the next writer.
Found Settle(const Place &place, const Announcement &announcement, const std::string &name) {
  const auto tag = TagAt(place, name);
  if (!tag || *tag == kNoTag) return Found::kNothing;
  if (*tag == announcement.oldTag) {
    PutAway(place, announcement, name);
    return Found::kOldFile;
  }
  if (*tag == announcement.newTag) {
    unlinkat(place.Folder(), name.c_str(), 0);
    return Found::kNewFile;
  }
  SettleForeign(place, announcement, name, *tag);
  return Found::kForeignFile;
}

// Locks a new named file. False when another writer took it for abandoned and removed it before
// this. On a file system without locks, no writer removes such files.
bool ShowLife(int descriptor) {
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
  struct stat status = {};
  return fstat(descriptor, &status) != 0 || status.st_nlink > 0;
}

File OpenUnfinished(const Place &place, const std::string &name, int access) {
  return File(openat(place.Folder(), name.c_str(), access | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

// Some file systems lock only what is open for writing, but the file may have the mode of a file
// that its owner may only read.
void RemoveUnlessAlive(const Place &place, const std::string &name) {
  File file = OpenUnfinished(place, name, O_WRONLY);
  if (!file.IsOpen()) file = OpenUnfinished(place, name, O_RDONLY);
  if (file.IsOpen() && flock(file.Descriptor(), LOCK_EX | LOCK_NB) == 0) {
    unlinkat(place.Folder(), name.c_str(), 0);
  }
}

// Renames another writer's file, so that neither its writer nor one that has taken it away before
// can exchange it any longer.
void TakeAway(const Place &place, Announcement announcement, const std::string &name) {
  announcement.number = UniqueNumber(announcement.KeepsOldFile());
  const std::string taken = announcement.Name(place, kTaken);
  if (Rename(place, name, taken)) Settle(place, announcement, taken);
}

// Nothing on failure. Starts again at the first name: the folder was opened before this writer
// announced its file, and some file systems then decide which names are found.
std::optional<std::vector<std::string>> NamesIn(int folder) {
  std::vector<std::string> names;
  alignas(dirent64) std::array<char, 32768> entries;
  lseek(folder, 0, SEEK_SET);
  for (;;) {
    const ssize_t size = getdents64(folder, entries.data(), entries.size());
    if (size < 0) return std::nullopt;
    if (size == 0) return names;
    for (ssize_t at = 0; at < size;) {
      const auto *entry = reinterpret_cast<const dirent64 *>(entries.data() + at);
      names.emplace_back(entry->d_name);
      at += entry->d_reclen;
    }
  }
}

enum class Others { kNone, kSome, kUnknown };

// Includes the files of killed writers and of running ones, which then start again.
Others TakeAwayAllBut(const std::string &own, const Place &place) {
  const std::string beside = place.Beside();
  const auto names = NamesIn(place.Folder());
  if (!names) return Others::kUnknown;
  Others others = Others::kNone;
  for (const std::string &name : *names) {
    if (!name.starts_with(beside) || name == own) continue;
    const std::string_view rest = std::string_view(name).substr(beside.size());
    const std::string_view kind = rest.substr(0, kAnnounced.size());
    const auto announcement = AnnouncementIn(rest.substr(kind.size()));
    if (kind == kUnfinished) {
      RemoveUnlessAlive(place, name);
    } else if ((kind == kAnnounced || kind == kTaken) && announcement) {
      TakeAway(place, *announcement, name);
    } else {
      continue;
    }
    others = Others::kSome;
  }
  return others;
}

// --- Taking the old file's place -----------------------------------------------------------------

// Keeps a file that cannot be read where a rename will replace it: by a second link, so that it is
// not missing in between. The system may refuse a link to another user's file, so that file is
// renamed. In its place, another writer may have put a new file, which then goes back.
Result KeepInPlace(const Place &place, const Announcement &announcement) {
  std::string kept;
  const auto link = [&](const std::string &name) {
    kept = name;
    // A killed writer may have got so far.
    if (TagAt(place, name) == announcement.oldTag) return 0;
    const int folder = place.Folder();
    return linkat(folder, place.name.c_str(), folder, name.c_str(), 0) == 0 ? 0 : errno;
  };
  const auto renameTo = [&](const std::string &name) {
    kept = name;
    return RenameToFreeName(place, place.name, name);
  };
  int error = KeepUnreadable(place, link);
  const bool isLink = error == 0;
  if (!isLink && error != ENOENT) error = KeepUnreadable(place, renameTo);
  if (error != 0) return error == ENOENT ? Result::kOvertaken : Result::kFailed;
  if (TagAt(place, kept) == announcement.oldTag) return Result::kReplaced;
  if (isLink) {
    unlinkat(place.Folder(), kept.c_str(), 0);
  } else {
    RenameToFreeName(place, kept, place.name);
  }
  return Result::kOvertaken;
}

// Where files cannot be exchanged.
Result ReplaceByRename(const Place &place, const Announcement &announcement) {
  if (announcement.KeepsOldFile()) {
    const Result kept = KeepInPlace(place, announcement);
    if (kept != Result::kReplaced) return kept;
  }
  if (Rename(place, announcement.Name(place, kAnnounced), place.name)) return Result::kReplaced;
  return errno == ENOENT ? Result::kOvertaken : Result::kFailed;
}

Result ReplaceWithoutExchange(const Place &place, const Announcement &announcement, int error) {
  if (error == ENOENT || error == EEXIST) return Result::kOvertaken;
  return SaysUnsupported(error) ? ReplaceByRename(place, announcement) : Result::kFailed;
}

// Removes a writer's announced file, also when memory runs out, unless it was exchanged.
class Withdrawal {
 public:
  Withdrawal(const Place &place, const std::string &announced)
      : place_(place), announced_(announced) {}
  Withdrawal(const Withdrawal &) = delete;
  Withdrawal &operator=(const Withdrawal &) = delete;
  ~Withdrawal() {
    if (!isCancelled_) unlinkat(place_.Folder(), announced_.c_str(), 0);
  }
  void Cancel() { isCancelled_ = true; }

 private:
  const Place &place_;
  const std::string &announced_;
  bool isCancelled_ = false;
};

Result Exchange(const Place &place, const OldFile &old, const Announcement &announcement,
                const std::string &announced) {
  Withdrawal withdrawal(place, announced);
  const Others others = TakeAwayAllBut(announced, place);
  if (others == Others::kUnknown) return Result::kFailed;
  if (!place.tellsFilesApart) return ReplaceByRename(place, announcement);
  if (!IsStillThere(place, old)) {
    return others == Others::kNone ? Result::kChanged : Result::kOvertaken;
  }
  const unsigned how = HasPlace(old) ? RENAME_EXCHANGE : RENAME_NOREPLACE;
  if (!Rename(place, announced, place.name, how)) {
    return ReplaceWithoutExchange(place, announcement, errno);
  }
  withdrawal.Cancel();
  if (!HasPlace(old)) return Result::kReplaced;
  // Another writer may already have done this, and then the old file is not known.
  const Found found = Settle(place, announcement, announced);
  return found == Found::kOldFile ? Result::kReplaced : Result::kOvertaken;
}

// --- The new file --------------------------------------------------------------------------------

bool WriteAll(int descriptor, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t part = write(descriptor, contents.data(), contents.size());
    if (part < 0 && errno == EINTR) continue;
    if (part <= 0) return false;
    contents.remove_prefix(static_cast<std::size_t>(part));
  }
  return true;
}

// Only the writer can use the new file until its owner and group are set. Returns whether that has
// changed anything since the last write.
std::optional<bool> SetRights(const FileWithStatus &file, const Place &place, const OldFile &old) {
  if (old.outcome == ReadOutcome::kRead) {
    return TakeRights(file, {old.file.Descriptor(), old.status});
  }
  if (!GiveToOwnerOfFolder(file.descriptor, place.Folder())) return std::nullopt;
  return true;
}

// Fills the new file and makes it durable. Each write is durable when it returns, as the file is
// open for O_SYNC. Returns the announcement of the file, nothing on failure.
std::optional<Announcement> Fill(int descriptor, const Place &place, const OldFile &old,
                                 std::string_view contents) {
  struct stat status = {};
  if (!WriteAll(descriptor, contents) || fstat(descriptor, &status) != 0) return std::nullopt;
  const auto isChanged = SetRights({descriptor, status}, place, old);
  if (!isChanged) return std::nullopt;
  if (*isChanged && TEMP_FAILURE_RETRY(fsync(descriptor)) != 0) return std::nullopt;
  return Announcement{TagOf(status), HasPlace(old) ? TagOf(old.status) : kNoTag,
                      UniqueNumber(old.outcome == ReadOutcome::kForbidden)};
}

// Returns 0 or an errno value.
int GiveName(int descriptor, const Place &place, const std::string &name) {
  const std::string unnamed = "/proc/self/fd/" + std::to_string(descriptor);
  return linkat(AT_FDCWD, unnamed.c_str(), place.Folder(), name.c_str(), AT_SYMLINK_FOLLOW) == 0
             ? 0
             : errno;
}

// Returns nothing when the file system does not support this.
std::optional<Result> ReplaceByUnnamedFile(const Place &place, const OldFile &old,
                                           std::string_view contents) {
  const File file(openat(place.Folder(), ".", O_TMPFILE | kWriteDurably, kOwnerOnly));
  if (!file.IsOpen()) return SaysUnsupported(errno) ? std::nullopt : std::optional(Result::kFailed);
  const auto announcement = Fill(file.Descriptor(), place, old, contents);
  if (!announcement) return Result::kFailed;
  // Without an old file, one step is enough: linking fails if the name exists.
  const std::string name = HasPlace(old) ? announcement->Name(place, kAnnounced) : place.name;
  if (!HasPlace(old) && TakeAwayAllBut("", place) == Others::kUnknown) return Result::kFailed;
  switch (const int error = GiveName(file.Descriptor(), place, name)) {
    case 0:
      return HasPlace(old) ? Exchange(place, old, *announcement, name) : Result::kReplaced;
    case EEXIST:
      return Result::kOvertaken;
    default:
      return SaysUnsupported(error) ? std::nullopt : std::optional(Result::kFailed);
  }
}

Result ReplaceByNamedFile(const Place &place, const OldFile &old, std::string_view contents) {
  const std::string name = place.Beside().append(kUnfinished) + InHexadecimal(NumberThatIsNew());
  const File file(
      openat(place.Folder(), name.c_str(), O_CREAT | O_EXCL | kWriteDurably, kOwnerOnly));
  if (!file.IsOpen()) return errno == EEXIST ? Result::kOvertaken : Result::kFailed;
  if (!ShowLife(file.Descriptor())) return Result::kOvertaken;
  if (const auto announcement = Fill(file.Descriptor(), place, old, contents)) {
    const std::string announced = announcement->Name(place, kAnnounced);
    if (Rename(place, name, announced)) return Exchange(place, old, *announcement, announced);
    // Another writer took it for abandoned.
    if (errno == ENOENT) return Result::kOvertaken;
  }
  unlinkat(place.Folder(), name.c_str(), 0);
  return Result::kFailed;
}

// --- A change ------------------------------------------------------------------------------------

bool MayBeReplaced(const OldFile &old) {
  switch (old.outcome) {
    case ReadOutcome::kTooLarge:
    case ReadOutcome::kNotNow:
      return false;
    default:
      return !S_ISDIR(old.status.st_mode);
  }
}

std::optional<std::string> Changed(const OldFile &old, const ContentsChange &change) {
  if (!MayBeReplaced(old)) return std::nullopt;
  return old.outcome == ReadOutcome::kRead ? change(old.contents) : change(std::nullopt);
}

// Changes of the file in a row that may be false.
struct FalseChanges {
  std::string contents;
  int count = 0;
};

Result TryToChange(const std::string &path, std::size_t most, const ContentsChange &change,
                   FalseChanges &changes) {
  Place place(path);
  if (!place.folder.IsOpen()) return Result::kFailed;
  const OldFile old = FindOldFile(path, most, place);
  if (old.contents != changes.contents) changes = {old.contents};
  place.tellsFilesApart = changes.count < kMostFalseChanges;
  const std::optional<std::string> contents = Changed(old, change);
  if (!contents) return Result::kFailed;
  std::optional<Result> result = ReplaceByUnnamedFile(place, old, *contents);
  if (!result) result = ReplaceByNamedFile(place, old, *contents);
  // A power cut must not undo the new name either.
  if (*result == Result::kReplaced) fsync(place.Folder());
  changes.count = *result == Result::kChanged ? changes.count + 1 : 0;
  return *result;
}

// Writers wait for different times, so that they do not rename each other's files for ever.
void LetOthersFinish(int attempt) {
  const auto longest = static_cast<std::uint64_t>(50 * std::min(attempt, 40));
  std::this_thread::sleep_for(std::chrono::microseconds(NumberThatIsNew() % longest));
}

}  // namespace

bool ChangeFileContents(const std::string &path, std::size_t most, const ContentsChange &change) {
  FalseChanges changes;
  for (int attempt = 1; attempt <= kMostAttempts; ++attempt) {
    const Result result = TryToChange(path, most, change, changes);
    if (result == Result::kReplaced || result == Result::kFailed) {
      return result == Result::kReplaced;
    }
    LetOthersFinish(attempt);
  }
  return false;
}

}  // namespace orv
