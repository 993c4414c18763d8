#include <TRX-SELVASetup/EventLoop.h>

#include "OutOfMemory.h"
#include "Receiver.h"

StatusCode ORV_GetNotificationDescriptor(int32_t *descriptor) {
  if (descriptor == nullptr) return ORV_BAD_ARGUMENT;
  *descriptor = orv::NotificationDescriptor();
  return ORV_SUCCESS;
}

StatusCode ORV_DispatchNotifications(void) {
  orv::WhileMemoryLasts([] { orv::Receiver::Instance().Dispatch(); });
  return ORV_SUCCESS;
}
