#include "NotificationCentre.h"

#include <new>

#include "Receiver.h"

namespace orv {

void AddObserver(const std::string &name, NotificationHandler handler) noexcept try {
  Receiver::Instance().Add(name, handler);
} catch (const std::bad_alloc &) {
  return;
}

}  // namespace orv
