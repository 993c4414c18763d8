#pragma once

#include <optional>

#include <objc/objc.h>

#include "Notification.h"

namespace orv {

/// What an observation calls: an operation of an object, with the notification object.
struct NotificationHandler {
  id observer;
  SEL operation;
};

/// The dictionary that a notification object carries; nothing when it holds anything but integers
/// under names, or when memory runs out. Any thread.
std::optional<UserInfo> ReceivedUserInfo(id notification) noexcept;

}  // namespace orv
