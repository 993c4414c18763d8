// The daemon that carries notifications between the processes of a private user.
#pragma once

#include <sys/types.h>

namespace trxtest {

/// Runs the daemon for the length of a test.
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
