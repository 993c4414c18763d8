#include "Mixers.h"

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace client {

// No permission is needed to open a mixer, so only the library looks for mixers here.
std::vector<Mixer> ConnectedMixers() { return {}; }

bool IsMixerConnected() { return ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA) == ORV_CONNECTED; }

int RefusalToOpen(const Mixer & /*mixer*/) { return 0; }

UsbBus SeenOnUsb() { return {}; }

}  // namespace client
