// The announcement alone. No exported function announces and does nothing else, so this program is
// linked with the library's objects.
#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Announcement.h"
#include "Floor.h"
#include "Operation.h"
#include "Setting.h"

namespace trxbench {
namespace {

void Announce() { orv::Announce(orv::boostLevel.change, ORV_PRODUCT_TRX_SELVA, 1); }

void AnnounceWithSdBus() {
  static sd_bus *const bus = OpenBus();
  Require(
      sd_bus_emit_signal(bus, "/com/orvikaudio/Setup", "com.orvikaudio.Setup", "Changed", "sa{si}",
                         "TRX-SELVA BoostLevel Change", 2, "ProductID", 11, "Index", 1) >= 0,
      "announce with sd-bus");
}

}  // namespace

const std::vector<Operation> &Operations() {
  static const std::vector<Operation> operations = {
      {"announce", Announce, Leaves::kAnnouncement},
      {"announce-floor", BarePost, Leaves::kAnnouncement},
      {"announce-sd-bus", AnnounceWithSdBus, Leaves::kAnnouncement},
  };
  return operations;
}

}  // namespace trxbench
