#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace client {

// A mixer that is plugged in gets the stored settings again by itself. Where that can work, it is
// on unless the user has turned it off; no program of this product keeps running for it.

/// What keeps it from working although it may be on.
enum class AutoApplyObstacle {
  kNone,
  kNoServiceManager,  ///< The user has no service manager (systemd); macOS: no launch agent.
  kNoUnit,            ///< The service manager does not know the unit that sends the settings.
  kUnitMasked,        ///< The unit is masked: the service manager must not start it.
  kNoRule,            ///< The udev rule, which notices mixers, is not installed.
};

/// Whether the user wants it. Stays true when something else keeps it from working.
bool IsAutoApplyOn();

/// Turns it on or off for this user, from the next mixer on. Returns 0, or the system's reason why
/// not; ENOENT for a user without a home.
int TurnAutoApply(bool on);

/// The file that turns it off by being there; nothing for a user without a home. Whoever shows the
/// state may watch it.
std::optional<std::string> AutoApplyOffFile();

/// What keeps it from working. Asks the service manager, which takes five seconds at most.
AutoApplyObstacle ObstacleToAutoApply();

/// One run: a mixer was plugged in, or another event made its settings be sent.
struct AutoApplyRun {
  std::chrono::system_clock::time_point time;
  /// What it said: which mixer, what was sent, what was not and why.
  std::string line;
};

/// The last run, as the system's journal has it; nothing when the journal has none.
std::optional<AutoApplyRun> LastAutoApplyRun();

}  // namespace client
