#pragma once

#include <objc/objc.h>

namespace orv {

/// The operation of an object that an observation calls with the notification object.
struct NotificationHandler {
  id observer;
  SEL operation;
};

}  // namespace orv
