#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ConnectedUnits.h"

StatusCode ORV_IsUSBConnection(ProductId productId) {
  return orv::ConnectedUnits(productId).Count() > 0 ? ORV_CONNECTED : ORV_NOT_CONNECTED;
}
