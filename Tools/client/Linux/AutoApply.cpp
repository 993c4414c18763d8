#include "AutoApply.h"

#include <cerrno>
#include <cstdint>
#include <memory>
#include <string_view>

#include <systemd/sd-bus.h>
#include <systemd/sd-journal.h>

#include "SessionBus.h"
#include "UdevRule.h"

namespace client {
namespace {

constexpr char kUnit[] = "trx-reapply@.service";

// What the unit is called in the journal.
constexpr char kJournalName[] = "SYSLOG_IDENTIFIER=trx-reapply";

constexpr std::uint64_t kPatience = 5'000'000;  // microseconds

struct CloseBus {
  void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
};

struct UnrefMessage {
  void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};

struct CloseJournal {
  void operator()(sd_journal *journal) const { sd_journal_close(journal); }
};

/// Asks the user's service manager for the unit.
AutoApplyObstacle ObstacleOfUnit() {
  sd_bus *rawBus = nullptr;
  if (ReachSessionBus() != SessionBusState::kReached || sd_bus_open_user(&rawBus) < 0) {
    return AutoApplyObstacle::kNoServiceManager;
  }
  const std::unique_ptr<sd_bus, CloseBus> bus(rawBus);
  sd_bus_message *rawCall = nullptr;
  sd_bus_message *rawReply = nullptr;
  int called = sd_bus_message_new_method_call(
      rawBus, &rawCall, "org.freedesktop.systemd1", "/org/freedesktop/systemd1",
      "org.freedesktop.systemd1.Manager", "GetUnitFileState");
  const std::unique_ptr<sd_bus_message, UnrefMessage> call(rawCall);
  // A bus without a service manager must not be made to look for one.
  if (called >= 0) called = sd_bus_message_set_auto_start(rawCall, 0);
  if (called >= 0) called = sd_bus_message_append(rawCall, "s", kUnit);
  if (called >= 0) called = sd_bus_call(rawBus, rawCall, kPatience, nullptr, &rawReply);
  const std::unique_ptr<sd_bus_message, UnrefMessage> reply(rawReply);
  if (called == -ENOENT) return AutoApplyObstacle::kNoUnit;
  const char *state = nullptr;
  if (called < 0 || sd_bus_message_read(rawReply, "s", &state) < 0) {
    return AutoApplyObstacle::kNoServiceManager;
  }
  return std::string_view(state).starts_with("masked") ? AutoApplyObstacle::kUnitMasked
                                                       : AutoApplyObstacle::kNone;
}

std::string MessageIn(sd_journal *journal) {
  constexpr std::string_view kField = "MESSAGE=";
  const void *data = nullptr;
  std::size_t size = 0;
  if (sd_journal_get_data(journal, "MESSAGE", &data, &size) < 0) return "";
  return std::string(std::string_view(static_cast<const char *>(data), size).substr(kField.size()));
}

}  // namespace

AutoApplyObstacle ObstacleToAutoApply() {
  const AutoApplyObstacle obstacle = ObstacleOfUnit();
  if (obstacle != AutoApplyObstacle::kNone) return obstacle;
  return FoldersWithRule(UdevRuleFolders(), kReapplyRule).empty() ? AutoApplyObstacle::kNoRule
                                                                  : AutoApplyObstacle::kNone;
}

std::optional<AutoApplyRun> LastAutoApplyRun() {
  sd_journal *raw = nullptr;
  if (sd_journal_open(&raw, SD_JOURNAL_LOCAL_ONLY | SD_JOURNAL_CURRENT_USER) < 0) {
    return std::nullopt;
  }
  const std::unique_ptr<sd_journal, CloseJournal> journal(raw);
  std::uint64_t microseconds = 0;
  if (sd_journal_add_match(raw, kJournalName, 0) < 0 || sd_journal_seek_tail(raw) < 0 ||
      sd_journal_previous(raw) <= 0 || sd_journal_get_realtime_usec(raw, &microseconds) < 0) {
    return std::nullopt;
  }
  return AutoApplyRun{
      std::chrono::system_clock::time_point(std::chrono::microseconds(microseconds)),
      MessageIn(raw)};
}

}  // namespace client
