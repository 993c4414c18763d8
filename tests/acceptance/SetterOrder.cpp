#include "SetterOrder.h"

#include <chrono>
#include <future>

#include "WireLines.h"

namespace trxtest {
namespace {

using Clock = std::chrono::steady_clock;
using Lines = std::vector<std::string>;

// A frozen notification service blocks a setter for five seconds. Whatever is visible in that time
// was done before the announcement.
constexpr std::chrono::seconds kSoonerThanFrozen{4};

}  // namespace

void SetterOrder::ExpectUnitToldFirst(const Setter &set, const std::string &sent) {
  const int unit = rig().PlugMixer();
  rig().SetFault(unit, UnitFault::kStaysSilent);
  std::future<StatusCode> status = std::async(std::launch::async, set);
  EXPECT_TRUE(WaitUntil([&] { return !rig().WireLog().empty(); }));
  EXPECT_EQ(rig().WireLog(), Lines{sent});
  EXPECT_EQ(LibraryListing(), Lines());
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector<Announcement>());
  rig().Unplug(unit);
  EXPECT_EQ(status.get(), 100);
  EXPECT_EQ(rig().TakeAnnouncements(1).size(), 1U);
}

void SetterOrder::ExpectStoredBeforeAnnounced(const Setter &set,
                                              const std::string &modelDisplayName,
                                              const Settings &stored) {
  rig().FreezeNotificationService();
  const auto start = Clock::now();
  std::future<StatusCode> status = std::async(std::launch::async, set);
  EXPECT_TRUE(WaitUntil([&] { return SettingsOf(modelDisplayName) == stored; }));
  EXPECT_LT(Clock::now() - start, kSoonerThanFrozen);
  EXPECT_EQ(status.wait_for(std::chrono::seconds(0)), std::future_status::timeout)
      << "the setter was not held up, so nothing is known of its order";
  rig().ThawNotificationService();
  EXPECT_EQ(status.get(), 100);
  EXPECT_EQ(rig().TakeAnnouncements(1).size(), 1U);
}

// While the notification service is frozen, a setter does not get past its announcement. After it,
// the setter waits for a silent unit, so that everything before can be checked.
void SetterOrder::ExpectSelectorsAskedLast(const Setter &set, const std::string &sent,
                                           const std::optional<Settings> &stored,
                                           const Announcement &announced) {
  const int unit = rig().PlugMixer();
  rig().FreezeNotificationService();
  std::future<StatusCode> status = std::async(std::launch::async, set);
  EXPECT_TRUE(WaitUntil([&] { return !rig().WireLog().empty(); }));
  rig().SetFault(unit, UnitFault::kStaysSilent);
  rig().ThawNotificationService();
  EXPECT_TRUE(WaitUntil([&] { return rig().WireLog().size() > 1; }));
  EXPECT_EQ(rig().WireLog(), (Lines{sent, Asked(unit, "8002", 4, "no reply")}));
  EXPECT_EQ(SettingsOf("TRX-SELVA"), stored);
  EXPECT_EQ(rig().TakeAnnouncements(0), std::vector{announced});
  rig().Unplug(unit);
  EXPECT_EQ(status.get(), 100);
}

Announcement SetterOrder::SelvaChange(const std::string &kind, std::int32_t channel,
                                      std::int32_t index) {
  return {"TRX-SELVA " + kind + " Change",
          {{"ProductID", 11}, {"Channel", channel}, {"Index", index}}};
}

}  // namespace trxtest
