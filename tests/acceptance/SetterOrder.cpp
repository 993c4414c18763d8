#include "SetterOrder.h"

#include <csignal>
#include <future>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "WireLines.h"

namespace trxtest {
namespace {

using Lines = std::vector<std::string>;

// The process ends with the first byte that it writes to a file.
void EndWhenStoring() {
  const rlimit none = {0, 0};
  if (setrlimit(RLIMIT_FSIZE, &none) != 0 || signal(SIGXFSZ, SIG_DFL) == SIG_ERR) _exit(1);
}

}  // namespace

// A setter that does not come past its storing shows what it does before it.
void SetterOrder::ExpectSentStoredAnnounced(const Setter &set, const std::string &sent) {
  rig_->PlugMixer();
  const pid_t child = fork();
  if (child == 0) {
    EndWhenStoring();
    set();
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << "it did not store";
  EXPECT_EQ(rig_->WireLog(), Lines{sent});
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
}

void SetterOrder::ExpectSentBeforeAnnounced(const Setter &set, const std::string &sent) {
  const int unit = rig_->PlugMixer();
  rig_->SetFault(unit, UnitFault::kStaysSilent);
  std::future<StatusCode> status = std::async(std::launch::async, set);
  EXPECT_TRUE(WaitUntil([&] { return !rig_->WireLog().empty(); }));
  EXPECT_EQ(rig_->WireLog(), Lines{sent});
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector<Announcement>());
  rig_->Unplug(unit);
  EXPECT_EQ(status.get(), kSuccess);
  EXPECT_EQ(rig_->TakeAnnouncements(1).size(), 1U);
}

// While the notification service is frozen, a setter does not get past its announcement. After it,
// the setter waits for a silent unit, so that everything before can be checked.
void SetterOrder::ExpectSelectorsAskedLast(const Setter &set, const std::string &sent,
                                           const std::optional<Settings> &stored,
                                           const Announcement &announced) {
  const int unit = rig_->PlugMixer();
  rig_->FreezeNotificationService();
  std::future<StatusCode> status = std::async(std::launch::async, set);
  EXPECT_TRUE(WaitUntil([&] { return !rig_->WireLog().empty(); }));
  rig_->SetFault(unit, UnitFault::kStaysSilent);
  rig_->ThawNotificationService();
  EXPECT_TRUE(WaitUntil([&] { return rig_->WireLog().size() > 1; }));
  EXPECT_EQ(rig_->WireLog(), (Lines{sent, Asked(unit, "8002", 4, "no reply")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), stored);
  EXPECT_EQ(rig_->TakeAnnouncements(0), std::vector{announced});
  rig_->Unplug(unit);
  EXPECT_EQ(status.get(), kSuccess);
}

Announcement SetterOrder::SelvaChange(const std::string &kind, std::int32_t channel,
                                      std::int32_t index) {
  return {"TRX-SELVA " + kind + " Change",
          {{"ProductID", kSelva}, {"Channel", channel}, {"Index", index}}};
}

}  // namespace trxtest
