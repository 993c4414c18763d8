#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Mixers.h"
#include "Settings.h"

namespace client {

/// What became of a value at one mixer.
struct MixerResult {
  Mixer mixer;
  /// 0, or the system's reason why the mixer was not opened.
  int refusal;
};

/// Where a value went.
struct Delivery {
  bool connected = false;
  /// Empty also when the system does not tell which mixers are connected.
  std::vector<MixerResult> mixers = {};

  /// How many mixers took it.
  std::size_t Taken() const;

  /// Whether mixers are known to be there, and none could be opened.
  bool IsNoneOpened() const;
};

/// Which mixers are there to take a value.
Delivery Reachable();

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

/// The warning that the library has for a setting, when a value was sent with one; nothing when its
/// texts are not installed.
///
/// @param language  the number of the language; kSystemLanguage for that of the user's system.
std::optional<std::string> WarningText(const Setting &setting, int32_t language);

}  // namespace client
