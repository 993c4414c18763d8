// Reading a received notification object. Any thread.
#pragma once

#include <optional>
#include <span>

#include <objc/objc.h>

#include "Notification.h"

namespace orv {

/// Adds the integers that a notification object carries under these keys to a dictionary; whatever
/// else it carries is passed over. Returns whether nothing but numbers stands under the keys.
bool ReadUserInfo(id notification, std::span<const char *const> keys, UserInfo &userInfo);

/// The same as a dictionary of its own; nothing when anything but a number stands under a key, or
/// when memory runs out.
std::optional<UserInfo> ReceivedUserInfo(id notification,
                                         std::span<const char *const> keys) noexcept;

}  // namespace orv
