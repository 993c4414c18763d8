// What the observer does with a notification, on every platform.
#pragma once

#include "ChangeKinds.h"

namespace orv {

/// Calls the callback that was registered for the model named in the dictionary, if there is one.
/// The name of the notification does not matter, and a number that names no model is ignored. The
/// receiving thread only.
void Deliver(const ChangeKind<ChannelIndexCallback> &kind, const UserInfo &userInfo);
void Deliver(const ChangeKind<IndexCallback> &kind, const UserInfo &userInfo);

}  // namespace orv
