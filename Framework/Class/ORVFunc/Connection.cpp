#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "USBDevice.h"

StatusCode ORV_IsUSBConnection(ProductId productId) {
  return orv::CheckUSBAudio(productId) > 0 ? ORV_CONNECTED : ORV_NOT_CONNECTED;
}
