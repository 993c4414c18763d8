#include "ReceivedNotification.h"

#include "NotificationHandler.h"
#include "OutOfMemory.h"

namespace orv {

std::optional<UserInfo> ReceivedUserInfo(id notification) noexcept {
  return UnlessOutOfMemory<std::optional<UserInfo>>(std::nullopt, [&] {
    std::optional<UserInfo> userInfo(std::in_place);
    if (!ReadUserInfo(notification, *userInfo)) userInfo.reset();
    return userInfo;
  });
}

}  // namespace orv
