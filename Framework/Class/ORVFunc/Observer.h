// The observer of this process: receives the notifications for which a host has registered. What it
// is made of is the platform's; what it does with a notification is the same everywhere, see
// Deliver.h.
#pragma once

#include <string>

namespace orv {

/// The observer's operations, in their order. Each delivers the kind of change it is named for.
enum class ObserverOperation {
  kInputAudioChanged,
  kOutputAudioChanged,
  kBoostLevelChanged,
  kMidiChannelChanged,
  kMidiKeyModeChanged
};

/// Makes the one observer of the process, unless it is there. It is never released. The receiving
/// thread only.
void MakeObserver() noexcept;

/// Adds one observation of a name: for each notification of that name the observer's operation is
/// called once more. The receiving thread only, after MakeObserver.
void Observe(const std::string &name, ObserverOperation operation) noexcept;

}  // namespace orv
