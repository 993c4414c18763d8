// A mixer that is unplugged during a call, before each of the call's system calls in turn: between
// count and open, between open and request, after the request.
#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <SteppedProcess.h>
#include <sys/syscall.h>

#include "Aftermath.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

constexpr int kMostMoments = 5000;

// System calls whose result may depend on what is plugged in. Unplugging before any other call is
// the same as before the next of these.
bool MayLookAtBus(const SystemCall &call) {
  constexpr std::array kNumbers = {SYS_openat, SYS_getdents64, SYS_read,
                                   SYS_ioctl,  SYS_sendto,     SYS_recvfrom};
  return std::find(kNumbers.begin(), kNumbers.end(), static_cast<long>(call.number)) !=
         kNumbers.end();
}

class VanishingUnit : public Aftermath {
 protected:
  // Has a child run `call` again and again, and unplugs the last mixer before the child's first
  // access to the bus, before the second, ... before the last. The call must end well each time;
  // then `afterwards` checks. Returns how often the mixer was unplugged.
  int UnplugAtEveryMoment(const std::function<void()> &call,
                          const std::function<void()> &afterwards) {
    const int unit = rig_->PlugMixer();
    for (int moment = 0; moment < kMostMoments; ++moment) {
      SCOPED_TRACE(moment);
      rig_->ClearWireLog();
      SteppedProcess child(call);
      const bool isAtWork = StepToLook(child, moment + 1);
      if (isAtWork) rig_->Unplug(unit);
      EXPECT_TRUE(child.RunToEnd());
      afterwards();
      if (!isAtWork || HasFailure()) return moment;
      rig_->Replug(unit);
    }
    ADD_FAILURE() << "the child never ends";
    return 0;
  }

  static bool StepToLook(SteppedProcess &child, int n) {
    while (const std::optional<SystemCall> call = child.Step()) {
      if (MayLookAtBus(*call) && --n == 0) return true;
    }
    return false;
  }

  std::ptrdiff_t RequestsTo(int unit) {
    const Lines wire = rig_->WireLog();
    return std::count_if(wire.begin(), wire.end(), [&](const std::string &line) {
      return line.starts_with("unit " + std::to_string(unit) + " ");
    });
  }
};

TEST_F(VanishingUnit, ASetterStoresAndAnnouncesAsUsual) {
  rig_->PlugMixer();
  Register();
  PutLevelThree();
  int timesTold = 0;
  const int moments = UnplugAtEveryMoment(
      [] { EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 1), kSuccess); },
      [&] {
        EXPECT_EQ(SettingsOf("TRX-SELVA"), Level(1));
        EXPECT_EQ(LibraryListing(), kOnlyTheFile);
        EXPECT_EQ(rig_->TakeAnnouncements(1), std::vector{BoostChange("TRX-SELVA", kSelva, 1)});
        EXPECT_EQ(RequestsTo(1), 1) << "of the mixer that stays";
        EXPECT_LE(RequestsTo(2), 1);
        timesTold += RequestsTo(2) == 1 ? 1 : 0;
        PutLevelThree();
      });
  EXPECT_GT(moments, 15);
  EXPECT_GT(timesTold, 1);
  EXPECT_LT(timesTold, moments) << "it was never unplugged before its turn";
  ExpectRegistrationHolds();
}

TEST_F(VanishingUnit, ARoutingSetterAnswersThatItWorkedOrThatAWarningApplies) {
  const int moments = UnplugAtEveryMoment(
      [] {
        const StatusCode status = ORV_SetUSBInputAudio(kSelva, 1, 0);
        EXPECT_TRUE(status == kSuccess || status == kSuccessWithWarning) << status;
      },
      [this] {
        EXPECT_EQ(SettingsOf("TRX-SELVA"), (Settings{{"Output1", "<integer>0</integer>"}}));
        EXPECT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
      });
  EXPECT_GT(moments, 15);
}

TEST_F(VanishingUnit, AQueryGivesWhatTheMixerSaidOrZero) {
  const int moments = UnplugAtEveryMoment(
      [] {
        std::uint32_t certify = 77;
        EXPECT_EQ(ORV_GetMixerCertifyLevel(kSelva, &certify), kSuccess);
        EXPECT_TRUE(certify == 0 || certify == 1) << certify;
      },
      [] {});
  EXPECT_GT(moments, 5);
}

TEST_F(VanishingUnit, AQueryThatKnowsABadReplyRefusesOrLeavesTheResultAlone) {
  const int moments = UnplugAtEveryMoment(
      [] {
        std::uint32_t serato = 77;
        const StatusCode status = ORV_GetMixerSeratoActiveStatus(kSelva, &serato);
        EXPECT_TRUE((status == kSuccess && (serato == 0 || serato == 77)) ||
                    (status == kBadArgument && serato == 77))
            << status << ' ' << serato;
        const StatusCode connection = ORV_IsUSBConnection(kSelva);
        EXPECT_TRUE(connection == kConnected || connection == kNotConnected) << connection;
      },
      [] {});
  EXPECT_GT(moments, 5);
}

}  // namespace
}  // namespace trxtest
