// The observer: receives the notifications for which a host has registered and calls the host's
// callbacks.
#pragma once

#include "Notification.h"

namespace orv {

/// Has no state of its own: the callbacks stand in the tables of ChangeKinds.h. Each operation
/// calls the callback of its kind for the model named inside the notification, if there is one. The
/// receiving thread only.
class ORVFunc {
 public:
  void inputAudioChanged(const Notification &notification);
  void outputAudioChanged(const Notification &notification);
  void boostLevelChanged(const Notification &notification);
  void midiChannelChanged(const Notification &notification);
  void midiKeyModeChanged(const Notification &notification);
};

/// The one observer of the process, made on first need and never released.
ORVFunc *Observer() noexcept;

}  // namespace orv
