// A host without standard streams: the next opened files get the numbers 0 to 2, and the host's
// output must not go into a file, a mixer or a connection of the library.
#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

#include <SteppedProcess.h>
#include <SystemCallFilter.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "Aftermath.h"

namespace trxtest {
namespace {

namespace fs = std::filesystem;

constexpr std::array kStreams = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};

// The operations on writable files, on nodes and on connections. The files that the walk over the
// bus reads are closed at once and cannot be written.
bool UsesDescriptor(const SystemCall &call) {
  constexpr std::array kNumbers = {SYS_write,   SYS_fsync,           SYS_fchmod,
                                   SYS_ioctl,   SYS_flock,           SYS_writev,
                                   SYS_sendmsg, SYS_timerfd_settime, SYS_epoll_ctl};
  return std::find(kNumbers.begin(), kNumbers.end(), static_cast<long>(call.number)) !=
         kNumbers.end();
}

// The software mixers use a connection of their own for a request to a node.
bool MayBeRequest(const SystemCall &call) { return static_cast<long>(call.number) == SYS_sendto; }

bool IsNode(pid_t process, int descriptor) {
  const fs::path place = "/proc/" + std::to_string(process) + "/fd/" + std::to_string(descriptor);
  std::error_code isClosed;
  return fs::read_symlink(place, isClosed).string().find("/dev/bus/usb/") != std::string::npos;
}

constexpr long kMark = SYS_getsid;

class ClosedStreams : public Aftermath {
 protected:
  // Runs `body` without standard streams and records all operations on descriptors.
  void ExpectNothingInTheirPlace(const std::function<void()> &body) {
    SteppedProcess child([&] {
      for (const int stream : kStreams) close(stream);
      body();
      syscall(kMark, 0);
    });
    int uses = 0;
    int requests = 0;
    for (;;) {
      const std::optional<SystemCall> call = child.Step();
      ASSERT_TRUE(call);
      if (static_cast<long>(call->number) == kMark) break;
      if (MayBeRequest(*call)) {
        ++requests;
        for (const int stream : kStreams) EXPECT_FALSE(IsNode(child.Id(), stream)) << stream;
      }
      if (!UsesDescriptor(*call)) continue;
      ++uses;
      EXPECT_GT(call->arguments[0], 2U) << "system call " << call->number;
    }
    EXPECT_TRUE(child.RunToEnd());
    EXPECT_GT(uses, 5);
    EXPECT_EQ(requests > 0, !rig_->WireLog().empty());
  }
};

TEST_F(ClosedStreams, ClosedStreamsAreNotReplacedByWhatTheLibraryWritesTo) {
  rig_->PlugMixer();
  PutLevelThree();
  ExpectNothingInTheirPlace([] {
    Register();
    std::int32_t descriptor = -1;
    EXPECT_EQ(ORV_GetNotificationDescriptor(&descriptor), kSuccess);
    EXPECT_GT(descriptor, 2);
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
    EXPECT_EQ(ORV_DispatchNotifications(), kSuccess);
  });
  EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
  EXPECT_EQ(rig_->WireLog().size(), 1U);
}

TEST_F(ClosedStreams, ClosedStreamsAreNotReplacedWhereFilesNeedANameEither) {
  PutLevelThree();
  ExpectNothingInTheirPlace([] {
    GiveUpUnnamedFiles();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
  });
  EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
}

}  // namespace
}  // namespace trxtest
