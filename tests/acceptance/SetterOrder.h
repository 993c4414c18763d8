// The order in which setters go about their work, for the families that share it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Acceptance.h"

namespace trxtest {

/// A case about setters. Each of these expectations plugs in the unit that it needs and wants a
/// desk on which nothing has happened yet. The setter runs on a thread of its own, so that it can
/// be looked at while it is held up.
class SetterOrder : public Acceptance {
 protected:
  using Setter = std::function<StatusCode()>;

  /// Expects that the unit is told `sent` before anything is stored or announced.
  void ExpectUnitToldFirst(const Setter &set, const std::string &sent);

  /// Expects that `stored` stands in a model's settings file before the change is announced.
  void ExpectStoredBeforeAnnounced(const Setter &set, const std::string &modelDisplayName,
                                   const Settings &stored);

  /// Expects that a setter of TRX-SELVA sends `sent`, stores and announces, and asks for the
  /// selectors only after all that. `stored` is nothing for a setter that stores nothing.
  void ExpectSelectorsAskedLast(const Setter &set, const std::string &sent,
                                const std::optional<Settings> &stored,
                                const Announcement &announced);

  /// What a routing setter of TRX-SELVA announces; `kind` is "InputAudio" or "OutputAudio".
  static Announcement SelvaChange(const std::string &kind, std::int32_t channel,
                                  std::int32_t index);
};

}  // namespace trxtest
