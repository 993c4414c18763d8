// A process without free descriptors: every call returns what it promises, the settings file keeps
// its contents, and everything works when there are descriptors again.
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include <ChildProcess.h>
#include <SteppedProcess.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "Aftermath.h"

namespace trxtest {
namespace {

// More than any of the calls below needs at a time.
constexpr int kPlenty = 12;

rlimit Limit() {
  rlimit limit = {};
  EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
  return limit;
}

// Leaves this many free descriptors to the process until the object ends.
class FewDescriptors {
 public:
  explicit FewDescriptors(int left) : before_(Limit()) {
    rlim_t end = 0;
    for (int unused = 0; unused < left; ++end) {
      if (fcntl(static_cast<int>(end), F_GETFD) < 0) ++unused;
    }
    const rlimit limit = {end, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
  }
  FewDescriptors(const FewDescriptors &) = delete;
  FewDescriptors &operator=(const FewDescriptors &) = delete;
  ~FewDescriptors() { EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &before_), 0); }

 private:
  rlimit before_;
};

class Descriptors : public Aftermath {
 protected:
  // One call of each kind that needs descriptors.
  static void CallEverything() {
    Register();
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
    EXPECT_EQ(ORV_SetUSBInputAudio(kSelva, 0, 4), kSuccess);
    EXPECT_EQ(ORV_SetCurrentBoostLevelIndex(kSelva), kSuccess);
    std::int32_t level = -77;
    EXPECT_EQ(ORV_GetCurrentBoostLevelIndex(kSelva, &level), kSuccess);
    EXPECT_TRUE(level == 3 || level == 1) << level;
    const StatusCode connection = ORV_IsUSBConnection(kSelva);
    EXPECT_TRUE(connection == kConnected || connection == kNotConnected) << connection;
    std::uint32_t certify = 77;
    EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &certify), kSuccess);
    EXPECT_TRUE(certify == 0 || certify == 1) << certify;
    std::int32_t descriptor = -77;
    EXPECT_EQ(ORV_GetNotificationDescriptor(&descriptor), kSuccess);
    EXPECT_GE(descriptor, -1);
    EXPECT_EQ(ORV_DispatchNotifications(), kSuccess);
  }

  void ExpectFileWhole() {
    const std::optional<Settings> settings = SettingsOf("TRX-SELVA");
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->count("Other"), 1U) << "somebody else's entry is lost";
    EXPECT_EQ(LibraryListing(), kOnlyTheFile);
  }
};

TEST_F(Descriptors, HoweverFewAreLeftEveryCallAnswersAndLaterEverythingWorks) {
  rig_->PlugMixer();
  for (int left = 0; left <= kPlenty; ++left) {
    SCOPED_TRACE(left);
    PutLevelThree();
    ExpectQuietSuccess([&] {
      {
        const FewDescriptors few(left);
        CallEverything();
      }
      ExpectFileWhole();
      ExpectRegistrationHolds();
    });
    ExpectFileWhole();
  }
}

// One descriptor is enough for the bus, but not for the host's descriptor.
TEST_F(Descriptors, AChildForkedWhileTheyWereFewHasNoneOfItsParentsRegistrations) {
  ExpectQuietSuccess([this] {
    {
      const FewDescriptors one(1);
      Register();
    }
    ExpectQuietSuccess([this] {
      std::string halden = "halden";
      EXPECT_EQ(ORV_RegisterBoostLevelChangedCallback(kHalden, IndexB, &halden), kSuccess);
      EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess);
      EXPECT_EQ(ORV_SetBoostLevelIndex(kHalden, 2), kSuccess);
      EXPECT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
      EXPECT_EQ(Calls(), (std::vector<Call>{{"B halden", -1, 2}}));
    });
    ExpectRegistrationHolds();
  });
}

// Calls that make a descriptor.
bool MakesDescriptor(const SystemCall &call) {
  constexpr std::array kNumbers = {SYS_openat,         SYS_openat2, SYS_socket,   SYS_epoll_create1,
                                   SYS_timerfd_create, SYS_fcntl,   SYS_eventfd2, SYS_memfd_create};
  return std::find(kNumbers.begin(), kNumbers.end(), static_cast<long>(call.number)) !=
         kNumbers.end();
}

// The software mixers use one more descriptor for each node, and end the process when there is
// none.
bool OpensNode(const SystemCall &call) {
  return static_cast<long>(call.number) == SYS_openat && call.arguments[2] == (O_RDWR | O_CLOEXEC);
}

// A system call that marks the end of the checked part; nothing else makes it.
constexpr long kMark = SYS_getsid;

void SetLimit(pid_t process, const rlimit &limit) {
  ASSERT_EQ(prlimit(process, RLIMIT_NOFILE, &limit, nullptr), 0);
}

// Continues until the child is before the n-th call that makes a descriptor for the library, or at
// the mark. False at the mark.
bool StepToDescriptor(SteppedProcess &child, int n) {
  bool isOfMixers = false;
  for (;;) {
    const std::optional<SystemCall> call = child.Step();
    if (!call || static_cast<long>(call->number) == kMark) return false;
    if (!MakesDescriptor(*call)) continue;
    if (!isOfMixers && --n == 0) return true;
    isOfMixers = OpensNode(*call);
  }
}

TEST_F(Descriptors, MissingAtAnyOneMomentCostNothingThatWasThere) {
  rig_->PlugMixer();
  const rlimit all = Limit();
  const rlimit none = {0, all.rlim_max};
  int moments = 0;
  for (bool isAtWork = true; isAtWork && !HasFailure();) {
    SCOPED_TRACE(moments);
    PutLevelThree();
    SteppedProcess child([this] {
      CallEverything();
      syscall(kMark, 0);
      ExpectFileWhole();
      ExpectRegistrationHolds();
    });
    isAtWork = StepToDescriptor(child, moments + 1);
    if (isAtWork) {
      ++moments;
      SetLimit(child.Id(), none);
      child.Step();
      SetLimit(child.Id(), all);
    }
    EXPECT_TRUE(child.RunToEnd());
    ExpectFileWhole();
  }
  EXPECT_GT(moments, 20);
}

}  // namespace
}  // namespace trxtest
