// The daemon that passes notifications between the processes of a private user.
#pragma once

#include <sys/types.h>

namespace trxtest {

/// Runs the daemon during a test.
class NotificationDaemon {
 public:
  NotificationDaemon();
  NotificationDaemon(const NotificationDaemon &) = delete;
  NotificationDaemon &operator=(const NotificationDaemon &) = delete;
  ~NotificationDaemon();

 private:
  pid_t daemon_;
};

}  // namespace trxtest
