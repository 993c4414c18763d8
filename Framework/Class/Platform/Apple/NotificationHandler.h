#pragma once

#include <objc/objc.h>

namespace orv {

/// What an observation calls: an operation of an object, with the notification object.
struct NotificationHandler {
  id observer;
  SEL operation;
};

}  // namespace orv
