#pragma once

#include "Notification.h"

namespace orv {

/// The class of the observer. Has no state of its own: the callbacks stand in the tables of
/// ChangeKinds.h. The receiving thread only.
class ORVFunc {
 public:
  void inputAudioChanged(const Notification &notification);
  void outputAudioChanged(const Notification &notification);
  void boostLevelChanged(const Notification &notification);
  void midiChannelChanged(const Notification &notification);
  void midiKeyModeChanged(const Notification &notification);
};

}  // namespace orv
