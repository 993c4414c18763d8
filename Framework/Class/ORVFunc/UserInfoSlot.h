// Where a kind of change keeps the dictionary that this process posted last: in the library's own
// form, of which the platform's is made for posting and gone afterwards.
#pragma once

#include <atomic>
#include <memory>

#include "Notification.h"

namespace orv {

/// Holds one reference to a dictionary, or none. Any thread, without a lock: who takes a dictionary
/// out of the slot is the only one to release it.
class UserInfoSlot {
 public:
  /// Holds this dictionary in place of the one held before, which is released.
  void Keep(std::shared_ptr<const UserInfo> userInfo);

  /// Holds nothing any more. What was held is not released: it stays alive for the rest of the
  /// process.
  void Empty() noexcept;

 private:
  struct Held {
    std::shared_ptr<const UserInfo> userInfo;
    Held *leftAliveBefore = nullptr;
  };

  std::atomic<Held *> held_ = nullptr;
  std::atomic<Held *> leftAlive_ = nullptr;
};

}  // namespace orv
