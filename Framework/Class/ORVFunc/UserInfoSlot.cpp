#include "UserInfoSlot.h"

#include <utility>

namespace orv {

void UserInfoSlot::Keep(std::shared_ptr<const UserInfo> userInfo) {
  delete held_.exchange(new Held{std::move(userInfo)});
}

void UserInfoSlot::Empty() noexcept {
  Held *const held = held_.exchange(nullptr);
  if (held == nullptr) return;
  held->leftAliveBefore = leftAlive_.load();
  while (!leftAlive_.compare_exchange_weak(held->leftAliveBefore, held)) {
  }
}

}  // namespace orv
