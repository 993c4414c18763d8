// The library's reports about requests, as lines.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <TRX-SELVASetup/Diagnostics.h>

#include "Acceptance.h"

namespace trxtest {

/// What was done and how it ended, such as "write 8003 0300 done": kind, wIndex, wValue, outcome.
inline std::string LineOf(const ORVRequestReport &report) {
  constexpr const char *kKinds[] = {"open", "read", "write"};
  constexpr const char *kOutcomes[] = {"done", "short reply",   "refused", "no answer",
                                       "gone", "no permission", "busy",    "failed"};
  char line[64];
  std::snprintf(line, sizeof line, "%s %04x %04x %s", kKinds[report.kind], report.index,
                report.value, kOutcomes[report.outcome]);
  return line;
}

/// A case that observes the requests of its own thread.
class RequestReports : public Acceptance {
 protected:
  ~RequestReports() override { ORV_ObserveRequests(nullptr, nullptr); }

  /// Plugs in mixers, so that reports are about units with a number.
  void PlugMixers(int count) {
    for (int i = 0; i < count; ++i) {
      const int unit = rig_->PlugMixer();
      places_[unit] = rig_->PlaceOf(unit);
    }
  }

  /// From now on, reports to this thread's observer become lines.
  void Observe() { ORV_ObserveRequests(Note, this); }

  /// The reports since the last call, such as "unit 1 write 8003 0300 done"; one of no unit that is
  /// known begins with "nowhere".
  std::vector<std::string> TakeReports() { return std::exchange(reports_, {}); }

  /// Runs in the observer, after the report has become a line.
  void WhileReported(std::function<void()> action) { action_ = std::move(action); }

  static void Note(const ORVRequestReport *report, void *context) {
    auto *const self = static_cast<RequestReports *>(context);
    self->reports_.push_back(self->UnitOf(*report) + ' ' + LineOf(*report));
    // A copy: an action may put another in its place.
    const auto action = self->action_;
    if (action) action();
  }

 private:
  std::string UnitOf(const ORVRequestReport &report) const {
    for (const auto &[unit, place] : places_) {
      if (place == UnitPlace{report.bus, report.address, report.location}) {
        return "unit " + std::to_string(unit);
      }
    }
    return "nowhere";
  }

  std::map<int, UnitPlace> places_;
  std::vector<std::string> reports_;
  std::function<void()> action_;
};

}  // namespace trxtest
