#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Mixers.h"
#include "Requests.h"
#include "Settings.h"

namespace client {

/// What became of a value at one mixer.
struct MixerResult {
  Mixer mixer;
  Outcome outcome = Outcome::kDone;
  /// The system's reason why the mixer was not opened; 0 when it was.
  int refusal = 0;

  bool IsOpened() const { return refusal == 0; }
};

/// Where a value went.
struct Delivery {
  bool isConnected = false;
  /// Empty also when the system does not tell which mixers are connected.
  std::vector<MixerResult> mixers = {};

  /// How many mixers took it.
  std::size_t CountTaken() const;

  /// Whether mixers are known to be there, and none could be opened.
  bool IsNoneOpened() const;

  /// Adds what became of another value: a mixer has taken all only if it took each.
  void Add(const Delivery &other);
};

/// Which mixers are there to take a value.
Delivery Reachable();

/// What became of the requests in a log.
///
/// @param known  the mixers that were connected before.
Delivery DeliveryOf(const RequestLog &log, const std::vector<Mixer> &known);

/// The model of the mixers, if they agree on one that has settings; else null.
const Model *AgreedModel(const std::vector<Mixer> &mixers);

/// What came of sending a value.
struct SendResult {
  /// As the library answered.
  StatusCode status = ORV_BAD_ARGUMENT;
  Delivery delivery = {};
  /// Whether the choice, once set, is what the library answers with.
  bool isStored = false;
};

/// Sends, stores and announces a choice.
SendResult Set(const Setting &setting, uint32_t index);

/// Why the stored choice is not sent again.
enum class AgainObstacle {
  kNone,
  kTakesNoChoices,  ///< The model takes no choice from the list.
  kNoChoice,        ///< The stored number is no choice.
  kOnlyFirst,       ///< Only the first choices can be sent again; see SettingKind::againCount.
};

/// What keeps the stored choice from being sent again, as far as it can be known before.
AgainObstacle ObstacleToAgain(const Setting &setting);

/// Sends the stored choice again.
SendResult SendAgain(const Setting &setting);

/// Sends the default for now: it is announced, not stored.
SendResult SendDefault(const Setting &setting);

/// Sends a raw value, which is neither stored nor announced.
SendResult SendRaw(const Setting &setting, int32_t group, uint32_t source);

/// Whether the warning that the library answered with is one for the user: only a control tone
/// passes the input selector, whatever the status says for other signals.
bool IsWarningFor(const Setting &setting, const SendResult &result, int32_t index);

/// The warning that the library has for a setting; nothing when its texts are not installed.
///
/// @param language  the number of the language; kSystemLanguage for that of the user's system.
std::optional<std::string> WarningText(const Setting &setting, int32_t language);

}  // namespace client
