#pragma once

#include "Notification.h"

namespace orv {

/// What an observation calls.
using NotificationHandler = void (*)(const Notification &);

}  // namespace orv
