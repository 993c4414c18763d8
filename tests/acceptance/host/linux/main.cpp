// acceptance-host: a process with the library that takes commands on standard input (see
// Commands.h). Between commands it runs its event loop.
#include <csignal>
#include <cstdint>
#include <string>

#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <TRX-SELVASetup/EventLoop.h>

#include "../Commands.h"

int main() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::string input;
  pollfd waiting[2] = {{STDIN_FILENO, POLLIN, 0}, {-1, POLLIN, 0}};
  for (;;) {
    std::int32_t descriptor = -1;
    ORV_GetNotificationDescriptor(&descriptor);
    waiting[1].fd = trxtest::IsReceiving() ? descriptor : -1;
    if (poll(waiting, 2, -1) < 0) continue;
    if (waiting[1].revents != 0) ORV_DispatchNotifications();
    if (waiting[0].revents == 0) continue;
    char part[4096];
    const ssize_t size = read(STDIN_FILENO, part, sizeof part);
    if (size <= 0) return 0;
    input.append(part, static_cast<std::size_t>(size));
    trxtest::CarryOut(input);
  }
}
