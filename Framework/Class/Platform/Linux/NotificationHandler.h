#pragma once

#include "Notification.h"

namespace orv {

/// What an observation calls: a function, and whom it is called for.
struct NotificationHandler {
  void (*deliver)(void *receiver, const Notification &notification);
  void *receiver;

  void operator()(const Notification &notification) const { deliver(receiver, notification); }
};

}  // namespace orv
