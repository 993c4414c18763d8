#include "NotificationCentre.h"

#include "OutOfMemory.h"
#include "Receiver.h"

namespace orv {

void AddObserver(const std::string &name, NotificationHandler handler) noexcept {
  WhileMemoryLasts([&] { Receiver::Instance().Add(name, handler); });
}

}  // namespace orv
