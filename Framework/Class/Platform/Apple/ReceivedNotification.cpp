#include "ReceivedNotification.h"

#include "OutOfMemory.h"

namespace orv {

std::optional<UserInfo> ReceivedUserInfo(id notification,
                                         std::span<const char *const> keys) noexcept {
  return UnlessOutOfMemory<std::optional<UserInfo>>(std::nullopt, [&] {
    std::optional<UserInfo> userInfo(std::in_place);
    if (!ReadUserInfo(notification, keys, *userInfo)) userInfo.reset();
    return userInfo;
  });
}

}  // namespace orv
