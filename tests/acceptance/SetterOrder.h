// The order of a setter's steps, for the settings that share it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Acceptance.h"

namespace trxtest {

/// A case about setters. Each of these expectations plugs in the unit that it needs and must be the
/// first step of the case.
class SetterOrder : public Acceptance {
 protected:
  using Setter = std::function<StatusCode()>;

  /// Expects that a setter sends `sent` before it stores, and announces only after that.
  void ExpectSentStoredAnnounced(const Setter &set, const std::string &sent);

  /// Expects that the unit gets `sent` before anything is stored or announced. For setters that
  /// store nothing.
  void ExpectSentBeforeAnnounced(const Setter &set, const std::string &sent);

  /// Expects that a setter of TRX-SELVA sends `sent`, stores and announces, and reads the
  /// selectors only after that. `stored` is nothing for a setter that stores nothing.
  void ExpectSelectorsAskedLast(const Setter &set, const std::string &sent,
                                const std::optional<Settings> &stored,
                                const Announcement &announced);

  /// What a routing setter of TRX-SELVA announces; `kind` is "InputAudio" or "OutputAudio".
  static Announcement SelvaChange(const std::string &kind, std::int32_t channel,
                                  std::int32_t index);
};

}  // namespace trxtest
