// Reading a received notification object.
#pragma once

#include <objc/objc.h>

#include "Notification.h"

namespace orv {

/// Adds what a notification object carries to a dictionary. Returns whether it carries nothing but
/// integers under names. Any thread.
bool ReadUserInfo(id notification, UserInfo &userInfo);

}  // namespace orv
