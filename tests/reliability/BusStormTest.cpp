// A session bus that is killed and restarted under many announcements, and a bus that refuses
// requests.
#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include <TemporaryFolder.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Aftermath.h"

namespace trxtest {
namespace {

using CallList = std::vector<Call>;

class BusStorm : public Aftermath {};

TEST_F(BusStorm, KilledAndRestartedInTheMiddleTheBusLosesNoRegistration) {
  constexpr int kRestarts = 4;
  constexpr std::size_t kHeard = 20;
  rig_->PlugMixer();
  Register();
  const auto listener = rig_->StartHost();
  ASSERT_EQ(listener->Ask("register BoostLevel 11 listener"), "100");
  const auto poster = rig_->StartHost();
  const auto other = rig_->StartHost();
  for (int restart = 0; restart < kRestarts; ++restart) {
    SCOPED_TRACE(restart);
    poster->Begin("levels 11 300");
    other->Begin("levels 11 300");
    ASSERT_TRUE(RunEventLoopUntil([] { return Calls().size() >= kHeard; }));
    rig_->StopNotificationService();
    rig_->StartNotificationService();
    EXPECT_EQ(poster->Answer(), "100");
    EXPECT_EQ(other->Answer(), "100");
    Calls().clear();
    ASSERT_TRUE(RunEventLoopUntil([&] {
      EXPECT_EQ(poster->Ask("levels 11 1"), "100");
      EXPECT_EQ(other->Ask("levels 11 1"), "100");
      return Calls().size() >= kHeard;
    }));
  }
  EXPECT_EQ(LibraryListing(), kOnlyTheFile);
  ExpectRegistrationHolds();
  ASSERT_TRUE(WaitUntil([&] {
    EXPECT_EQ(ORV_SetBoostLevelIndex(kSelva, 3), kSuccess);
    return !listener->TakeCalls(1).empty();
  }));
}

// A bus that limits the number of match rules of each connection.
class LimitedBus {
 public:
  explicit LimitedBus(int rules) {
    Configure(rules);
    daemon_ = fork();
    if (daemon_ == 0) Become("--config-file=" + Configuration(), folder_ / "errors");
  }
  LimitedBus(const LimitedBus &) = delete;
  LimitedBus &operator=(const LimitedBus &) = delete;
  ~LimitedBus() {
    kill(daemon_, SIGKILL);
    waitpid(daemon_, nullptr, 0);
  }

  void Grant(int rules) {
    Configure(rules);
    EXPECT_EQ(kill(daemon_, SIGHUP), 0);
  }

 private:
  std::string Configuration() const { return folder_ / "bus.conf"; }

  [[noreturn]] static void Become(const std::string &configuration, const std::string &errors) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    unsetenv("LD_PRELOAD");
    dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600), STDERR_FILENO);
    execlp("dbus-daemon", "dbus-daemon", configuration.c_str(), "--nofork",
           static_cast<char *>(nullptr));
    _exit(127);
  }

  void Configure(int rules) const {
    WriteBytes(
        Configuration(),
        "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
        "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
        "<busconfig><type>session</type><auth>EXTERNAL</auth><listen>" +
            std::string(std::getenv("DBUS_SESSION_BUS_ADDRESS")) +
            "</listen><policy context=\"default\"><allow user=\"*\"/><allow own=\"*\"/>"
            "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/></policy>"
            "<limit name=\"max_match_rules_per_connection\">" +
            std::to_string(rules) + "</limit></busconfig>\n");
  }

  TemporaryFolder folder_;
  pid_t daemon_ = -1;
};

class StingyBus : public Aftermath {
 protected:
  static std::string lumen;
};

std::string StingyBus::lumen = "lumen";

TEST_F(StingyBus, AStingyBusIsAskedAgainForWhatItRefused) {
  rig_->StopNotificationService();
  LimitedBus bus(1);
  Register();
  ExpectRegistrationHolds();
  ASSERT_EQ(ORV_RegisterBoostLevelChangedCallback(kLumen, IndexB, &lumen), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 1), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 2), kSuccess);
  ASSERT_TRUE(RunEventLoopUntil([] { return !Calls().empty(); }));
  ASSERT_EQ(Calls(), (CallList{{"A selva", -1, 2}})) << "nothing was refused";
  bus.Grant(100);
  // No host calls the library, so its timer must do it.
  int looks = 0;
  Calls().clear();
  ASSERT_TRUE(RunEventLoopUntil([&] {
    if (looks++ % 10 == 0) {
      EXPECT_EQ(ORV_SetBoostLevelIndex(kLumen, 3), kSuccess);
    }
    return !Calls().empty();
  })) << "what was refused is not asked for again";
  EXPECT_EQ(Calls().front(), (Call{"B lumen", -1, 3}));
  Calls().clear();
  ASSERT_EQ(ORV_SetBoostLevelIndex(kLumen, 0), kSuccess);
  ASSERT_EQ(ORV_SetBoostLevelIndex(kSelva, 0), kSuccess);
  ASSERT_TRUE(RunEventLoopUntil([] {
    return !Calls().empty() && Calls().back() == Call{"A selva", -1, 0};
  }));
  std::erase(Calls(), Call{"B lumen", -1, 3});
  EXPECT_EQ(Calls(), (CallList{{"B lumen", -1, 0}, {"A selva", -1, 0}}));
}

}  // namespace
}  // namespace trxtest
