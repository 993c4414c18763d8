// Reading a received notification object. Any thread.
#pragma once

#include <optional>
#include <span>

#include <objc/objc.h>

#include "Notification.h"

namespace orv {

/// Adds the integers that a notification object has for these keys to a dictionary and ignores
/// everything else. Returns whether all values for the keys are numbers.
bool ReadUserInfo(id notification, std::span<const char *const> keys, UserInfo &userInfo);

/// The same in a new dictionary; nothing when a value is not a number or memory runs out.
std::optional<UserInfo> ReceivedUserInfo(id notification,
                                         std::span<const char *const> keys) noexcept;

}  // namespace orv
