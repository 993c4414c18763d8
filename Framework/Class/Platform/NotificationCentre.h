// Named notifications between all processes of one user. A notification reaches every process that
// observes its name, the posting one included, later and on the thread on which the process
// receives.
#pragma once

#include <string>

#include "Notification.h"
#include "NotificationHandler.h"

namespace orv {

/// Whether a receiver that the platform has suspended gets a notification at once or when it
/// continues. Where the platform suspends no receivers, both are the same.
enum class Delivery { kPlain, kImmediately };

/// Posts a notification. Without a notification service nothing happens. Any thread. On Linux, what
/// one thread posts arrives in that order; macOS promises no order between two notifications.
void PostNotification(const std::string &name, const UserInfo &userInfo,
                      Delivery delivery) noexcept;

/// Adds one observation of a name, for the life of the process: the handler is called once for each
/// notification and observation. In effect when the call returns; without a notification service,
/// as soon as there is one. The receiving thread only.
void AddObserver(const std::string &name, NotificationHandler handler) noexcept;

}  // namespace orv
