// A host in C++: sets the level in its argument and waits for the announcement.
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>
#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace {

std::string LevelText(std::int32_t index) {
  ORVStringRef text = nullptr;
  ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, static_cast<std::uint32_t>(index), 0, &text);
  return text != nullptr ? text : "?";
}

}  // namespace

int main(int, char **arguments) {
  std::optional<std::int32_t> received;
  const auto remember = [](std::int32_t index, void *context) {
    *static_cast<std::optional<std::int32_t> *>(context) = index;
  };
  ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, remember, &received);
  ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA,
                         static_cast<std::uint32_t>(std::strtoul(arguments[1], nullptr, 10)));

  pollfd loop{-1, POLLIN, 0};
  ORV_GetNotificationDescriptor(&loop.fd);
  for (int turn = 0; !received && turn < 50; turn++) {
    poll(&loop, 1, 100);
    ORV_DispatchNotifications();
  }
  if (!received) return EXIT_FAILURE;
  std::cout << "boost level is now " << LevelText(*received) << '\n';
}
